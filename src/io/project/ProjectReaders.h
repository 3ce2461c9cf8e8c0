#pragma once

#include "base/Status.h"
#include "model/Recordings.h"
#include "model/TomoDocument.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace talvesk {

/// By what the shot file of a trace set was read.
struct StoredReader {
  std::string file;  ///< bare name, as in the member of the traces
  ShotReader reader = ShotReader::kRules;
  std::string format;        ///< "seg2", ...
  std::uint64_t record = 0;  ///< which of the shots of the file, from 0
  std::string name;          ///< of that shot; may be empty
};

/// Which shot files were read by the standard of their format, and what shots are called. Without
/// it all count as read by the program's own rules, and shots that were made of others have no
/// name. The samples need no second reading: where those rules read other ones, the member of the
/// traces holds them.
struct ReadersMember {
  std::vector<StoredReader> sets;  ///< per trace set
};

/// None where no shot file was read by the standard and no shot has a name.
std::optional<ReadersMember> readersOf(const TomoDocument& document);
/// Fails, with the document as it was, when the member is about other shot files than the
/// document's, or holds what no reader writes.
Status installReaders(ReadersMember member, TomoDocument& document);

}  // namespace talvesk

#pragma once

#include "base/Message.h"
#include "io/standard/SegySamples.h"
#include "io/standard/SegyTraceHeader.h"

#include <cstdint>
#include <vector>

namespace talvesk {

/// A trace of a SEG-Y or SU file that has been found, and is not read yet.
struct SegyTrace {
  SegyTraceHeader header;
  std::uint64_t dataAt = 0;   ///< where its samples begin
  std::uint64_t samples = 0;  ///< that it has by the layout of the file, not by its header alone
  double interval = 0.0;      ///< seconds; 0 when the file does not tell
};

/// The traces of a file, in its order, and what it says of all of them.
struct SegyTraces {
  const char* format = "";  ///< "segy" or "su"
  int revision = 0;         ///< of SEG-Y, 0 to 2
  ByteOrder order = ByteOrder::kBig;
  const SegySampleCode* code = nullptr;
  double metresPerUnit = 1.0;  ///< of coordinates, elevations, depths and offsets
  bool hasTimeScalars = false;
  bool hasLaterKinds = false;    ///< kinds of traces past 8 mean what the standard says
  bool sortedOtherwise = false;  ///< it says of itself that its traces are stacked or by midpoint
  std::vector<SegyTrace> traces;
  std::vector<Message> warnings;
};

}  // namespace talvesk

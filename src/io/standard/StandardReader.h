#pragma once

#include "base/Status.h"
#include "io/standard/StandardReading.h"

#include <string>
#include <string_view>
#include <vector>

namespace talvesk {

/// A format that is read by its standard.
struct StandardFormat {
  const char* id;    ///< "seg2", ...
  const char* name;  ///< "SEG-2", as users know it
  /// From the first bytes, at most 8 KiB of them, and the size of the file; whatever its suffix.
  Likelihood (*likelihood)(std::string_view head, std::size_t fileSize);
  /// Status 1 with a reason, and `reading` as before, when the bytes are not of the format, or hold
  /// what this reader refuses by name.
  Status (*read)(std::string_view bytes, StandardReading& reading);
};

const std::vector<StandardFormat>& standardFormats();

/// Reads a shot file by the standard of its format, which is decided by its content: of formats
/// that all say "perhaps" the one of its suffix goes first. Memory stays below 64 MiB and 16 times
/// the file. Status 1: not readable, of no known format, or promising more data than it can hold;
/// the message names the file, and `reading` is as before.
Status readByStandard(const std::string& path, StandardReading& reading);

/// The same from the bytes of a file; its name stands in the messages.
Status parseByStandard(std::string_view bytes, const std::string& path, StandardReading& reading);

}  // namespace talvesk

#pragma once

#include "base/Status.h"

#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>

namespace talvesk {

/// False for a name whose bytes are no UTF-8 text: the file could not be found by it, and one that
/// is written would get another name.
bool isFileName(const std::string& path);

/// Replaces the file at `path` (UTF-8) by `bytes`, whole or not at all: a failure leaves what was
/// there before, and no half-written file. A pipe or a device is written to instead, see
/// StreamPlace.h.
Status writeFileAtomically(const std::string& path, std::string_view bytes);

/// The same for text that `write` prints; the stream prints numbers by the "C" locale.
Status writeTextAtomically(const std::string& path,
                           const std::function<void(std::ostream&)>& write);

/// Reads a whole file. Files above `limitBytes` are refused before they are read.
Status readWholeFile(const std::string& path, std::string& bytes,
                     std::size_t limitBytes = std::size_t{1} << 31);

}  // namespace talvesk

#pragma once

#include "base/Status.h"
#include "io/SegyFile.h"
#include "io/ShotRecord.h"

#include <string>
#include <string_view>

namespace talvesk {

/// Status code of a file whose suffix no reader of shot files takes.
inline constexpr int kUnknownSuffix = 3;

/// Reads one shot file, in the format of shotFormats() that its suffix tells whatever its case.
/// Memory stays below 64 MiB and 16 times the file.
///
/// Status 1: not readable, not of its format, or promising more data than it can hold. Status 2: a
/// SEG-2 file without a usable sample interval. Status 3: another suffix; the file is not touched.
/// The message names the file. `data` and `state` are as before in all these cases. A truncated
/// file is no failure: zeros stand for what is missing, and a warning says so. Progress, warnings
/// and failures also go to the console.
Status readShotFile(const std::string& path, SegyState& state, ShotFileData& data);

/// The same from the bytes of a file; its name chooses the format and stands in the messages.
Status parseShotFile(std::string_view bytes, const std::string& path, SegyState& state,
                     ShotFileData& data);

}  // namespace talvesk

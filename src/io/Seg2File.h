#pragma once

#include "base/Status.h"
#include "io/ShotRecord.h"

#include <string_view>

namespace talvesk {

/// Reads a little-endian SEG-2 file (S. E. Pullan, "Recommended standard for seismic (/radar) data
/// files in the personal computer environment", Geophysics 55(9), 1990). Per-trace progress goes to
/// the console.
///
/// Status 1: no such file, or one that promises more data than it can hold. Status 2: the last
/// trace tells no sample interval. `data` is as before in both cases.
///
/// Kept on purpose, for the picks of old surveys to stay comparable: every sample takes four bytes
/// whatever the format, so that 16-bit data (codes 1 and 10) give every second value, and the last
/// sample of a trace is never read and stays 0. Samples of other codes than 1, 2, 4 and 10 stay 0.
Status readSeg2(std::string_view bytes, ShotFileData& data);

}  // namespace talvesk

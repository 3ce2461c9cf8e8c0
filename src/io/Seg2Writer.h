#pragma once

#include "io/WrittenShot.h"

#include <cstddef>
#include <string>

namespace talvesk {

/// More traces than the table of a SEG-2 file has room for cannot be written.
inline constexpr std::size_t kMostSeg2Traces = 16383;

/// A SEG-2 file (S. E. Pullan, Geophysics 55(9), 1990) of 32-bit floats, little-endian. Positions
/// are written as x, y, z with y = 0 and eight significant digits, times to a tenth of a
/// microsecond, and more of either where that does not bring them back.
std::string formatSeg2(const WrittenShot& shot);

}  // namespace talvesk

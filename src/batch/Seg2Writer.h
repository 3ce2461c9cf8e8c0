#pragma once

#include "base/Point2D.h"

#include <string>
#include <vector>

namespace talvesk {

/// One shot as it is recorded.
struct Seg2Record {
  Point2D source;
  std::vector<Point2D> receivers;          ///< one per trace
  std::vector<std::vector<float>> traces;  ///< at most 65535 samples each
  double sampleInterval = 0.0;             ///< seconds
  double delay = 0.0;                      ///< start of the record relative to the shot, seconds
};

/// A SEG-2 file (S. E. Pullan, Geophysics 55(9), 1990) of 32-bit floats, little-endian. Positions
/// are written as x, y, z with y = 0 and eight significant digits, times to a tenth of a
/// microsecond.
std::string formatSeg2(const Seg2Record& record);

}  // namespace talvesk

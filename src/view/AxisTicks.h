#pragma once

#include <vector>

namespace talvesk {

/// Where an axis carries marks, in round numbers.
struct AxisTicks {
  std::vector<double> major;  ///< with a number
  std::vector<double> minor;  ///< without, majors left out
  int decimals = 0;           ///< that the numbers need
};

/// Steps of 1, 2 or 5 times a power of ten, at most `most` of them with numbers. Empty for a range
/// that is empty or not finite. \param wholeSteps no step below 1 (channel numbers)
AxisTicks axisTicks(double from, double to, int most, bool wholeSteps = false);

}  // namespace talvesk

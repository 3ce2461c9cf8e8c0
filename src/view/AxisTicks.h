#pragma once

#include <string>
#include <vector>

namespace talvesk {

/// Where an axis carries marks, in round numbers.
struct AxisTicks {
  std::vector<double> major;  ///< with a number
  std::vector<double> minor;  ///< without, majors left out
  int decimals = 0;           ///< that the numbers need
  double factor = 1.0;        ///< of the numbers over the values, where these have another unit
};

/// Steps of 1, 2 or 5 times a power of ten, at most `most` of them with numbers. Empty for a range
/// that is empty or not finite. \param wholeSteps no step below 1 (channel numbers)
AxisTicks axisTicks(double from, double to, int most, bool wholeSteps = false);

/// Of a quantity with a unit: round in the unit that it is shown in. \param unit as shownUnit()
/// takes it
AxisTicks shownTicks(double from, double to, int most, const std::string& unit);

}  // namespace talvesk

#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

namespace talvesk {

/// The middle one of values in ascending order, of an even number the upper of the two in the
/// middle; `none` without values. They must be comparable: not NaN.
inline double medianOf(std::vector<double> values, double none) {
  if (values.empty()) return none;
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

/// The same of those that are finite.
inline double medianOfFinite(std::vector<double> values, double none) {
  values.erase(
      std::remove_if(values.begin(), values.end(), [](double v) { return !std::isfinite(v); }),
      values.end());
  return medianOf(std::move(values), none);
}

/// The median distance between neighbours that differ, above 0; 1 when there are none.
/// \param ascending sorted
inline double medianGap(const std::vector<double>& ascending) {
  std::vector<double> gaps;
  for (std::size_t i = 1; i < ascending.size(); ++i) {
    if (ascending[i] > ascending[i - 1]) gaps.push_back(ascending[i] - ascending[i - 1]);
  }
  return medianOf(std::move(gaps), 1.0);
}

/// The standard deviation from 0 of values that are normal but for some gross errors, which hardly
/// change it: from the median of their sizes; 0 without values.
inline double robustDeviation(std::vector<double> values) {
  constexpr double kNormalMedian = 0.6745;  // of the sizes of normal deviates
  if (values.empty()) return 0.0;
  for (double& value : values) value = std::fabs(value);
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  if (values.size() % 2 == 1) return *middle / kNormalMedian;
  return 0.5 * (*middle + *std::max_element(values.begin(), middle)) / kNormalMedian;
}

/// Such deviations by which a value stands out as a gross error: Iglewicz and Hoaglin, How to
/// detect outliers, 1993.
inline constexpr double kGrossDeviations = 3.5;

}  // namespace talvesk

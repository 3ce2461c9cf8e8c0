#pragma once

#include <algorithm>
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

/// The median distance between neighbours that differ, above 0; 1 when there are none.
/// \param ascending sorted
inline double medianGap(const std::vector<double>& ascending) {
  std::vector<double> gaps;
  for (std::size_t i = 1; i < ascending.size(); ++i) {
    if (ascending[i] > ascending[i - 1]) gaps.push_back(ascending[i] - ascending[i - 1]);
  }
  return medianOf(std::move(gaps), 1.0);
}

}  // namespace talvesk

#pragma once

#include "base/Point2D.h"

#include <cstddef>
#include <vector>

namespace talvesk::doctor {

/// The median distance between neighbouring geophones, above 0; 1 where there are none.
double spacingOf(const std::vector<Point2D>& geophones);

/// Geophones of which so many share a place that distances mean nothing. Several components at one
/// place, the same number at every place, are none.
bool isHeap(const std::vector<Point2D>& geophones);

/// Their numbers in the order in which they stand along the line.
std::vector<std::size_t> alongLine(const std::vector<Point2D>& geophones);

}  // namespace talvesk::doctor

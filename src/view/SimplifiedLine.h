#pragma once

#include "base/Point2D.h"

#include <vector>

namespace talvesk {

/// A line without the points that it can do without, the ends kept: no point left out lies further
/// than `tolerance` metres from the stretch that takes its place. By the method of Douglas and
/// Peucker (1973).
std::vector<Point2D> simplifiedLine(const std::vector<Point2D>& line, double tolerance);

}  // namespace talvesk

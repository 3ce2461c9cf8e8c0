#pragma once

#include "base/Point2D.h"

#include <optional>
#include <vector>

namespace talvesk {

struct Annotation;

/// Where a level line is inside an area: pairs of x, ascending; even-odd, as it is filled.
std::vector<double> crossings(const std::vector<Point2D>& area, double z);

/// Where the text of an annotation has its middle: at its point, halfway along a line, and inside
/// an area, whatever its shape, in the widest part of its middle height. \param item with a point
/// at least
Point2D labelPlace(const Annotation& item);

/// The same of an area, of which only what lies in a rectangle is seen: inside what is seen of it,
/// at the middle height of that or else at another one where the area is; nowhere when none of some
/// heights has any of it. \param area of a corner at least \param low, high corners of the
/// rectangle
std::optional<Point2D> labelPlace(const std::vector<Point2D>& area, const Point2D& low,
                                  const Point2D& high);

}  // namespace talvesk

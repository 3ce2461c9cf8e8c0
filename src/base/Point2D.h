#pragma once

#include <cmath>
#include <vector>

namespace talvesk {

/// A point in the vertical plane of the survey line.
struct Point2D {
  double x = 0.0;  ///< distance along the line, metres
  double z = 0.0;  ///< elevation, metres, positive upward
};

inline bool operator==(const Point2D& a, const Point2D& b) {
  return a.x == b.x && a.z == b.z;
}
inline bool operator!=(const Point2D& a, const Point2D& b) {
  return !(a == b);
}

/// Whether both coordinates are finite numbers.
inline bool isFinite(const Point2D& point) {
  return std::isfinite(point.x) && std::isfinite(point.z);
}

/// Sorts points by ascending x; of those at one x only the first stays.
void keepFirstOfEachX(std::vector<Point2D>& points);

}  // namespace talvesk

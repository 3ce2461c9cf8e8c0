#pragma once

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

}  // namespace talvesk

#include "refraction/Course.h"

#include <algorithm>

namespace talvesk {

double Course::at(double place) const {
  if (x.empty()) return 0.0;
  const auto upper = std::upper_bound(x.begin(), x.end(), place);
  if (upper == x.begin()) return y.front();
  if (upper == x.end()) return y.back();
  const auto i = static_cast<std::size_t>(upper - x.begin());
  const double w = (place - x[i - 1]) / (x[i] - x[i - 1]);
  return (1.0 - w) * y[i - 1] + w * y[i];
}

Course surfaceOf(const std::vector<ShotArrivals>& shots) {
  std::vector<Point2D> points;
  for (const ShotArrivals& shot : shots) {
    for (const Point2D& receiver : shot.receivers) {
      if (isFinite(receiver)) points.push_back(receiver);
    }
    if (isFinite(shot.shot)) points.push_back(shot.shot);
  }
  std::stable_sort(points.begin(), points.end(),
                   [](const Point2D& a, const Point2D& b) { return a.x < b.x; });
  Course surface;
  for (const Point2D& point : points) {
    if (!surface.x.empty() && point.x == surface.x.back()) continue;
    surface.x.push_back(point.x);
    surface.y.push_back(point.z);
  }
  return surface;
}

}  // namespace talvesk

#include "base/Point2D.h"

#include <algorithm>

namespace talvesk {

void keepFirstOfEachX(std::vector<Point2D>& points) {
  std::stable_sort(points.begin(), points.end(),
                   [](const Point2D& a, const Point2D& b) { return a.x < b.x; });
  points.erase(std::unique(points.begin(), points.end(),
                           [](const Point2D& a, const Point2D& b) { return a.x == b.x; }),
               points.end());
}

}  // namespace talvesk

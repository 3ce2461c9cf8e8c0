#include "grid/SurveyProfile.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace talvesk {

SurveyProfile measureSurvey(const std::vector<std::vector<Point2D>>& strings,
                            const std::vector<Point2D>& shots) {
  SurveyProfile profile;
  std::vector<Point2D> points;
  double minSpacing = std::numeric_limits<double>::max();
  for (const auto& string : strings) {
    for (std::size_t i = 0; i < string.size(); ++i) {
      points.push_back(string[i]);
      if (i == 0) continue;
      const double spacing = std::fabs(string[i].x - string[i - 1].x);
      if (spacing != 0.0) minSpacing = std::min(minSpacing, spacing);
    }
  }
  points.insert(points.end(), shots.begin(), shots.end());
  if (points.empty()) return profile;

  keepFirstOfEachX(points);
  for (const Point2D& point : points) {
    profile.x.push_back(point.x);
    profile.elevation.push_back(point.z);
  }
  profile.minX = profile.x.front();
  profile.maxX = profile.x.back();
  profile.xOffset = 1.0 - profile.minX;
  profile.arrayLength = profile.maxX - profile.minX + 2.0;
  if (minSpacing < std::numeric_limits<double>::max()) {
    profile.minSpacing = minSpacing;
    profile.proposedCellSize = std::round(minSpacing * 0.25 * 100.0) / 100.0;
  }
  return profile;
}

bool SurveyProfile::isOnGlobe() const {
  const auto inRange = [](double v) { return std::fabs(v) <= kLargestCoordinate; };
  return std::all_of(x.begin(), x.end(), inRange) &&
         std::all_of(elevation.begin(), elevation.end(), inRange);
}

Splines::LinearSpline SurveyProfile::surface() const {
  const std::size_t n = std::min(x.size(), elevation.size());
  std::vector<double> gridX(n);
  for (std::size_t i = 0; i < n; ++i) gridX[i] = x[i] + xOffset;
  Splines::LinearSpline spline;
  spline.build(gridX.data(), elevation.data(), static_cast<std::uint32_t>(n));
  return spline;
}

}  // namespace talvesk

#include "view/LabelPlace.h"

#include "model/Annotations.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace talvesk {
namespace {

std::pair<Point2D, Point2D> extentOf(const std::vector<Point2D>& points) {
  Point2D least = points.front();
  Point2D most = least;
  for (const Point2D& p : points) {
    least = {std::min(least.x, p.x), std::min(least.z, p.z)};
    most = {std::max(most.x, p.x), std::max(most.z, p.z)};
  }
  return {least, most};
}

double length(const Point2D& a, const Point2D& b) {
  return std::hypot(b.x - a.x, b.z - a.z);
}

Point2D halfway(const std::vector<Point2D>& line) {
  double rest = 0.0;
  for (std::size_t i = 0; i + 1 < line.size(); ++i) rest += 0.5 * length(line[i], line[i + 1]);
  for (std::size_t i = 0; i + 1 < line.size(); ++i) {
    const Point2D& a = line[i];
    const Point2D& b = line[i + 1];
    const double piece = length(a, b);
    if (piece > 0.0 && rest <= piece) {
      const double f = rest / piece;
      return {a.x + f * (b.x - a.x), a.z + f * (b.z - a.z)};
    }
    rest -= piece;
  }
  return line.back();
}

}  // namespace

std::vector<double> crossings(const std::vector<Point2D>& area, double z) {
  std::vector<double> xs;
  for (std::size_t i = 0; i < area.size(); ++i) {
    const Point2D& a = area[i];
    const Point2D& b = area[(i + 1) % area.size()];
    if ((a.z <= z) == (b.z <= z)) continue;
    xs.push_back(a.x + (z - a.z) / (b.z - a.z) * (b.x - a.x));
  }
  std::sort(xs.begin(), xs.end());
  return xs;
}

Point2D labelPlace(const Annotation& item) {
  switch (item.kind) {
    case AnnotationKind::kText:
      break;
    case AnnotationKind::kLine:
      return halfway(item.points);
    case AnnotationKind::kPolygon:
      const auto [low, high] = extentOf(item.points);
      return labelPlace(item.points, low, high);
  }
  return item.points.front();
}

Point2D labelPlace(const std::vector<Point2D>& area, const Point2D& low, const Point2D& high) {
  const auto [least, most] = extentOf(area);
  const Point2D from{std::max(least.x, low.x), std::max(least.z, low.z)};
  const Point2D to{std::min(most.x, high.x), std::min(most.z, high.z)};
  const double z = 0.5 * (from.z + to.z);
  const std::vector<double> edges = crossings(area, z);
  Point2D place{0.5 * (from.x + to.x), z};
  double widest = 0.0;
  for (std::size_t i = 0; i + 1 < edges.size(); i += 2) {
    const double left = std::max(edges[i], from.x);
    const double right = std::min(edges[i + 1], to.x);
    if (right - left <= widest) continue;
    widest = right - left;
    place.x = 0.5 * (left + right);
  }
  return place;
}

}  // namespace talvesk

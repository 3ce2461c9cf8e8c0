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

/// Of the parts of a level line inside an area, as far as they lie between two places.
/// \param edges see crossings()
std::optional<double> middleOfWidest(const std::vector<double>& edges, double from, double to) {
  std::optional<double> middle;
  double widest = 0.0;
  for (std::size_t i = 0; i + 1 < edges.size(); i += 2) {
    const double left = std::max(edges[i], from);
    const double right = std::min(edges[i + 1], to);
    if (right - left <= widest) continue;
    widest = right - left;
    middle = 0.5 * (left + right);
  }
  return middle;
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
      return labelPlace(item.points, low, high).value_or(item.points.front());
  }
  return item.points.front();
}

std::optional<Point2D> labelPlace(const std::vector<Point2D>& area, const Point2D& low,
                                  const Point2D& high) {
  const auto [least, most] = extentOf(area);
  const Point2D from{std::max(least.x, low.x), std::max(least.z, low.z)};
  const Point2D to{std::min(most.x, high.x), std::min(most.z, high.z)};
  if (from.x > to.x || from.z > to.z) return std::nullopt;
  // The middle, then the middles of both halves, and so on.
  constexpr int kFinest = 32;
  for (int parts = 2; parts <= kFinest; parts *= 2) {
    for (int part = 1; part < parts; part += 2) {
      const double z = from.z + part * (to.z - from.z) / parts;
      if (const auto x = middleOfWidest(crossings(area, z), from.x, to.x)) return Point2D{*x, z};
    }
  }
  // What is no more than a line has no inside, and a name still.
  const bool allSeen = from.x == least.x && from.z == least.z && to.x == most.x && to.z == most.z;
  if (allSeen) return Point2D{0.5 * (from.x + to.x), 0.5 * (from.z + to.z)};
  return std::nullopt;
}

}  // namespace talvesk

#include "view/SimplifiedLine.h"

#include <cmath>
#include <cstddef>
#include <utility>

namespace talvesk {

std::vector<Point2D> simplifiedLine(const std::vector<Point2D>& line, double tolerance) {
  if (line.size() < 3) return line;
  std::vector<bool> kept(line.size(), false);
  kept.front() = kept.back() = true;
  std::vector<std::pair<std::size_t, std::size_t>> open{{0, line.size() - 1}};
  while (!open.empty()) {
    const auto [from, to] = open.back();
    open.pop_back();
    const Point2D along{line[to].x - line[from].x, line[to].z - line[from].z};
    const double length = std::hypot(along.x, along.z);
    double furthest = tolerance;
    std::size_t at = from;
    for (std::size_t i = from + 1; i < to; ++i) {
      const Point2D off{line[i].x - line[from].x, line[i].z - line[from].z};
      const double away = length > 0.0 ? std::abs(off.x * along.z - off.z * along.x) / length
                                       : std::hypot(off.x, off.z);
      if (away > furthest) {
        furthest = away;
        at = i;
      }
    }
    if (at == from) continue;
    kept[at] = true;
    open.emplace_back(from, at);
    open.emplace_back(at, to);
  }
  std::vector<Point2D> out;
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (kept[i]) out.push_back(line[i]);
  }
  return out;
}

}  // namespace talvesk

#include "doctor/Geophones.h"

#include "numerics/Medians.h"

#include <algorithm>
#include <map>
#include <numeric>

namespace talvesk::doctor {

double spacingOf(const std::vector<Point2D>& geophones) {
  std::vector<double> x;
  for (const Point2D& geophone : geophones) x.push_back(geophone.x);
  std::sort(x.begin(), x.end());
  return medianGap(x);
}

bool isHeap(const std::vector<Point2D>& geophones) {
  std::map<double, std::size_t> places;
  for (const Point2D& geophone : geophones) ++places[geophone.x];
  if (geophones.size() < 3 || places.size() == geophones.size()) return false;
  const std::size_t each = places.begin()->second;
  const bool components =
      places.size() > 2 && each <= 3 &&
      std::all_of(places.begin(), places.end(), [&](const auto& p) { return p.second == each; });
  return !components && 2 * places.size() < geophones.size();
}

std::vector<std::size_t> alongLine(const std::vector<Point2D>& geophones) {
  std::vector<std::size_t> order(geophones.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(),
                   [&](std::size_t a, std::size_t b) { return geophones[a].x < geophones[b].x; });
  return order;
}

}  // namespace talvesk::doctor

#include "figures/BoundaryLook.h"

#include "refraction/methods/MethodResult.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace talvesk {
namespace {

using refractionDataStructure::computedData;
using Lines = std::vector<std::vector<Point2D>>;

bool isCarried(const std::vector<Support>& support, std::size_t j) {
  return j >= support.size() || support[j] == Support::kPicks;
}

void addLines(const std::vector<Point2D>& points, const std::vector<Support>& support,
              BoundaryLook& look) {
  Lines* last = nullptr;
  for (std::size_t j = 1; j < points.size(); ++j) {
    if (!isFinite(points[j - 1]) || !isFinite(points[j])) {
      last = nullptr;
      continue;
    }
    const bool carried = isCarried(support, j - 1) && isCarried(support, j);
    Lines& lines = carried ? look.carried : look.uncarried;
    if (last != &lines) lines.push_back({points[j - 1]});
    lines.back().push_back(points[j]);
    last = &lines;
  }
}

/// There along the upper edge and back along the lower one.
void closeBand(std::vector<Point2D>& upper, std::vector<Point2D>& lower, Lines& bands) {
  if (!upper.empty()) {
    upper.insert(upper.end(), lower.rbegin(), lower.rend());
    bands.push_back(std::move(upper));
  }
  upper.clear();
  lower.clear();
}

void addBands(const computedData& refractor, const Band& band, Lines& bands) {
  const std::size_t n = std::min({refractor.x.size(), refractor.elevation.size(), band.low.size()});
  std::vector<Point2D> upper;
  std::vector<Point2D> lower;
  for (std::size_t j = 0; j < n; ++j) {
    const Point2D high{refractor.x[j], refractor.elevation[j] - band.low[j]};
    const Point2D low{refractor.x[j], refractor.elevation[j] - band.high[j]};
    if (isFinite(high) && isFinite(low)) {
      upper.push_back(high);
      lower.push_back(low);
    } else {
      closeBand(upper, lower, bands);
    }
  }
  closeBand(upper, lower, bands);
}

}  // namespace

BoundaryLook boundaryLook(const computedData& refractor, const std::vector<Support>& support,
                          const Band* band) {
  const std::size_t n =
      std::min({refractor.x.size(), refractor.depth.size(), refractor.elevation.size()});
  std::vector<Point2D> points;
  for (std::size_t j = 0; j < n; ++j) {
    points.push_back({refractor.x[j], refractor.elevation[j] - refractor.depth[j]});
  }
  BoundaryLook look;
  addLines(points, support, look);
  if (band != nullptr) addBands(refractor, *band, look.bands);
  return look;
}

}  // namespace talvesk

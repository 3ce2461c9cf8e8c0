#include "refraction/LayeredGround.h"

#include "numerics/Medians.h"
#include "refraction/Course.h"
#include "refraction/LinearFit.h"
#include "refraction/PlausibleResults.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace talvesk {

using namespace refractionDataStructure;

namespace {

constexpr double kNodesPerReceiver = 4.0;
constexpr double kLeastNodes = 200.0;
constexpr double kMostNodes = 1200.0;
constexpr std::size_t kEndParts = 3;

std::vector<double> nodesOver(const Course& surface) {
  const double first = surface.x.front();
  const double range = surface.x.back() - first;
  std::vector<double> nodes;
  if (!(range > 0.0) || !std::isfinite(range)) return nodes;
  const double wanted = kNodesPerReceiver * range / medianGap(surface.x);
  const auto n = static_cast<std::size_t>(std::clamp(wanted, kLeastNodes, kMostNodes)) + 1;
  for (std::size_t i = 0; i < n; ++i) {
    nodes.push_back(first + range * static_cast<double>(i) / static_cast<double>(n - 1));
  }
  return nodes;
}

/// The value beyond an end of a course: that of the third next to it, for the last few receivers
/// of a profile have the velocities that are worst known.
double endValue(const std::vector<double>& values, bool atFront) {
  const std::size_t n = 1 + (values.size() - 1) / kEndParts;
  const auto begin = atFront ? values.begin() : values.end() - static_cast<std::ptrdiff_t>(n);
  return medianOf(std::vector<double>(begin, begin + static_cast<std::ptrdiff_t>(n)), 0.0);
}

std::optional<LayeredGround::Boundary> boundaryOf(const computedData& refractor,
                                                  const std::vector<double>& nodes) {
  Course elevation;
  Course slowness;
  const std::size_t n = std::min({refractor.x.size(), refractor.elevation.size(),
                                  refractor.depth.size(), refractor.velocity.size()});
  for (std::size_t j = 0; j < n; ++j) {
    const double z = refractor.elevation[j] - refractor.depth[j];
    const double v = refractor.velocity[j];
    if (!std::isfinite(z) || !isPlausibleVelocity(v)) continue;
    elevation.x.push_back(refractor.x[j]);
    elevation.y.push_back(z);
    slowness.x.push_back(refractor.x[j]);
    slowness.y.push_back(1.0 / v);
  }
  if (elevation.x.size() < 2) return std::nullopt;
  const double dip = leastSquares(elevation.x, elevation.y).slope;
  LayeredGround::Boundary boundary;
  boundary.first = elevation.x.front();
  boundary.last = elevation.x.back();
  const double before = endValue(slowness.y, true);
  const double behind = endValue(slowness.y, false);
  for (const double x : nodes) {
    const double beyond = x - std::clamp(x, boundary.first, boundary.last);
    boundary.elevation.push_back(elevation.at(x) + dip * beyond);
    boundary.slowness.push_back(beyond == 0.0 ? slowness.at(x) : beyond < 0.0 ? before : behind);
  }
  return boundary;
}

void takeFirstLayer(const FirstLayer& first, const std::vector<double>& surface,
                    LayeredGround& ground) {
  Course slowness;
  for (std::size_t i = 0; i < std::min(first.x.size(), first.velocity.size()); ++i) {
    if (!isPlausibleVelocity(first.velocity[i])) continue;
    slowness.x.push_back(first.x[i]);
    slowness.y.push_back(1.0 / first.velocity[i]);
  }
  if (slowness.x.empty()) return;
  for (const double x : ground.x) ground.firstSlowness.push_back(slowness.at(x));
  ground.growth = std::isfinite(first.growth) ? std::max(0.0, first.growth) : 0.0;
  ground.growsTo = std::isfinite(first.growsTo) ? std::max(0.0, first.growsTo) : 0.0;
  ground.surface = surface;
}

}  // namespace

std::optional<LayeredGround> layeredGround(const std::vector<ShotArrivals>& shots,
                                           const processingData& results) {
  const Course surface = surfaceOf(shots);
  if (surface.x.empty() || results.cData.empty() || !isPlausibleVelocity(results.v1)) {
    return std::nullopt;
  }
  LayeredGround ground;
  ground.firstVelocity = results.v1;
  ground.x = nodesOver(surface);
  if (ground.x.empty()) return std::nullopt;
  std::vector<double> above;
  for (const double x : ground.x) above.push_back(surface.at(x));
  if (results.isFitted()) takeFirstLayer(results.first, above, ground);
  for (const computedData& refractor : results.cData) {
    auto boundary = boundaryOf(refractor, ground.x);
    if (!boundary) break;
    for (std::size_t i = 0; i < above.size(); ++i) {
      boundary->elevation[i] = std::min(boundary->elevation[i], above[i]);
    }
    above = boundary->elevation;
    ground.boundaries.push_back(std::move(*boundary));
  }
  if (ground.boundaries.empty()) return std::nullopt;
  return ground;
}

}  // namespace talvesk

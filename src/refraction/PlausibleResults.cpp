#include "refraction/PlausibleResults.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace talvesk {

using refractionDataStructure::computedData;
using refractionDataStructure::processingData;

namespace {

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

std::size_t knownIn(const std::vector<double>& values) {
  return static_cast<std::size_t>(
      std::count_if(values.begin(), values.end(), [](double value) { return !std::isnan(value); }));
}

}  // namespace

bool isPlausibleVelocity(double velocity) {
  return velocity >= kLeastVelocity && velocity <= kGreatestVelocity;
}

double lineLength(const std::vector<ShotArrivals>& shots) {
  double first = std::numeric_limits<double>::infinity();
  double last = -first;
  const auto take = [&](double x) {
    if (!std::isfinite(x)) return;
    first = std::min(first, x);
    last = std::max(last, x);
  };
  for (const ShotArrivals& shot : shots) {
    take(shot.shot.x);
    for (const Point2D& receiver : shot.receivers) take(receiver.x);
  }
  return first <= last ? last - first : 0.0;
}

std::size_t leaveOutVelocities(std::vector<double>& velocities) {
  std::replace_if(
      velocities.begin(), velocities.end(), [](double v) { return !isPlausibleVelocity(v); },
      kUnknown);
  return velocities.size() - knownIn(velocities);
}

std::size_t leaveOutDepths(std::vector<double>& depths, double lineLength) {
  std::size_t beyond = 0;
  for (double& depth : depths) {
    if (std::fabs(depth) <= lineLength) continue;
    if (std::isfinite(depth)) ++beyond;
    depth = kUnknown;
  }
  return beyond;
}

std::size_t leaveOutImplausible(processingData& results, double lineLength) {
  std::size_t left = 0;
  if (results.v1 != 0.0 && !std::isnan(results.v1) && !isPlausibleVelocity(results.v1)) {
    results.v1 = kUnknown;
    ++left;
  }
  for (std::vector<double>* velocities : {&results.v2, &results.v3}) {
    leaveOutVelocities(*velocities);
  }
  for (computedData& refractor : results.cData) {
    const std::size_t known = knownIn(refractor.velocity) + knownIn(refractor.depth);
    leaveOutVelocities(refractor.velocity);
    leaveOutDepths(refractor.depth, lineLength);
    const std::size_t n = std::min(refractor.velocity.size(), refractor.depth.size());
    for (std::size_t j = 0; j < n; ++j) {
      if (std::isnan(refractor.velocity[j])) refractor.depth[j] = kUnknown;
    }
    left += known - knownIn(refractor.velocity) - knownIn(refractor.depth);
  }
  return left;
}

}  // namespace talvesk

#include "refraction/methods/RefractorReading.h"

#include "model/TravelTime.h"
#include "refraction/ReciprocalMethod.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace talvesk {

using refractionDataStructure::layerStruct;

namespace {

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

}  // namespace

RefractorReading emptyReading(std::size_t n) {
  RefractorReading reading;
  reading.delays.assign(n, kUnknown);
  reading.velocities.assign(n, kUnknown);
  reading.delaySupport.assign(n, Support::kPicks);
  reading.velocitySupport.assign(n, Support::kPicks);
  return reading;
}

std::vector<double> depthsOf(const LineView& line, const std::vector<double>& delays,
                             const std::vector<double>& velocities) {
  if (line.upper != nullptr) {
    return depthSecondRefractor(delays, line.upper->depth, line.upper->velocity, velocities,
                                line.v1, 0);
  }
  std::vector<double> depths = depthFirstRefractor(delays, velocities, line.v1, 0).depth;
  // Unlike there, what is not known is not 0.
  for (std::size_t j = 0; j < depths.size(); ++j) {
    if (std::isnan(delays[j])) depths[j] = kUnknown;
  }
  return depths;
}

std::vector<std::size_t> refracted(const LayerPicks& picks, std::size_t shot,
                                   std::uint32_t refractor, Side side) {
  std::vector<std::size_t> traces;
  const layerStruct* marks = marksOf(picks.interpretation.ttLayer, shot);
  if (marks == nullptr || !marks->enabled) return traces;
  const ShotArrivals& own = picks.shots[shot];
  for (std::size_t i = 0; i < own.times.size(); ++i) {
    const bool counts = layerOf(*marks, i) == refractor && hasPick(own.times[i]);
    if (counts && own.onSide(i, side)) traces.push_back(i);
  }
  std::stable_sort(traces.begin(), traces.end(), [&](std::size_t a, std::size_t b) {
    return std::fabs(own.receivers[a].x - own.shot.x) < std::fabs(own.receivers[b].x - own.shot.x);
  });
  return traces;
}

}  // namespace talvesk

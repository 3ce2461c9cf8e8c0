#include "doctor/NeighbourTimes.h"

#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace talvesk::doctor {

std::optional<NeighbourTime> timeByNeighbours(const ShotView& shot, std::size_t trace) {
  constexpr std::size_t kReach = 3;
  const std::vector<Onset>& onsets = shot.onsets;
  const bool laid = shot.placed && !isHeap(shot.geophones);
  const auto along = [&](std::size_t t) {
    return laid ? shot.geophones[t].x : static_cast<double>(t);
  };
  const double spacing = laid ? spacingOf(shot.geophones) : 1.0;
  const bool inside = shot.station.side == SourceStation::Side::kInside;
  const double source = laid ? shot.source.x : shot.station.station;
  if ((laid || inside) && std::fabs(along(trace) - source) <= kReach * spacing) return std::nullopt;
  const std::size_t here = shot.rank[trace];
  NeighbourTime result;
  std::vector<double> times;
  std::vector<double> paces;
  for (std::size_t i = here > kReach ? here - kReach : 0; i < here; ++i) {
    for (std::size_t k = here + 1; k < std::min(onsets.size(), here + kReach + 1); ++k) {
      const std::size_t left = shot.order[i];
      const std::size_t right = shot.order[k];
      if (!isClear(onsets[left]) || !isClear(onsets[right]) || along(left) == along(right)) {
        continue;
      }
      const double pace = (onsets[right].time - onsets[left].time) / (along(right) - along(left));
      times.push_back(onsets[left].time + pace * (along(trace) - along(left)));
      paces.push_back(pace);
      result.step = std::max(result.step, std::fabs(pace) * spacing);
    }
  }
  if (times.size() < 4) return std::nullopt;
  result.time = medianOf(times, 0.0);
  result.pace = medianOf(paces, 0.0);
  std::vector<double> off;
  for (const double time : times) off.push_back(std::fabs(time - result.time));
  result.scatter = 1.4826 * medianOf(std::move(off), 0.0);
  return result;
}

}  // namespace talvesk::doctor

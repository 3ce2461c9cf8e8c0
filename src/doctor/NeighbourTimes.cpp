#include "doctor/NeighbourTimes.h"

#include "doctor/Placing.h"
#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace talvesk::doctor {

std::optional<NeighbourTime> timeByNeighbours(const ShotView& shot, std::size_t trace) {
  constexpr std::size_t kReach = 3;
  const std::vector<Onset>& onsets = shot.onsets;
  if (shot.station.side == SourceStation::Side::kInside &&
      std::fabs(shot.station.station - static_cast<double>(trace)) <= kReach) {
    return std::nullopt;
  }
  const bool laid = shot.placed && !isHeap(shot.geophones);
  const auto along = [&](std::size_t t) {
    return laid ? shot.geophones[t].x : static_cast<double>(t);
  };
  const double spacing = laid ? spacingOf(shot.geophones) : 1.0;
  NeighbourTime result;
  std::vector<double> times;
  std::vector<double> paces;
  for (std::size_t left = trace > kReach ? trace - kReach : 0; left < trace; ++left) {
    for (std::size_t right = trace + 1; right < std::min(onsets.size(), trace + kReach + 1);
         ++right) {
      if (!isClear(onsets[left]) || !isClear(onsets[right]) || along(left) == along(right))
        continue;
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

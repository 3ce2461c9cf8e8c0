#include "refraction/WeighedPicks.h"

#include "model/TomoDocument.h"
#include "model/TravelTime.h"

#include <algorithm>

namespace talvesk {

std::vector<std::vector<double>> pickErrors(const TomoDocument& document,
                                            const std::vector<ShotArrivals>& shots,
                                            const PickErrorRule& rule) {
  std::vector<std::vector<double>> errors;
  errors.reserve(shots.size());
  for (std::size_t shot = 0; shot < shots.size(); ++shot) {
    std::vector<double> own(shots[shot].times.size(), 0.0);
    for (std::size_t i = 0; i < own.size(); ++i) {
      if (hasPick(shots[shot].times[i])) own[i] = sigmaOf(document.ttArray[shot], i, rule);
    }
    errors.push_back(std::move(own));
  }
  return errors;
}

std::vector<WeighedPick> weighedPicks(
    const std::vector<ShotArrivals>& shots, const std::vector<std::vector<double>>& errors,
    const std::vector<refractionDataStructure::layerStruct>& marks) {
  const PickErrorRule usual;
  std::vector<WeighedPick> picks;
  for (std::size_t shot = 0; shot < shots.size(); ++shot) {
    const ShotArrivals& arrivals = shots[shot];
    const auto* own = marksOf(marks, shot);
    if (own != nullptr && !own->enabled) continue;
    for (std::size_t i = 0; i < arrivals.times.size(); ++i) {
      const double time = arrivals.times[i];
      const double x = arrivals.receivers[i].x;
      if (!hasPick(time) || x == arrivals.shot.x) continue;
      const bool stated = shot < errors.size() && i < errors[shot].size() && errors[shot][i] > 0.0;
      const double sigma =
          stated ? errors[shot][i] : std::max(usual.floor, usual.share * arrivals.times[i]);
      picks.push_back({shot, i, arrivals.shot.x, x, time, sigma});
    }
  }
  return picks;
}

}  // namespace talvesk

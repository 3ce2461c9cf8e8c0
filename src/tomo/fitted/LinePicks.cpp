#include "tomo/fitted/LinePicks.h"

#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr double kOnePlace = 1e-5;  // of the line: closer positions are one
constexpr double kTiny = 1e-9;      // seconds and metres that no survey has, and whose squares
constexpr double kHuge = 1e9;       // can still be reckoned with

bool isReal(double value) {
  return value > kTiny && value < kHuge;
}

std::vector<double> placesOf(const FitData& data) {
  std::vector<double> all;
  for (const FitShot& shot : data.shots) {
    all.push_back(shot.source);
    all.insert(all.end(), shot.receivers.begin(), shot.receivers.end());
  }
  all.erase(
      std::remove_if(all.begin(), all.end(), [](double x) { return !(std::fabs(x) < kHuge); }),
      all.end());
  std::sort(all.begin(), all.end());
  std::vector<double> places;
  for (const double x : all) {
    if (places.empty() || x - places.back() > kOnePlace * (all.back() - all.front())) {
      places.push_back(x);
    }
  }
  return places;
}

std::size_t nearestOf(const std::vector<double>& places, double x) {
  const auto after = std::lower_bound(places.begin(), places.end(), x);
  if (after == places.begin()) return 0;
  const bool before = after == places.end() || x - *(after - 1) <= *after - x;
  return static_cast<std::size_t>(after - places.begin()) - (before ? 1 : 0);
}

}  // namespace

double surfaceElevation(const GridGeometry& geometry, double x) {
  const std::vector<double>& profile = geometry.surfaceProfile();
  const double place = x / geometry.aLato() * (geometry.nV() - 1);
  const double last = static_cast<double>(profile.size() - 1);
  if (!(place > 0.0)) return profile.front();
  if (place >= last) return profile.back();
  const auto i = static_cast<std::size_t>(place);
  return profile[i] + (place - static_cast<double>(i)) * (profile[i + 1] - profile[i]);
}

LinePicks linePicksOf(const FitData& data, const GridGeometry& geometry) {
  LinePicks line;
  line.positions = placesOf(data);
  line.gap = medianGap(line.positions);
  std::vector<double> sigmas;
  for (const FitShot& shot : data.shots) {
    for (std::size_t i = 0; i < shot.receivers.size(); ++i) {
      const FitPick& pick = data.picks[shot.firstPick + i];
      LinePick seen;
      seen.pick = shot.firstPick + i;
      seen.offset = std::fabs(shot.receivers[i] - shot.source);
      if (!isReal(seen.offset) || !isReal(pick.time) || !isReal(pick.sigma)) continue;
      seen.source = nearestOf(line.positions, shot.source);
      seen.receiver = nearestOf(line.positions, shot.receivers[i]);
      if (seen.source == seen.receiver) continue;
      seen.distance = std::hypot(seen.offset, surfaceElevation(geometry, shot.receivers[i]) -
                                                  surfaceElevation(geometry, shot.source));
      seen.time = pick.time;
      seen.sigma = pick.sigma;
      sigmas.push_back(pick.sigma);
      line.picks.push_back(seen);
    }
  }
  std::stable_sort(line.picks.begin(), line.picks.end(),
                   [](const LinePick& a, const LinePick& b) { return a.offset < b.offset; });
  line.sigma = medianOf(std::move(sigmas), 0.0);
  return line;
}

}  // namespace talvesk

#include "doctor/Placing.h"

#include <algorithm>
#include <cmath>

namespace talvesk::doctor {

double placeOf(const std::vector<Point2D>& geophones, double station) {
  const double last = static_cast<double>(geophones.size()) - 1.0;
  const double inside = std::clamp(station, 0.0, last);
  const auto left = std::min(static_cast<std::size_t>(inside), geophones.size() - 1);
  const std::size_t right = std::min(left + 1, geophones.size() - 1);
  const double share = inside - static_cast<double>(left);
  return geophones[left].x + share * (geophones[right].x - geophones[left].x);
}

std::vector<Point2D> reversed(std::vector<Point2D> geophones) {
  std::reverse(geophones.begin(), geophones.end());
  return geophones;
}

std::optional<bool> agrees(const ShotView& shot, const std::vector<Point2D>& geophones, double x) {
  using Side = SourceStation::Side;
  const SourceStation& station = shot.station;
  if (station.side == Side::kUnknown || geophones.size() < 3) return std::nullopt;
  if (station.side == Side::kInside) {
    const double spacing = spacingOf(geophones);
    return std::fabs(placeOf(geophones, station.station) - x) <=
           kStationTolerance * spacing * (1.0 + 1e-9) + 3.0 * station.error * spacing;
  }
  const double direction = geophones.back().x > geophones.front().x ? 1.0 : -1.0;
  if (station.side == Side::kBefore) {
    return (x - placeOf(geophones, station.first + kStationTolerance)) * direction <= 0.0;
  }
  return (x - placeOf(geophones, station.last - kStationTolerance)) * direction >= 0.0;
}

std::vector<Point2D> arrivalsOver(const ShotView& shot, const std::vector<Point2D>& geophones) {
  std::vector<Point2D> points;
  for (std::size_t t = 0; t < std::min(shot.onsets.size(), geophones.size()); ++t) {
    if (isClear(shot.onsets[t])) points.push_back({geophones[t].x, shot.onsets[t].time});
  }
  return points;
}

std::vector<Point2D> veeAround(const ShotView& shot, const std::vector<Point2D>& geophones,
                               double x) {
  if (shot.station.side != SourceStation::Side::kInside) return {};
  const double reach = 5.0 * spacingOf(geophones);
  const double top = shot.station.time;
  const double ends = top + 5.0 * shot.station.pace;
  return {{x - reach, ends}, {x, top}, {x + reach, ends}};
}

}  // namespace talvesk::doctor

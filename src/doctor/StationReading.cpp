#include "doctor/StationReading.h"

#include "doctor/Placing.h"

#include <algorithm>
#include <string>
#include <utility>

namespace talvesk::doctor {
namespace {

std::optional<Reading> readingOf(const Shots& shots, const std::vector<double>& coordinates,
                                 std::vector<double> places, double tolerance) {
  std::vector<double> inside;
  for (std::size_t i = 0; i < shots.size(); ++i) {
    if (shots[i]->station.side == SourceStation::Side::kInside) inside.push_back(places[i]);
  }
  const std::optional<StationLine> line = lineThrough(coordinates, inside, tolerance);
  if (!line) return std::nullopt;
  return Reading{*line, std::move(places), false};
}

}  // namespace

Shots insiders(const Shots& shots) {
  Shots inside;
  for (const ShotView* shot : shots) {
    if (shot->station.side == SourceStation::Side::kInside) inside.push_back(shot);
  }
  return inside;
}

std::vector<double> placesByArrivals(const Shots& inside) {
  std::vector<double> places;
  for (const ShotView* shot : inside) {
    places.push_back(placeOf(shot->geophones, shot->station.station));
  }
  return places;
}

std::map<std::size_t, Shots> byString(const Shots& shots) {
  std::map<std::size_t, Shots> strings;
  for (const ShotView* shot : shots) strings[shot->string].push_back(shot);
  return strings;
}

std::optional<Reading> claimedReading(const Shots& shots, const std::vector<double>& coordinates,
                                      double tolerance) {
  std::vector<double> places;
  for (const ShotView* shot : shots) places.push_back(shot->source.x);
  return readingOf(shots, coordinates, std::move(places), tolerance);
}

std::optional<Reading> bestReading(const Shots& shots, const std::vector<double>& coordinates,
                                   double tolerance) {
  std::optional<Reading> best = claimedReading(shots, coordinates, tolerance);
  std::vector<std::string> names;
  for (const ShotView* shot : shots) names.push_back(shot->name);
  for (std::vector<double>& places : positionsByName(names)) {
    std::optional<Reading> named = readingOf(shots, coordinates, std::move(places), tolerance);
    if (!named || (best && named->line.fitCount <= best->line.fitCount)) continue;
    best = std::move(named);
    best->byName = true;
  }
  return best;
}

double confidenceOf(const StationLine& line) {
  const auto fits = static_cast<double>(line.fitCount);
  return std::min(0.98, fits / static_cast<double>(line.fits.size()) * (1.0 - 1.0 / (fits + 1.0)));
}

}  // namespace talvesk::doctor

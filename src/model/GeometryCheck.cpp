#include "model/GeometryCheck.h"

#include "model/TomoDocument.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <set>
#include <utility>

namespace talvesk {
namespace {

/// Elevations of one place that differ by less agree, metres.
constexpr double kSameElevation = 0.01;
/// Part of the length of the line that a shot may lie above or below it.
constexpr double kSteepestShot = 0.25;

using Mistakes = std::vector<GeometryMistake>;

/// Adds a mistake unless it is about nobody.
void add(Mistakes& mistakes, GeometryMistake mistake) {
  if (mistake.geophones.empty() && mistake.shots.empty()) return;
  mistakes.push_back(std::move(mistake));
}

bool usableNumber(double value) {
  return std::fabs(value) <= kFarthestPosition;  // false for NaN
}

/// The distances that the geophones of all strings cover, and their elevations.
struct Line {
  double first = std::numeric_limits<double>::infinity();
  double last = -std::numeric_limits<double>::infinity();
  double lowest = std::numeric_limits<double>::infinity();
  double highest = -std::numeric_limits<double>::infinity();

  double length() const { return last - first; }
  bool known() const { return last > first; }
};

Line lineOf(const SurveyGeometry& geometry) {
  Line line;
  for (const GeophoneString& string : geometry.strings) {
    for (const GeometryPlace& place : string) {
      if (!isUsable(place)) continue;
      line.first = std::min(line.first, place.x);
      line.last = std::max(line.last, place.x);
      line.lowest = std::min(line.lowest, place.z);
      line.highest = std::max(line.highest, place.z);
    }
  }
  return line;
}

void checkPositions(const GeophoneString& string, int number, Mistakes& mistakes) {
  GeometryMistake missing;
  missing.string = number;
  for (std::size_t i = 0; i < string.size(); ++i) {
    if (!isUsable(string[i])) missing.geophones.push_back(i);
  }
  add(mistakes, missing);
}

void checkPlaces(const GeophoneString& string, int number, Mistakes& mistakes) {
  std::map<double, std::vector<std::size_t>> places;
  for (std::size_t i = 0; i < string.size(); ++i) {
    if (isUsable(string[i])) places[string[i].x].push_back(i);
  }
  for (const auto& [place, geophones] : places) {
    if (geophones.size() < 2) continue;
    GeometryMistake mistake;
    mistake.fault = GeometryFault::SamePlace;
    mistake.string = number;
    mistake.geophones = geophones;
    add(mistakes, mistake);
  }
}

void checkDirection(const GeophoneString& string, int number, Mistakes& mistakes) {
  std::vector<std::size_t> forward;
  std::vector<std::size_t> back;
  double last = std::numeric_limits<double>::quiet_NaN();
  for (std::size_t i = 0; i < string.size(); ++i) {
    if (!isUsable(string[i])) continue;
    if (string[i].x > last) forward.push_back(i);
    if (string[i].x < last) back.push_back(i);
    last = string[i].x;
  }
  GeometryMistake mistake;
  mistake.fault = GeometryFault::StepsBack;
  mistake.string = number;
  mistake.geophones = forward.size() < back.size() ? forward : back;
  add(mistakes, mistake);
}

void checkElevations(const SurveyGeometry& geometry, Mistakes& mistakes) {
  std::map<double, std::pair<int, double>> known;  // distance: string that had it first, elevation
  for (std::size_t s = 0; s < geometry.strings.size(); ++s) {
    std::map<int, GeometryMistake> byOther;
    for (std::size_t i = 0; i < geometry.strings[s].size(); ++i) {
      const GeometryPlace& place = geometry.strings[s][i];
      if (!isUsable(place)) continue;
      const auto [there, fresh] = known.emplace(place.x, std::pair(static_cast<int>(s), place.z));
      const auto [other, z] = there->second;
      if (fresh || other == static_cast<int>(s) || std::fabs(z - place.z) < kSameElevation)
        continue;
      byOther[other].geophones.push_back(i);
    }
    for (auto& [other, mistake] : byOther) {
      mistake.fault = GeometryFault::TwoElevations;
      mistake.string = static_cast<int>(s);
      mistake.otherString = other;
      mistakes.push_back(mistake);
    }
  }
}

void checkUse(const SurveyGeometry& geometry, Mistakes& mistakes) {
  const int count = static_cast<int>(geometry.strings.size());
  GeometryMistake lost;
  lost.fault = GeometryFault::NoString;
  std::map<std::pair<int, std::size_t>, std::vector<std::size_t>> differing;
  std::set<int> used;
  for (std::size_t i = 0; i < geometry.shots.size(); ++i) {
    const GeometryShot& shot = geometry.shots[i];
    if (shot.string < 0 || shot.string >= count) {
      lost.shots.push_back(i);
      continue;
    }
    used.insert(shot.string);
    const std::size_t geophones = geometry.strings[static_cast<std::size_t>(shot.string)].size();
    if (shot.traces != geophones) differing[{shot.string, shot.traces}].push_back(i);
  }
  add(mistakes, lost);
  for (const auto& [key, shots] : differing) {
    GeometryMistake mistake;
    mistake.fault = GeometryFault::CountDiffers;
    mistake.string = key.first;
    mistake.traces = key.second;
    mistake.shots = shots;
    add(mistakes, mistake);
  }
  for (int s = 0; s < count && !geometry.shots.empty(); ++s) {
    if (used.count(s) != 0 || geometry.strings[static_cast<std::size_t>(s)].empty()) continue;
    GeometryMistake mistake;
    mistake.fault = GeometryFault::StringUnused;
    mistake.string = s;
    mistakes.push_back(mistake);
  }
}

void checkShots(const SurveyGeometry& geometry, Mistakes& mistakes) {
  const Line line = lineOf(geometry);
  GeometryMistake missing;
  GeometryMistake far;
  far.fault = GeometryFault::ShotFarOff;
  GeometryMistake off;
  off.fault = GeometryFault::ShotOffSurface;
  for (std::size_t i = 0; i < geometry.shots.size(); ++i) {
    const GeometryPlace& place = geometry.shots[i].place;
    if (!isUsable(place)) {
      missing.shots.push_back(i);
      continue;
    }
    if (!line.known()) continue;
    const double beyond = std::max(line.first - place.x, place.x - line.last);
    if (beyond > line.length()) far.shots.push_back(i);
    const double above = std::max(line.lowest - place.z, place.z - line.highest);
    if (place.typed && above > kSteepestShot * line.length()) off.shots.push_back(i);
  }
  GeometryMistake buried;
  buried.fault = GeometryFault::ShotNotLevelled;
  buried.shots = shotsNotLevelled(geometry);
  for (const GeometryMistake& mistake : {missing, far, off, buried}) add(mistakes, mistake);
}

void checkWaves(const SurveyGeometry& geometry, Mistakes& mistakes) {
  GeometryMistake mixed;
  mixed.fault = GeometryFault::MixedWaves;
  bool fresh = false;
  for (std::size_t i = 0; i < geometry.shots.size(); ++i) {
    fresh = fresh || geometry.shots[i].pair != nullptr;
    if (!geometry.shots[i].isPair()) mixed.shots.push_back(i);
  }
  if (fresh) add(mistakes, mixed);
}

}  // namespace

bool isUsable(const GeometryPlace& place) {
  return usableNumber(place.x) && usableNumber(place.z);
}

Mistakes geometryMistakes(const SurveyGeometry& geometry) {
  Mistakes mistakes;
  for (std::size_t s = 0; s < geometry.strings.size(); ++s) {
    const GeophoneString& string = geometry.strings[s];
    const int number = static_cast<int>(s);
    if (string.empty()) {
      GeometryMistake empty;
      empty.fault = GeometryFault::EmptyString;
      empty.string = number;
      mistakes.push_back(empty);
    }
    checkPositions(string, number, mistakes);
    checkPlaces(string, number, mistakes);
    checkDirection(string, number, mistakes);
  }
  checkElevations(geometry, mistakes);
  checkShots(geometry, mistakes);
  checkUse(geometry, mistakes);
  checkWaves(geometry, mistakes);
  std::stable_partition(mistakes.begin(), mistakes.end(),
                        [](const GeometryMistake& mistake) { return mistake.blocks(); });
  return mistakes;
}

}  // namespace talvesk

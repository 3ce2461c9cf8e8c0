#include "model/SurveyedMatch.h"

#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr double kSameDistance = 1e-3;  ///< metres: strings that share a geophone
/// Share of the spacing that a distance in a table may be off.
constexpr double kDistanceReach = 0.1;
constexpr std::size_t kNoRow = SurveyedMatch::kNoRow;

bool standApart(const GeophoneString& string) {
  std::vector<double> x;
  for (const GeometryPlace& place : string) x.push_back(place.x);
  std::sort(x.begin(), x.end());
  const auto same = std::adjacent_find(x.begin(), x.end(),
                                       [](double a, double b) { return !(b - a > kSameDistance); });
  return same == x.end() &&
         std::all_of(x.begin(), x.end(), [](double v) { return std::isfinite(v); });
}

/// Stations that share a distance become one, in the sense that most strings run.
std::vector<LineStation> merged(std::vector<LineStation> stations, bool ascending) {
  std::stable_sort(stations.begin(), stations.end(),
                   [ascending](const LineStation& a, const LineStation& b) {
                     return ascending ? a.place.x < b.place.x : b.place.x < a.place.x;
                   });
  std::vector<LineStation> result;
  for (LineStation& station : stations) {
    if (!result.empty() && std::fabs(station.place.x - result.back().place.x) <= kSameDistance) {
      result.back().geophones.push_back(station.geophones.front());
    } else {
      result.push_back(std::move(station));
    }
  }
  return result;
}

/// Looks places up by their distance.
class Distances {
 public:
  explicit Distances(std::vector<double> x) {
    for (std::size_t i = 0; i < x.size(); ++i) {
      if (std::isfinite(x[i])) mSorted.emplace_back(x[i], i);
    }
    std::sort(mSorted.begin(), mSorted.end());
  }
  /// All within reach of the nearest one.
  std::vector<std::size_t> near(double x, double reach) const {
    std::vector<std::size_t> found;
    const auto after =
        std::lower_bound(mSorted.begin(), mSorted.end(), std::pair(x, std::size_t{0}));
    double nearest = reach;
    if (after != mSorted.end()) nearest = std::min(nearest, after->first - x);
    if (after != mSorted.begin()) nearest = std::min(nearest, x - (after - 1)->first);
    const auto least = std::pair(x - nearest - kSameDistance, std::size_t{0});
    for (auto at = std::lower_bound(mSorted.begin(), mSorted.end(), least);
         at != mSorted.end() && at->first <= x + nearest + kSameDistance; ++at) {
      found.push_back(at->second);
    }
    return found;
  }

 private:
  std::vector<std::pair<double, std::size_t>> mSorted;
};

class Matcher {
 public:
  Matcher(const std::vector<LineStation>& stations, const std::vector<GeometryShot>& shots)
      : mStations(stations),
        mShots(shots),
        mStationX(distancesOf(stations)),
        mShotX(distancesOf(shots)) {
    std::vector<double> x;
    for (const LineStation& station : stations) {
      if (std::isfinite(station.place.x)) x.push_back(station.place.x);
    }
    std::sort(x.begin(), x.end());
    mReach = kDistanceReach * medianGap(x);
    mMatch.rowOfStation.assign(stations.size(), kNoRow);
    mMatch.rowOfShot.assign(shots.size(), kNoRow);
  }

  SurveyedMatch match(const std::vector<SurveyedRow>& rows, StationsBy by) && {
    // Beside rows that are said to be geophones others are none: bench marks, corners of houses.
    mSaysGeophones = std::any_of(rows.begin(), rows.end(), [](const SurveyedRow& row) {
      return row.kind == SurveyedKind::kGeophone;
    });
    for (std::size_t i = 0; i < rows.size(); ++i) take(i, rows[i], by);
    return std::move(mMatch);
  }

 private:
  static std::vector<double> distancesOf(const std::vector<LineStation>& stations) {
    std::vector<double> x;
    for (const LineStation& station : stations) x.push_back(station.place.x);
    return x;
  }
  static std::vector<double> distancesOf(const std::vector<GeometryShot>& shots) {
    std::vector<double> x;
    for (const GeometryShot& shot : shots) x.push_back(shot.place.x);
    return x;
  }

  static std::vector<std::size_t> counted(const std::optional<double>& number, std::size_t count) {
    if (!number || *number < 1.0 || *number > static_cast<double>(count)) return {};
    if (*number != std::floor(*number)) return {};
    return {static_cast<std::size_t>(*number) - 1};
  }

  void take(std::size_t row, const SurveyedRow& what, StationsBy by) {
    std::vector<std::size_t> stations;
    std::vector<std::size_t> shots;
    const bool shot = what.kind == SurveyedKind::kShot;
    const bool other = what.kind == SurveyedKind::kStation && mSaysGeophones;
    if (other && by != StationsBy::kDistance) return mMatch.unused.push_back(row);
    if (by == StationsBy::kNumber) {
      (shot ? shots : stations) = counted(what.number, shot ? mShots.size() : mStations.size());
    } else if (by == StationsBy::kOrder) {
      std::size_t& next = shot ? mNextShot : mNextStation;
      if (next < (shot ? mShots.size() : mStations.size()))
        (shot ? shots : stations).push_back(next++);
    } else if (what.number) {
      if (!shot) stations = mStationX.near(*what.number, mReach);
      if (what.kind != SurveyedKind::kGeophone) shots = mShotX.near(*what.number, mReach);
    }
    if (stations.empty() && shots.empty()) return mMatch.unused.push_back(row);
    const bool first = give(row, stations, mMatch.rowOfStation);
    const bool firstOfShot = give(row, shots, mMatch.rowOfShot);
    if (!first && !firstOfShot) mMatch.twice.push_back(row);
  }

  static bool give(std::size_t row, const std::vector<std::size_t>& to,
                   std::vector<std::size_t>& rows) {
    bool given = false;
    for (const std::size_t i : to) {
      if (rows[i] != kNoRow) continue;
      rows[i] = row;
      given = true;
    }
    return given;
  }

  const std::vector<LineStation>& mStations;
  const std::vector<GeometryShot>& mShots;
  Distances mStationX;
  Distances mShotX;
  double mReach = 0.0;
  bool mSaysGeophones = false;
  std::size_t mNextStation = 0;
  std::size_t mNextShot = 0;
  SurveyedMatch mMatch;
};

}  // namespace

std::vector<LineStation> stationsOf(const SurveyGeometry& geometry) {
  std::vector<LineStation> stations;
  int sense = 0;
  for (std::size_t s = 0; s < geometry.strings.size(); ++s) {
    const GeophoneString& string = geometry.strings[s];
    for (std::size_t i = 0; i < string.size(); ++i) {
      stations.push_back({{{s, i}}, string[i].point()});
    }
    if (!string.empty()) sense += string.back().x < string.front().x ? -1 : 1;
  }
  const bool apart = std::all_of(geometry.strings.begin(), geometry.strings.end(), standApart);
  if (geometry.strings.size() < 2 || !apart) return stations;
  return merged(std::move(stations), sense >= 0);
}

std::size_t SurveyedMatch::stationCount() const {
  return static_cast<std::size_t>(std::count_if(rowOfStation.begin(), rowOfStation.end(),
                                                [](std::size_t row) { return row != kNoRow; }));
}

SurveyedMatch matchRows(const std::vector<SurveyedRow>& rows, StationsBy by,
                        const std::vector<LineStation>& stations,
                        const std::vector<GeometryShot>& shots) {
  return Matcher(stations, shots).match(rows, by);
}

StationsBy proposeStations(const std::vector<SurveyedRow>& rows, const SurveyGeometry& geometry) {
  const std::vector<LineStation> stations = stationsOf(geometry);
  const auto fits = [&](StationsBy by) {
    return matchRows(rows, by, stations, geometry.shots).stationCount();
  };
  const std::size_t byNumber = fits(StationsBy::kNumber);
  const std::size_t byDistance = fits(StationsBy::kDistance);
  if (std::max(byNumber, byDistance) < 2) return StationsBy::kOrder;
  return byDistance > byNumber ? StationsBy::kDistance : StationsBy::kNumber;
}

}  // namespace talvesk

#include "model/SurveyedPositions.h"

#include "model/ElevationProfile.h"
#include "model/MapLine.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {
namespace {

constexpr std::size_t kNoRow = SurveyedPoint::kNoRow;
constexpr double kNotKnown = std::numeric_limits<double>::quiet_NaN();

double toMillimetre(double metres) {
  return std::round(metres * 1000.0) / 1000.0;
}

/// Carries distances of before over to those of after, by the points that have both.
class Bridge {
 public:
  /// \param sense 1, or -1 where distances count the other way
  Bridge(const std::vector<SurveyedPoint>& points, double sense) : mSense(sense) {
    for (const SurveyedPoint& point : points) {
      const bool both = point.row != kNoRow && std::isfinite(point.before.x);
      if (both) mPiers.push_back({point.before.x, point.after.x});
    }
    std::stable_sort(mPiers.begin(), mPiers.end(),
                     [](const Point2D& a, const Point2D& b) { return a.x < b.x; });
    const auto same = [](const Point2D& a, const Point2D& b) { return a.x == b.x; };
    mPiers.erase(std::unique(mPiers.begin(), mPiers.end(), same), mPiers.end());
  }

  bool reaches(double x) const { return mPiers.size() > 1 && std::isfinite(x); }
  double at(double x) const {
    if (x <= mPiers.front().x) return mPiers.front().z + mSense * (x - mPiers.front().x);
    if (x >= mPiers.back().x) return mPiers.back().z + mSense * (x - mPiers.back().x);
    const auto next = std::upper_bound(mPiers.begin(), mPiers.end(), x,
                                       [](double d, const Point2D& pier) { return d < pier.x; });
    const Point2D& a = *(next - 1);
    return a.z + (x - a.x) / (next->x - a.x) * (next->z - a.z);
  }

 private:
  std::vector<Point2D> mPiers;  ///< x before, z after
  double mSense;
};

class Placing {
 public:
  Placing(const std::vector<SurveyedRow>& rows, const SurveyedOptions& options,
          const SurveyGeometry& geometry)
      : mRows(rows), mOptions(options), mStations(stationsOf(geometry)) {
    mOutcome.geometry = geometry;
    const SurveyedMatch match = matchRows(rows, options.stations, mStations, geometry.shots);
    for (std::size_t i = 0; i < mStations.size(); ++i) {
      mOutcome.points.push_back(
          {false, i, match.rowOfStation[i], kNotKnown, mStations[i].place, mStations[i].place});
    }
    for (std::size_t i = 0; i < geometry.shots.size(); ++i) {
      const Point2D place = geometry.shots[i].place.point();
      mOutcome.points.push_back({true, i, match.rowOfShot[i], kNotKnown, place, place});
    }
    tell(SurveyedFault::kRowUnused, {}, match.unused);
    tell(SurveyedFault::kRowTwice, {}, match.twice);
  }

  Status place(SurveyedOutcome& outcome) && {
    Status status = layAxis();
    if (status.ok()) status = measure();
    if (!status.ok()) return status;
    count();
    raise();
    placeTheRest();
    summarize();
    fillGeometry();
    if (mOptions.epsg > 0) fillMap();
    std::vector<MapPoint> places;
    for (const SurveyedPoint& point : mOutcome.points) {
      places.push_back(point.row == kNoRow ? MapPoint{} : mRows[point.row].place);
    }
    findDoubtful(places, mOptions.shape, mOutcome);
    outcome = std::move(mOutcome);
    return {};
  }

 private:
  void tell(SurveyedFault fault, std::vector<std::size_t> points,
            std::vector<std::size_t> rows = {}) {
    if (points.empty() && rows.empty()) return;
    mOutcome.findings.push_back({fault, std::move(points), std::move(rows)});
  }

  template <class Function>
  void forSurveyed(Function function) {
    for (std::size_t i = 0; i < mOutcome.points.size(); ++i) {
      if (mOutcome.points[i].row != kNoRow) function(i, mOutcome.points[i]);
    }
  }

  Status layAxis() {
    std::vector<MapPoint> places;
    forSurveyed([&](std::size_t, const SurveyedPoint& point) {
      if (!point.shot) places.push_back(mRows[point.row].place);
    });
    if (places.size() < 2) {
      return Status::failure(
          Message::tr("fewer than two geophones of the survey have a row in the table"));
    }
    Status status = MapAxis::through(places, mOptions.shape, mOutcome.axis);
    if (!status.ok()) return status;
    mAlong.assign(mOutcome.points.size(), kNotKnown);
    std::size_t geophone = 0;
    forSurveyed([&](std::size_t i, SurveyedPoint& point) {
      const MapAxis::Foot foot = point.shot ? mOutcome.axis.footOf(mRows[point.row].place)
                                            : mOutcome.axis.geophones()[geophone++];
      mAlong[i] = foot.along;
      point.across = foot.across;
    });
    return {};
  }

  /// Lengths along the line in place of distances of the map, where they are asked for.
  Status measure() {
    mLength = mAlong;
    if (mOptions.length == LengthAlong::kHorizontal) return {};
    std::vector<Point2D> ground;
    double least = std::numeric_limits<double>::infinity();
    double most = -least;
    std::size_t lacking = 0;
    forSurveyed([&](std::size_t i, const SurveyedPoint& point) {
      const double z = mRows[point.row].elevation;
      if (!point.shot && !std::isfinite(z)) ++lacking;
      if (!point.shot) {
        least = std::min(least, mAlong[i]);
        most = std::max(most, mAlong[i]);
      }
      // Shots between geophones may be off the line or in holes; those beyond its ends are all
      // that is known of the ground there.
      const bool counts = !point.shot || mAlong[i] < least || mAlong[i] > most;
      if (counts && std::isfinite(z)) ground.push_back({mAlong[i], z});
    });
    if (lacking > 0) {
      return Status::failure(
          Message::tr("lengths along the ground need the elevation of every geophone; the table "
                      "lacks %1")
              .arg(lacking));
    }
    const GroundLength length(std::move(ground));
    forSurveyed([&](std::size_t i, const SurveyedPoint&) { mLength[i] = length.at(mAlong[i]); });
    return {};
  }

  /// Distances from the start on, in the sense that they have now.
  void count() {
    double first = kNotKnown;
    double last = kNotKnown;
    double start = std::numeric_limits<double>::infinity();
    bool any = false;
    forSurveyed([&](std::size_t, const SurveyedPoint& point) {
      if (point.shot) return;
      if (!any) first = point.before.x;
      any = true;
      last = point.before.x;
      if (std::isfinite(point.before.x)) start = std::min(start, point.before.x);
    });
    mTurned = mOptions.fromOtherEnd;
    mSense = (last < first) != mTurned ? -1.0 : 1.0;
    mLeast = std::numeric_limits<double>::infinity();
    forSurveyed([&](std::size_t i, const SurveyedPoint& point) {
      if (!point.shot) mLeast = std::min(mLeast, mSense * mLength[i]);
    });
    mStart = mOptions.start.value_or(std::isfinite(start) ? start : 0.0);
    forSurveyed([&](std::size_t i, SurveyedPoint& point) {
      point.after.x = toMillimetre(mStart + mSense * mLength[i] - mLeast);
    });
  }

  /// Elevations as surveyed, and between them where some are missing.
  void raise() {
    std::vector<Point2D> known;
    std::vector<Point2D> ofShots;
    std::vector<std::size_t> lacking;
    forSurveyed([&](std::size_t i, SurveyedPoint& point) {
      const double z = mRows[point.row].elevation;
      if (!std::isfinite(z)) return lacking.push_back(i);
      point.after.z = toMillimetre(z);
      (point.shot ? ofShots : known).push_back(point.after);
    });
    if (known.empty()) known = std::move(ofShots);
    if (known.empty()) return;
    mGround.emplace(std::move(known));
    for (const std::size_t i : lacking) {
      mOutcome.points[i].after.z = mGround->at(mOutcome.points[i].after.x);
    }
    tell(SurveyedFault::kNoElevation, std::move(lacking));
  }

  void placeTheRest() {
    const Bridge bridge(mOutcome.points, mTurned ? -1.0 : 1.0);
    std::vector<std::size_t> between;
    std::vector<std::size_t> left;
    for (std::size_t i = 0; i < mOutcome.points.size(); ++i) {
      SurveyedPoint& point = mOutcome.points[i];
      if (point.row != kNoRow) continue;
      const bool reached = bridge.reaches(point.before.x);
      (reached ? between : left).push_back(i);
      if (!reached) continue;
      point.after.x = toMillimetre(bridge.at(point.before.x));
      if (mGround) point.after.z = mGround->at(point.after.x);
    }
    tell(SurveyedFault::kBetween, std::move(between));
    tell(SurveyedFault::kLeft, std::move(left));
  }

  void summarize() {
    double squares = 0.0;
    std::vector<double> x;
    forSurveyed([&](std::size_t, const SurveyedPoint& point) {
      if (point.shot) return;
      squares += point.across * point.across;
      x.push_back(point.after.x);
    });
    mOutcome.rmsAcross = std::sqrt(squares / static_cast<double>(x.size()));
    std::sort(x.begin(), x.end());
    mOutcome.spacing = medianGap(x);
  }

  void fillGeometry() {
    for (const SurveyedPoint& point : mOutcome.points) {
      const auto put = [&](GeometryPlace& place) {
        place = {point.after.x, point.after.z, place.typed || mGround.has_value()};
      };
      if (point.shot) {
        put(mOutcome.geometry.shots[point.index].place);
        continue;
      }
      for (const auto& [string, channel] : mStations[point.index].geophones) {
        put(mOutcome.geometry.strings[string][channel]);
      }
    }
  }

  void fillMap() {
    double first = std::numeric_limits<double>::infinity();
    double last = -first;
    std::vector<MapVertex> course;
    for (std::size_t i = 0; i < mOutcome.points.size(); ++i) {
      const SurveyedPoint& point = mOutcome.points[i];
      if (point.shot || !std::isfinite(point.after.x)) continue;
      first = std::min(first, point.after.x);
      last = std::max(last, point.after.x);
      if (point.row != kNoRow) course.push_back({point.after.x, mOutcome.axis.at(mAlong[i])});
    }
    course = ascending(std::move(course));
    if (course.size() < 2) return;
    const LinePlacement placement({}, course);
    if (first < course.front().distance) {
      course.insert(course.begin(), {first, placement.at(first)});
    }
    if (last > course.back().distance) course.push_back({last, placement.at(last)});
    for (MapVertex& vertex : course) vertex.distance -= first;
    const MapPoint& a = course.front().place;
    const MapPoint& b = course.back().place;
    mOutcome.map.emplace();
    mOutcome.map->ends = {mOptions.epsg, a.easting, b.easting, a.northing, b.northing};
    const bool straight = mOptions.shape != LineShape::kBent || course.size() == 2;
    const bool toldByEnds = straight && mOptions.length == LengthAlong::kHorizontal;
    if (!toldByEnds) mOutcome.map->vertices = std::move(course);
  }

  static std::vector<MapVertex> ascending(std::vector<MapVertex> vertices) {
    std::stable_sort(vertices.begin(), vertices.end(), [](const MapVertex& a, const MapVertex& b) {
      return a.distance < b.distance;
    });
    const auto same = [](const MapVertex& a, const MapVertex& b) {
      return a.distance == b.distance;
    };
    vertices.erase(std::unique(vertices.begin(), vertices.end(), same), vertices.end());
    return vertices;
  }

  const std::vector<SurveyedRow>& mRows;
  const SurveyedOptions& mOptions;
  std::vector<LineStation> mStations;
  SurveyedOutcome mOutcome;
  std::vector<double> mAlong;   ///< of the points, on the axis
  std::vector<double> mLength;  ///< of the points, as it is to be measured
  std::optional<ElevationProfile> mGround;
  bool mTurned = false;
  double mSense = 1.0;  ///< of distances on the axis
  double mLeast = 0.0;
  double mStart = 0.0;
};

}  // namespace

Status placeSurveyed(const std::vector<SurveyedRow>& rows, const SurveyedOptions& options,
                     const SurveyGeometry& geometry, SurveyedOutcome& outcome) {
  return Placing(rows, options, geometry).place(outcome);
}

bool applySurveyed(const SurveyedOutcome& outcome, TomoDocument& document) {
  bool changed = applyGeometry(outcome.geometry, document);
  if (!outcome.map) return changed;
  if (!document.map->geoCoord_isSet || !(document.map->geoCoord == outcome.map->ends)) {
    document.map = MapPosition{outcome.map->ends, true};
    changed = true;
  }
  if (!(courseOf(document) == outcome.map->vertices)) {
    document.line.edit().course = *outcome.map;
    changed = true;
  }
  return changed;
}

}  // namespace talvesk

#include "model/MapAxis.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace talvesk {
namespace {

constexpr double kSamePlace = 1e-3;  ///< metres: no survey is finer

double distanceOf(const MapPoint& a, const MapPoint& b) {
  return std::hypot(b.easting - a.easting, b.northing - a.northing);
}

/// The straight line with the least sum of squared distances: the main axis of the scatter.
std::vector<MapPoint> fitted(const std::vector<MapPoint>& places) {
  MapPoint centre;
  for (const MapPoint& place : places) {
    centre.easting += place.easting;
    centre.northing += place.northing;
  }
  const auto count = static_cast<double>(places.size());
  centre = {centre.easting / count, centre.northing / count};
  double ee = 0.0;
  double en = 0.0;
  double nn = 0.0;
  for (const MapPoint& place : places) {
    const double e = place.easting - centre.easting;
    const double n = place.northing - centre.northing;
    ee += e * e;
    en += e * n;
    nn += n * n;
  }
  const double angle = 0.5 * std::atan2(2.0 * en, ee - nn);
  const double east = std::cos(angle);
  const double north = std::sin(angle);
  const auto foot = [&](const MapPoint& place) {
    const double along =
        east * (place.easting - centre.easting) + north * (place.northing - centre.northing);
    return MapPoint{centre.easting + along * east, centre.northing + along * north};
  };
  return {foot(places.front()), foot(places.back())};
}

}  // namespace

MapAxis::MapAxis(std::vector<MapPoint> corners) : mCorners(std::move(corners)) {
  for (std::size_t i = 0; i < mCorners.size(); ++i) {
    mAlong.push_back(i == 0 ? 0.0 : mAlong.back() + distanceOf(mCorners[i - 1], mCorners[i]));
  }
}

Status MapAxis::through(const std::vector<MapPoint>& geophones, LineShape shape, MapAxis& axis) {
  if (geophones.size() < 2) {
    return Status::failure(Message::tr("two geophones at least need easting and northing"));
  }
  std::vector<MapPoint> corners;
  std::vector<std::size_t> cornerOf;  // of a bent line
  if (shape == LineShape::kBent) {
    for (const MapPoint& place : geophones) {
      const bool repeats = !corners.empty() && distanceOf(corners.back(), place) <= kSamePlace;
      if (!repeats) corners.push_back(place);
      cornerOf.push_back(corners.size() - 1);
    }
  } else if (shape == LineShape::kFitted) {
    corners = fitted(geophones);
  } else {
    corners = {geophones.front(), geophones.back()};
  }
  if (corners.size() < 2 || distanceOf(corners[0], corners[1]) <= kSamePlace) {
    return Status::failure(
        Message::tr("the first and the last geophone are at one place on the map, which gives the "
                    "line no direction"));
  }
  axis = MapAxis(std::move(corners));
  for (std::size_t i = 0; i < geophones.size(); ++i) {
    axis.mGeophones.push_back(cornerOf.empty() ? axis.footOf(geophones[i])
                                               : Foot{axis.mAlong[cornerOf[i]], 0.0});
  }
  return {};
}

MapAxis::Foot MapAxis::footOf(const MapPoint& place) const {
  Foot best;
  double nearest = std::numeric_limits<double>::infinity();
  for (std::size_t i = 1; i < mCorners.size(); ++i) {
    const MapPoint& a = mCorners[i - 1];
    const double length = mAlong[i] - mAlong[i - 1];
    const double east = (mCorners[i].easting - a.easting) / length;
    const double north = (mCorners[i].northing - a.northing) / length;
    const double e = place.easting - a.easting;
    const double n = place.northing - a.northing;
    double along = east * e + north * n;
    if (i > 1) along = std::max(along, 0.0);
    if (i + 1 < mCorners.size()) along = std::min(along, length);
    const double away = std::hypot(e - along * east, n - along * north);
    if (away >= nearest) continue;
    nearest = away;
    const bool right = e * north - n * east >= 0.0;
    best = {mAlong[i - 1] + along, right ? away : -away};
  }
  return best;
}

MapPoint MapAxis::at(double along) const {
  const auto next = std::upper_bound(mAlong.begin() + 1, mAlong.end() - 1, along);
  const auto i = static_cast<std::size_t>(next - mAlong.begin());
  const double share = (along - mAlong[i - 1]) / (mAlong[i] - mAlong[i - 1]);
  const MapPoint& a = mCorners[i - 1];
  const MapPoint& b = mCorners[i];
  return {a.easting + share * (b.easting - a.easting),
          a.northing + share * (b.northing - a.northing)};
}

GroundLength::GroundLength(std::vector<Point2D> ground) {
  std::stable_sort(ground.begin(), ground.end(),
                   [](const Point2D& a, const Point2D& b) { return a.x < b.x; });
  double height = 0.0;
  for (const Point2D& point : ground) {
    if (mAlong.empty()) {
      mAlong.push_back(point.x);
      mLength.push_back(0.0);
    } else if (point.x - mAlong.back() > kSamePlace) {
      mLength.push_back(mLength.back() + std::hypot(point.x - mAlong.back(), point.z - height));
      mAlong.push_back(point.x);
    } else {
      continue;  // of two points at one distance the first counts: the ground has no steps
    }
    height = point.z;
  }
}

double GroundLength::at(double along) const {
  if (along <= mAlong.front()) return along - mAlong.front();
  if (along >= mAlong.back()) return mLength.back() + (along - mAlong.back());
  const auto i = static_cast<std::size_t>(std::upper_bound(mAlong.begin(), mAlong.end(), along) -
                                          mAlong.begin());
  const double share = (along - mAlong[i - 1]) / (mAlong[i] - mAlong[i - 1]);
  return mLength[i - 1] + share * (mLength[i] - mLength[i - 1]);
}

}  // namespace talvesk

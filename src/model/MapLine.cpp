#include "model/MapLine.h"

#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace talvesk {

LinePlacement::LinePlacement(const geographicsCoord& ends, std::vector<MapVertex> course)
    : mFirst{ends.mEastFstGeoph, ends.mNorthFstGeoph}, mCourse(std::move(course)) {
  const double east = ends.mEastLstGeoph - ends.mEastFstGeoph;
  const double north = ends.mNorthLstGeoph - ends.mNorthFstGeoph;
  mLength = std::sqrt(east * east + north * north);
  // A line along an axis has no component across it, and one without a length has none at all.
  mEast = east == 0.0 ? 0.0 : east / mLength;
  mNorth = north == 0.0 ? 0.0 : north / mLength;
  if (!mCourse.empty()) mLength = mCourse.back().distance;
}

std::vector<MapVertex>::const_iterator LinePlacement::pieceEnd(double distance) const {
  // Before the first vertex and beyond the last one it goes on as it does there.
  return std::upper_bound(mCourse.begin() + 1, mCourse.end() - 1, distance,
                          [](double d, const MapVertex& vertex) { return d < vertex.distance; });
}

MapPoint LinePlacement::direction(double distance) const {
  if (mCourse.empty()) return {mEast, mNorth};
  const auto end = pieceEnd(distance);
  const double east = end->place.easting - (end - 1)->place.easting;
  const double north = end->place.northing - (end - 1)->place.northing;
  const double length = std::hypot(east, north);
  return length > 0.0 ? MapPoint{east / length, north / length} : MapPoint{};
}

MapPoint LinePlacement::at(double distance) const {
  if (mCourse.empty())
    return {mFirst.easting + mEast * distance, mFirst.northing + mNorth * distance};
  const auto next = pieceEnd(distance);
  const MapVertex& a = *(next - 1);
  const MapVertex& b = *next;
  const double share = (distance - a.distance) / (b.distance - a.distance);
  return {a.place.easting + share * (b.place.easting - a.place.easting),
          a.place.northing + share * (b.place.northing - a.place.northing)};
}

const std::vector<MapVertex>& courseOf(const TomoDocument& document) {
  static const std::vector<MapVertex> kNone;
  const MapCourse& course = document.line->course;
  return document.map->geoCoord_isSet && document.map->geoCoord == course.ends ? course.vertices
                                                                               : kNone;
}

bool isCourse(const std::vector<MapVertex>& vertices) {
  if (vertices.empty()) return true;
  if (vertices.size() < 2) return false;
  double before = -std::numeric_limits<double>::infinity();
  return std::all_of(vertices.begin(), vertices.end(), [&](const MapVertex& vertex) {
    const bool ascends = vertex.distance > before;
    before = vertex.distance;
    return ascends && std::isfinite(vertex.distance) && std::isfinite(vertex.place.easting) &&
           std::isfinite(vertex.place.northing);
  });
}

}  // namespace talvesk

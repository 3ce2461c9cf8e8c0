#pragma once

#include "model/GeographicsCoord.h"

#include <vector>

namespace talvesk {

/// Easting and northing, metres.
struct MapPoint {
  double easting = 0.0;
  double northing = 0.0;
};

/// Where the line is at a distance.
struct MapVertex {
  double distance = 0.0;  ///< from the first geophone along the line, metres
  MapPoint place;
};

/// The way of a line on the map where it is not straight, or its distances are not those of the
/// map. It holds for the map position that it was made with; once somebody sets another, the line
/// lies straight between those ends.
struct MapCourse {
  geographicsCoord ends;
  /// From the first geophone to the last one by ascending distance, two at least; none of a line
  /// that is told by its ends.
  std::vector<MapVertex> vertices;
};

inline bool operator==(const geographicsCoord& a, const geographicsCoord& b) {
  return a.CRS == b.CRS && a.mEastFstGeoph == b.mEastFstGeoph &&
         a.mEastLstGeoph == b.mEastLstGeoph && a.mNorthFstGeoph == b.mNorthFstGeoph &&
         a.mNorthLstGeoph == b.mNorthLstGeoph;
}

inline bool operator==(const MapVertex& a, const MapVertex& b) {
  return a.distance == b.distance && a.place.easting == b.place.easting &&
         a.place.northing == b.place.northing;
}

inline bool operator==(const MapCourse& a, const MapCourse& b) {
  return a.ends == b.ends && a.vertices == b.vertices;
}

}  // namespace talvesk

#pragma once

#include "base/Status.h"
#include "export/LinePlacement.h"

#include <cstdint>
#include <string>

namespace talvesk {

/// Where a survey lies on the map, in easting and northing of its own reference system: distances
/// are laid off from the first geophone towards the last one, without stretching, or by its course.
class LineOnMap {
 public:
  /// Check status() before use.
  explicit LineOnMap(const TomoDocument& document);

  /// Why there is none: no coordinates, no geophones, or what keeps a line off the globe. A system
  /// that PROJ cannot build is no reason: nothing is transformed.
  const Status& status() const { return mStatus; }

  MapPoint at(double x) const { return mPlacement.at(x - mFirstX); }  ///< \param x survey abscissa
  /// The unit vector along the line there.
  MapPoint direction(double x) const { return mPlacement.direction(x - mFirstX); }
  std::int32_t epsg() const { return mEpsg; }
  const std::string& systemName() const { return mSystemName; }  ///< empty where PROJ has none

 private:
  LinePlacement mPlacement;
  Status mStatus;
  double mFirstX = 0.0;
  std::int32_t mEpsg = 0;
  std::string mSystemName;
};

}  // namespace talvesk

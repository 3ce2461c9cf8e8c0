#pragma once

#include <cstdint>

namespace talvesk {

/// Where the line lies on the globe: projected coordinates of its first and last geophone.
struct geographicsCoord {
  std::int32_t CRS = 0;         ///< EPSG code of the projected system; 0 is unset
  double mEastFstGeoph = 0.0;   ///< easting of the first geophone, metres
  double mEastLstGeoph = 0.0;   ///< easting of the last geophone, metres
  double mNorthFstGeoph = 0.0;  ///< northing of the first geophone, metres
  double mNorthLstGeoph = 0.0;  ///< northing of the last geophone, metres
};

/// Where the line lies on the map.
struct MapPosition {
  geographicsCoord geoCoord;
  bool geoCoord_isSet = false;
};

}  // namespace talvesk

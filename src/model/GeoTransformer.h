#pragma once

#include "base/Status.h"
#include "model/MapCourse.h"

#include <cstdint>
#include <memory>
#include <string>

struct PJconsts;  // of the PROJ library

namespace talvesk {

/// A place on the globe, degrees on WGS84.
struct LonLat {
  double longitude = 0.0;
  double latitude = 0.0;
};

/// What can keep a line off the globe; the code of a status, so that a window can say it in the
/// language of its user.
enum GeoProblem : int {
  kUnknownSystem = 1,  ///< PROJ knows no reference system of that code
  kNotProjected,       ///< it has no easting and northing
  kNotInMetres,        ///< its coordinates are in another unit
  kCountsBackward,     ///< westward or southward
  kNoTransformation,   ///< to longitude and latitude
  kNotNumbers,         ///< coordinates of the geophones
  kSameEnds,           ///< first and last geophone in one place
  kOutside,            ///< the system has no place for the coordinates
};

/// Turns easting and northing of a projected reference system into longitude and latitude. Uses
/// PROJ's default context: for one thread of the program at a time.
class GeoTransformer {
 public:
  /// Prints "PROJ" on the console's error stream. Check status() before use. Refused beside what
  /// PROJ does not know: systems that are not projected, that count in another unit than the metre,
  /// and that count westward or southward from their origin, for a line entered as easting and
  /// northing would land in the wrong place without a word.
  /// \param epsg code of the system
  explicit GeoTransformer(std::int32_t epsg);
  ~GeoTransformer();
  GeoTransformer(GeoTransformer&&) noexcept;
  GeoTransformer& operator=(GeoTransformer&&) noexcept;

  const Status& status() const { return mStatus; }  ///< codes are of GeoProblem
  /// Of the reference system, as its register has it ("WGS 84 / UTM zone 32N"); empty for a code
  /// that PROJ does not know.
  const std::string& systemName() const { return mName; }

  /// Easting before northing and longitude before latitude, whatever order the systems have by
  /// their definition. False, with `out` as it was, without a transformation and for a point that
  /// the system cannot place.
  /// \param easting, northing metres
  bool transform(double easting, double northing, LonLat& out) const;
  /// The way back: false, with `out` as it was, without a transformation and for a place that the
  /// system does not reach.
  bool project(const LonLat& place, MapPoint& out) const;

 private:
  struct Release {
    void operator()(PJconsts* object) const;
  };
  using Object = std::unique_ptr<PJconsts, Release>;

  Status examine(const Object& system, const std::string& code);
  Status build(const std::string& code);

  std::string mName;
  Object mTransformation;
  Status mStatus;
};

/// The well-known text (version 1, as OGC 01-009) of a reference system; empty for a code that PROJ
/// does not know. For one thread of the program at a time.
std::string wellKnownText(std::int32_t epsg);

/// The EPSG code of the UTM zone of a place, on WGS84; 0 for what is no place on the globe. Zones
/// are those of the maps, wider about Norway and Svalbard.
std::int32_t utmSystemOf(const LonLat& place);

}  // namespace talvesk

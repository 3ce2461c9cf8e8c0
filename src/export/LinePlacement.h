#pragma once

#include "base/Status.h"
#include "model/GeoTransformer.h"
#include "model/MapLine.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;

/// What users are told when the line has no place on the globe.
inline Message noGeographicCoordinates() {
  return Message::tr("Geographical coordinates are missing, data cannot be exported in KML format");
}

/// Survey abscissas of the first and the last geophone: the least and the greatest of all strings,
/// whatever the order of channels. Metres.
struct LineEnds {
  double first = 0.0;
  double last = 0.0;
  double length() const { return last - first; }
};

/// None without a geophone whose position is known.
std::optional<LineEnds> lineEnds(const TomoDocument& document);

/// Where a line lies on the globe, for as long as its export or dialog takes.
class LineOnGlobe {
 public:
  /// Builds the transformation. Check status() before use.
  explicit LineOnGlobe(const geographicsCoord& ends, std::vector<MapVertex> course = {});
  /// With the transformation of `ends.CRS` that there is already.
  LineOnGlobe(std::shared_ptr<const GeoTransformer> transformer, const geographicsCoord& ends,
              std::vector<MapVertex> course = {});

  /// Why there is none: an unusable reference system, ends that are no numbers or the same, or ends
  /// that the system cannot place. A system that PROJ cannot build is no reason, see below.
  const Status& status() const { return mStatus; }  ///< codes are of GeoProblem
  /// Why easting and northing are given out in place of longitude and latitude; ok when they are
  /// not. A line whose system is not known to this machine's PROJ, which may be older than the
  /// project, is still drawn where it says it is.
  const Status& untransformed() const { return mUntransformed; }
  const std::string& systemName() const { return mTransformer->systemName(); }
  double length() const { return mPlacement.length(); }  ///< metres
  LonLat first() const { return mFirst; }                ///< geophone
  LonLat last() const { return mLast; }                  ///< geophone

  /// False, with `out` as it was, for a distance that cannot be placed.
  /// \param distance from the first geophone, metres
  bool locate(double distance, LonLat& out) const;

 private:
  std::shared_ptr<const GeoTransformer> mTransformer;
  LinePlacement mPlacement;
  Status mStatus;
  Status mUntransformed;
  LonLat mFirst;
  LonLat mLast;
};

/// Tells the console's error stream when a file gets easting and northing as they are.
void tellUntransformed(const std::string& path, const LineOnGlobe& line);

}  // namespace talvesk

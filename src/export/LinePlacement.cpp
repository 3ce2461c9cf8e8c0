#include "export/LinePlacement.h"

#include "base/Console.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <ostream>
#include <utility>

namespace talvesk {

std::optional<LineEnds> lineEnds(const TomoDocument& document) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  LineEnds ends{kInfinity, -kInfinity};
  for (const auto& string : document.line->goephonesStringSet) {
    for (const Point2D& geophone : string) {
      if (!std::isfinite(geophone.x)) continue;
      ends.first = std::min(ends.first, geophone.x);
      ends.last = std::max(ends.last, geophone.x);
    }
  }
  if (ends.first > ends.last) return std::nullopt;
  return ends;
}

LineOnGlobe::LineOnGlobe(const geographicsCoord& ends, std::vector<MapVertex> course)
    : LineOnGlobe(std::make_shared<const GeoTransformer>(ends.CRS), ends, std::move(course)) {}

LineOnGlobe::LineOnGlobe(std::shared_ptr<const GeoTransformer> transformer,
                         const geographicsCoord& ends, std::vector<MapVertex> course)
    : mTransformer(std::move(transformer)),
      mPlacement(ends, std::move(course)),
      mStatus(mTransformer->status()) {
  if (mStatus.code() == kUnknownSystem || mStatus.code() == kNoTransformation) {
    std::swap(mStatus, mUntransformed);
  }
  if (!mStatus.ok()) return;
  if (!std::isfinite(mPlacement.length())) {
    mStatus = Status::failure(Message::tr("the coordinates of the geophones are not numbers"),
                              kNotNumbers);
  } else if (!(mPlacement.length() > 0.0)) {
    mStatus = Status::failure(
        Message::tr("the first and the last geophone have the same coordinates"), kSameEnds);
  } else if (!locate(0.0, mFirst) || !locate(mPlacement.length(), mLast)) {
    mStatus =
        Status::failure(Message::tr("the coordinates of the geophones lie outside of EPSG:%1 (%2)")
                            .arg(ends.CRS)
                            .arg(systemName()),
                        kOutside);
  }
}

bool LineOnGlobe::locate(double distance, LonLat& out) const {
  const MapPoint place = mPlacement.at(distance);
  if (!mUntransformed.ok()) {
    out = {place.easting, place.northing};
    return true;
  }
  return mTransformer->transform(place.easting, place.northing, out);
}

void tellUntransformed(const std::string& path, const LineOnGlobe& line) {
  if (line.untransformed().ok()) return;
  console::error() << path << " has easting and northing in place of longitude and latitude: "
                   << line.untransformed().message() << std::endl;
}

}  // namespace talvesk

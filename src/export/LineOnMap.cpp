#include "export/LineOnMap.h"

#include "model/TomoDocument.h"

namespace talvesk {

LineOnMap::LineOnMap(const TomoDocument& document)
    : mPlacement(document.map->geoCoord, courseOf(document)), mEpsg(document.map->geoCoord.CRS) {
  if (!document.map->geoCoord_isSet) {
    mStatus = Status::failure(
        Message::tr("the line has no place on the map; its geographic coordinates are missing"));
    return;
  }
  const std::optional<LineEnds> ends = lineEnds(document);
  if (!ends) {
    mStatus = Status::failure(Message::tr("the survey has no geophones"));
    return;
  }
  const LineOnGlobe globe(document.map->geoCoord, courseOf(document));
  mStatus = globe.status();
  mSystemName = globe.systemName();
  mFirstX = ends->first;
}

}  // namespace talvesk

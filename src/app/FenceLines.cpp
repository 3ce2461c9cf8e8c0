#include "app/FenceLines.h"

#include "app/MessageText.h"
#include "export/LinePlacement.h"
#include "model/GeographicsCoord.h"

#include <QCoreApplication>
#include <cmath>
#include <cstdint>
#include <optional>

namespace talvesk {
namespace {

struct FenceWords {
  Q_DECLARE_TR_FUNCTIONS(talvesk::FenceDialog)
};

/// Why a line has no place in a fence of that system; empty when it has one.
QString whyNowhere(const TomoDocument& document, std::optional<std::int32_t> system) {
  if (!document.map->geoCoord_isSet) return FenceWords::tr("it has no position on the map");
  const geographicsCoord& place = document.map->geoCoord;
  if (system && *system != place.CRS) {
    return FenceWords::tr("its position is in EPSG:%1, that of the others in EPSG:%2")
        .arg(place.CRS)
        .arg(*system);
  }
  if (!lineEnds(document)) return FenceWords::tr("it has no geophones");
  const double length = LinePlacement(place, courseOf(document)).length();
  if (!(length > 0.0) || !std::isfinite(length)) {
    return FenceWords::tr("its first and last geophone are at one place of the map");
  }
  return {};
}

}  // namespace

FenceScene fenceOf(const std::vector<FenceLine>& lines, QStringList& leftOut) {
  FenceScene scene;
  std::optional<std::int32_t> system;
  for (const FenceLine& line : lines) {
    QString why = whyNowhere(line.document, system);
    if (why.isEmpty()) {
      const LinePlacement placement(line.document.map->geoCoord, courseOf(line.document));
      const double first = lineEnds(line.document)->first;
      const auto place = [&](double x) {
        const MapPoint point = placement.at(x - first);
        return FencePoint{point.easting, point.northing, 0.0};
      };
      const Status status = addFencePanel(line.document, line.name.toStdString(), place, scene);
      if (status.ok()) system = line.document.map->geoCoord.CRS;
      if (!status.ok()) why = textOf(status.text());
    }
    if (!why.isEmpty()) leftOut << FenceWords::tr("%1: %2", "line, why").arg(line.name, why);
  }
  return scene;
}

}  // namespace talvesk

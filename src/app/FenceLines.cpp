#include "app/FenceLines.h"

#include "app/MessageText.h"
#include "export/LinePlacement.h"
#include "model/GeoTransformer.h"
#include "model/GeographicsCoord.h"

#include <QCoreApplication>
#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>

namespace talvesk {
namespace {

struct FenceWords {
  Q_DECLARE_TR_FUNCTIONS(talvesk::FenceDialog)
};

/// Takes places to the system of the fence; those of that system stay as they are, be it known
/// here or not.
class ToFence {
 public:
  ToFence(std::int32_t from, std::int32_t fence) {
    if (from == fence) return;
    mFrom = std::make_unique<GeoTransformer>(from);
    mFence = std::make_unique<GeoTransformer>(fence);
  }

  const Status& status() const {
    static const Status kOk;
    if (mFrom == nullptr) return kOk;
    return mFrom->status().ok() ? mFence->status() : mFrom->status();
  }

  /// Not a number for a place that one of both systems does not reach.
  FencePoint operator()(const MapPoint& place) const {
    if (mFrom == nullptr) return {place.easting, place.northing, 0.0};
    constexpr double kNowhere = std::numeric_limits<double>::quiet_NaN();
    LonLat globe;
    MapPoint there{kNowhere, kNowhere};
    if (mFrom->transform(place.easting, place.northing, globe)) mFence->project(globe, there);
    return {there.easting, there.northing, 0.0};
  }

 private:
  std::unique_ptr<GeoTransformer> mFrom;
  std::unique_ptr<GeoTransformer> mFence;
};

/// Why metres along a line are none of its system; empty where they are, or nobody knows.
QString whyNotInMetres(std::int32_t epsg) {
  const GeoTransformer system(epsg);
  switch (system.status().code()) {
    case kNotProjected:
    case kNotInMetres:
    case kCountsBackward:
      return textOf(system.status().text());
    default:
      return {};
  }
}

/// Why a line has no place on the map; empty when it has one.
QString whyNowhere(const TomoDocument& document) {
  if (!document.map->geoCoord_isSet) return FenceWords::tr("it has no position on the map");
  if (QString why = whyNotInMetres(document.map->geoCoord.CRS); !why.isEmpty()) return why;
  if (!lineEnds(document)) return FenceWords::tr("it has no geophones");
  const double length = LinePlacement(document.map->geoCoord, courseOf(document)).length();
  if (!(length > 0.0) || !std::isfinite(length)) {
    return FenceWords::tr("its first and last geophone are at one place of the map");
  }
  return {};
}

/// Stands a line that has a place in the fence, or says why it cannot.
QString whyNot(const FenceLine& line, std::int32_t fence, FenceScene& scene) {
  const geographicsCoord& ends = line.document.map->geoCoord;
  const ToFence toFence(ends.CRS, fence);
  if (!toFence.status().ok()) {
    return FenceWords::tr("its position is in EPSG:%1, that of the others in EPSG:%2")
               .arg(ends.CRS)
               .arg(fence) +
           QStringLiteral("; ") + textOf(toFence.status().text());
  }
  const LinePlacement placement(ends, courseOf(line.document));
  const double first = lineEnds(line.document)->first;
  const auto place = [&](double x) { return toFence(placement.at(x - first)); };
  const Status status = addFencePanel(line.document, line.name.toStdString(), place, scene);
  return status.ok() ? QString() : textOf(status.text());
}

}  // namespace

FenceScene fenceOf(const std::vector<FenceLine>& lines, FenceNotes& notes) {
  FenceScene scene;
  QStringList standing;  // two sheets in one place flicker, and one of them is not seen
  std::optional<std::int32_t> fence;
  for (const FenceLine& line : lines) {
    const std::int32_t own = line.document.map->geoCoord.CRS;
    QString why = standing.contains(line.path) ? FenceWords::tr("it stands in the fence already")
                                               : whyNowhere(line.document);
    if (why.isEmpty()) why = whyNot(line, fence.value_or(own), scene);
    if (!why.isEmpty()) {
      notes.leftOut << FenceWords::tr("%1: %2", "line, why").arg(line.name, why);
      continue;
    }
    if (!line.path.isEmpty()) standing << line.path;
    if (!fence) fence = own;
    if (own != *fence) {
      notes.converted << FenceWords::tr("%1 from EPSG:%2 to EPSG:%3", "line, systems")
                             .arg(line.name)
                             .arg(own)
                             .arg(*fence);
    }
  }
  return scene;
}

}  // namespace talvesk

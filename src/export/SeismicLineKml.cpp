#include "export/SeismicLineKml.h"

#include "base/Console.h"
#include "export/ExportFailure.h"
#include "export/KmlDocument.h"
#include "export/LinePlacement.h"
#include "model/GeographicsCoord.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

#include <ostream>

namespace talvesk {
namespace {

constexpr const char* kGeophoneColor = "d32f2f";
constexpr const char* kShotColor = "779900";

/// Puts marks of a line into a document.
class Marker {
 public:
  Marker(KmlDocument& kml, const LineOnGlobe& line, double firstX)
      : mKml(kml), mLine(line), mFirstX(firstX) {}

  void mark(const QString& name, double x, const char* color) {
    LonLat place;
    if (mLine.locate(x - mFirstX, place)) {
      mKml.addMark(name, place, QLatin1String(color));
    } else {
      console::error() << name.toStdString() << " has no position and is left out" << std::endl;
    }
  }

 private:
  KmlDocument& mKml;
  const LineOnGlobe& mLine;
  double mFirstX;
};

}  // namespace

Status writeSeismicLineKml(const std::string& path, const TomoDocument& document) {
  if (!document.map->geoCoord_isSet) return cannotWrite(path, noGeographicCoordinates());
  const std::optional<LineEnds> ends = lineEnds(document);
  if (!ends) return cannotWrite(path, Message::tr("the survey has no geophones"));
  const LineOnGlobe line(document.map->geoCoord, courseOf(document));
  if (!line.status().ok()) return cannotWrite(path, line.status().text());
  tellUntransformed(path, line);

  KmlDocument kml("Shots and Receivers", "Content");
  Marker marker(kml, line, ends->first);
  for (std::size_t s = 0; s < document.line->goephonesStringSet.size(); ++s) {
    const std::vector<Point2D>& string = document.line->goephonesStringSet[s];
    for (std::size_t g = 0; g < string.size(); ++g) {
      marker.mark(QStringLiteral("G-%1-%2").arg(s).arg(g), string[g].x, kGeophoneColor);
    }
  }
  for (std::size_t n = 0; n < document.ttArray.size(); ++n) {
    marker.mark(QStringLiteral("S-%1").arg(n), document.ttArray[n].shotPos2d.x, kShotColor);
  }
  return told(kml.write(path));
}

}  // namespace talvesk

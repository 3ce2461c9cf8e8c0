#include "figures/web/WebData.h"

#include "base/LengthUnit.h"
#include "figures/report/ReportOptions.h"
#include "figures/web/WebParts.h"
#include "model/Recordings.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"

#include <cmath>

namespace talvesk {
namespace web {

QJsonValue rounded(double value, int places) {
  if (!std::isfinite(value)) return QJsonValue::Null;
  const double scale = std::pow(10.0, places);
  const double scaled = std::round(value * scale) / scale;
  if (!std::isfinite(scaled)) return value;  // too large to have places
  return scaled == 0.0 ? 0.0 : scaled;       // nothing is minus nothing
}

QJsonArray rounded(const std::vector<double>& values, int places) {
  QJsonArray list;
  for (const double value : values) list.append(rounded(value, places));
  return list;
}

QJsonArray rounded(const std::vector<Point2D>& points, int places) {
  QJsonArray list;
  for (const Point2D& point : points) {
    list.append(rounded(shownLength(point.x), places));
    list.append(rounded(shownLength(point.z), places));
  }
  return list;
}

}  // namespace web

QJsonObject webData(const ReportSource& source, const ReportOptions& options) {
  const TomoDocument& document = source.document;
  const ReportSections& sections = options.sections;
  QJsonObject data{{QStringLiteral("words"), web::words()}};
  // What the page gives away as files is in metres all the same.
  if (lengthUnit() != LengthUnit::kMetre) data[QStringLiteral("metres")] = metresOf(1.0);
  if (sections.section) {
    data[QStringLiteral("section")] = web::sectionData(source, options);
    if (sections.rays) data[QStringLiteral("rays")] = web::rayData(document);
  }
  if (sections.travelTimes) {
    data[QStringLiteral("shots")] = web::shotData(document);
    data[QStringLiteral("gathers")] = web::gatherData(document);
    data[QStringLiteral("reciprocity")] = web::reciprocityData(document);
  }
  if (sections.misfit) data[QStringLiteral("misfit")] = web::misfitData(document);
  if (sections.position) data[QStringLiteral("map")] = web::mapData(document);
  return data;
}

}  // namespace talvesk

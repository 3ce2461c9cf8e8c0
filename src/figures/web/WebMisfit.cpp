#include "base/LengthUnit.h"
#include "doctor/ReciprocityTable.h"
#include "figures/web/WebParts.h"
#include "model/GeoTransformer.h"
#include "model/GeographicsCoord.h"
#include "model/MapLine.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "view/ResidualTable.h"

#include <QString>
#include <algorithm>
#include <cmath>

// How the section explains the picks, how picks go with each other, and where the line lies.

namespace talvesk::web {
namespace {

constexpr int kPlaces = 3;  ///< of milliseconds
constexpr double kMilliseconds = 1e3;

/// What some residuals come to.
struct Sums {
  int count = 0;
  double sum = 0.0;
  double squares = 0.0;

  void take(double milliseconds) {
    ++count;
    sum += milliseconds;
    squares += milliseconds * milliseconds;
  }
  QJsonObject json(double at) const {
    const double n = std::max(count, 1);
    return {{QStringLiteral("at"), rounded(at, 2)},
            {QStringLiteral("picks"), count},
            {QStringLiteral("rms"), rounded(std::sqrt(squares / n), kPlaces)},
            {QStringLiteral("mean"), rounded(sum / n, kPlaces)}};
  }
};

/// Per shot `at` is its number.
void addResiduals(const TomoDocument& document, QJsonObject& json) {
  const ResidualTable table = residualTableOf(document);
  if (!table.known) return;
  std::vector<Sums> shots(document.ttArray.size());
  std::vector<Sums> geophones(table.columns.size());
  for (const PickResidual& pick : table.picks) {
    const double value = pick.value(ResidualUnit::kMilliseconds);
    if (!std::isfinite(value)) continue;
    shots[pick.record].take(value);
    geophones[pick.column].take(value);
  }
  QJsonArray perShot;
  for (std::size_t i = 0; i < shots.size(); ++i) {
    if (shots[i].count > 0) perShot.append(shots[i].json(static_cast<double>(i + 1)));
  }
  QJsonArray perGeophone;
  for (std::size_t i = 0; i < geophones.size(); ++i) {
    if (geophones[i].count > 0 && std::isfinite(table.columns[i].x)) {
      perGeophone.append(geophones[i].json(shownLength(table.columns[i].x)));
    }
  }
  json[QStringLiteral("perShot")] = perShot;
  json[QStringLiteral("perGeophone")] = perGeophone;
}

void addHistory(const InversionRecord& run, QJsonObject& json) {
  QJsonArray section;
  for (const SectionMisfit& misfit : run.sectionHistory) {
    section.append(misfit.count > 0 ? rounded(kMilliseconds * misfit.rmse, kPlaces)
                                    : QJsonValue(QJsonValue::Null));
  }
  QJsonArray passes;
  if (!run.fit) {  // a fit has no solver passes
    for (const Misfit& misfit : run.history) {
      passes.append(misfit.count > 0 ? rounded(kMilliseconds * misfit.rmse, kPlaces)
                                     : QJsonValue(QJsonValue::Null));
    }
  }
  json[QStringLiteral("section")] = section;
  json[QStringLiteral("passes")] = passes;
}

}  // namespace

QJsonObject misfitData(const TomoDocument& document) {
  QJsonObject json;
  if (!document.result->has_tomographic_info) return json;
  addResiduals(document, json);
  if (document.result->lastInversion) addHistory(*document.result->lastInversion, json);
  return json;
}

QJsonArray reciprocityData(const TomoDocument& document) {
  QJsonArray pairs;
  for (const doctor::ReciprocalTimes& pair : doctor::reciprocityOf(document).pairs) {
    pairs.append(QJsonArray{static_cast<int>(pair.first) + 1, static_cast<int>(pair.second) + 1,
                            rounded(kMilliseconds * pair.there, kPlaces),
                            rounded(kMilliseconds * pair.back, kPlaces)});
  }
  return pairs;
}

QJsonObject mapData(const TomoDocument& document) {
  if (!document.map->geoCoord_isSet) return {};
  const geographicsCoord& place = document.map->geoCoord;
  const std::vector<double> ends = {place.mEastFstGeoph, place.mNorthFstGeoph, place.mEastLstGeoph,
                                    place.mNorthLstGeoph};
  const bool numbers =
      std::all_of(ends.begin(), ends.end(), [](double v) { return std::isfinite(v); });
  if (!numbers || std::hypot(ends[2] - ends[0], ends[3] - ends[1]) <= 0.0) return {};
  QJsonObject json{{QStringLiteral("ends"), rounded(ends, 2)}};
  QJsonArray course;
  for (const MapVertex& vertex : courseOf(document)) {
    course.append(rounded(std::vector<double>{vertex.place.easting, vertex.place.northing}, 2));
  }
  if (!course.isEmpty()) json[QStringLiteral("course")] = course;
  if (lengthUnit() != LengthUnit::kMetre) json[QStringLiteral("metres")] = metresOf(1.0);
  const GeoTransformer globe(place.CRS);
  LonLat middle{};
  if (globe.status().ok() &&
      globe.transform((ends[0] + ends[2]) / 2.0, (ends[1] + ends[3]) / 2.0, middle)) {
    json[QStringLiteral("longitude")] = rounded(middle.longitude, 6);
    json[QStringLiteral("latitude")] = rounded(middle.latitude, 6);
  }
  return json;
}

}  // namespace talvesk::web

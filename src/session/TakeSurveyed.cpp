#include "session/TakeSurveyed.h"

#include "io/Survey.h"
#include "session/TableRules.h"

#include <utility>

namespace talvesk {

Status takeSurveyed(const std::string& path, SurveyedOptions options,
                    const std::optional<StationsBy>& stations, Survey& survey,
                    TakenPositions& taken) {
  SurveyedTable table;
  Status status = SurveyedTable::open(path, table);
  // Longitude and latitude go into their zone, not into that of another line's coordinates.
  const MapPosition& map = *survey.document.map;
  if (options.epsg == 0 && map.geoCoord_isSet && !table.proposed().degrees) {
    options.epsg = map.geoCoord.CRS;
  }
  SurveyedReading reading;
  if (status.ok()) status = table.read(table.proposed(), options.epsg, reading);
  if (!status.ok()) return status;
  options.epsg = reading.epsg;
  return takeSurveyed(path, std::move(reading), options, stations, survey, taken);
}

Status takeSurveyed(const std::string& name, SurveyedReading reading, SurveyedOptions options,
                    const std::optional<StationsBy>& stations, Survey& survey,
                    TakenPositions& taken) {
  const SurveyGeometry before = geometryOf(survey.document);
  options.stations = stations.value_or(proposeStations(reading.rows, before));
  SurveyedOutcome outcome;
  Status status = placeSurveyed(reading.rows, options, before, outcome);
  if (!status.ok()) return Status::failure(joined(name, status.text()));
  status = editSurvey(Edit::kSurveyedPositions, survey, [&](Survey& next) {
    applySurveyed(outcome, next.document);
    return Status();
  });
  if (status.ok()) taken = {options.stations, std::move(reading), std::move(outcome)};
  return status;
}

}  // namespace talvesk

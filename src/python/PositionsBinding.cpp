#include "io/Survey.h"
#include "python/Bindings.h"
#include "python/Values.h"
#include "session/TakeSurveyed.h"

#include <cmath>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include <pybind11/stl.h>
#include <pybind11/stl/filesystem.h>

namespace py = pybind11;

namespace talvesk::python {
namespace {

namespace fs = std::filesystem;

template <typename Value>
Value valueOf(const std::string& text, const std::vector<std::pair<const char*, Value>>& words) {
  std::string all;
  for (const auto& [word, value] : words) {
    if (text == word) return value;
    all += (all.empty() ? "" : ", ") + std::string(word);
  }
  throw Error("'" + text + "' is none of " + all);
}

LineShape shapeOf(const std::string& word) {
  return valueOf<LineShape>(word, {{"straight", LineShape::kFitted},
                                   {"ends", LineShape::kThroughEnds},
                                   {"bent", LineShape::kBent}});
}

LengthAlong lengthOf(const std::string& word) {
  return valueOf<LengthAlong>(
      word, {{"horizontal", LengthAlong::kHorizontal}, {"slope", LengthAlong::kSlope}});
}

std::optional<StationsBy> stationsOf(const std::optional<std::string>& word) {
  if (!word) return {};
  return valueOf<StationsBy>(*word, {{"number", StationsBy::kNumber},
                                     {"order", StationsBy::kOrder},
                                     {"distance", StationsBy::kDistance}});
}

/// Places of geophones in their order.
std::vector<SurveyedRow> rowsOf(const GivenArray& places) {
  if (places.ndim() != 2 || (places.shape(1) != 2 && places.shape(1) != 3)) {
    throw Error(
        "places must be an array (geophones, 3) of easting, northing and elevation, or of "
        "the first two");
  }
  std::vector<SurveyedRow> rows;
  for (py::ssize_t i = 0; i < places.shape(0); ++i) {
    SurveyedRow row;
    row.line = static_cast<std::size_t>(i) + 1;
    row.kind = SurveyedKind::kGeophone;
    row.place = {places.at(i, 0), places.at(i, 1)};
    if (!std::isfinite(row.place.easting) || !std::isfinite(row.place.northing)) {
      throw Error("easting and northing must be finite numbers");
    }
    if (places.shape(1) == 3 && std::isfinite(places.at(i, 2))) row.elevation = places.at(i, 2);
    rows.push_back(row);
  }
  return rows;
}

/// Per geophone of the line, not a number for those that were not surveyed.
Array offsetsOf(const SurveyedOutcome& outcome) {
  std::vector<double> across;
  for (const SurveyedPoint& point : outcome.points) {
    if (!point.shot) across.push_back(point.across);
  }
  return arrayOf(across);
}

py::dict setPositions(Survey& survey, const std::variant<fs::path, GivenArray>& places,
                      const std::optional<std::string>& stations, const SurveyedOptions& options) {
  TakenPositions taken;
  std::optional<StationsBy> by = stationsOf(stations);
  std::string name = "places";
  Survey work = survey;
  if (const auto* path = std::get_if<fs::path>(&places)) {
    name = path->string();
    raiseUnless(takeSurveyed(name, options, by, work, taken));
  } else {
    if (by.value_or(StationsBy::kOrder) != StationsBy::kOrder) {
      throw Error("places without names are those of geophones in their order");
    }
    SurveyedReading reading;
    reading.rows = rowsOf(std::get<GivenArray>(places));
    reading.epsg = options.epsg;
    by = StationsBy::kOrder;
    raiseUnless(takeSurveyed(name, std::move(reading), options, by, work, taken));
  }
  survey = std::move(work);
  if (!taken.reading.without.empty()) {
    warn(name + ": " + std::to_string(taken.reading.without.size()) +
         " rows have no position and are not used");
  }
  for (const SurveyedFinding& finding : taken.outcome.findings) {
    warn(name + ": " + describe(finding, taken.outcome, taken.reading.rows).english());
  }
  if (!taken.outcome.map) {
    warn(name +
         ": without the code of its reference system the map position of the line stays as "
         "it was");
  }
  py::dict told;
  told["across"] = offsetsOf(taken.outcome);
  told["rms_across"] = taken.outcome.rmsAcross;
  told["spacing"] = taken.outcome.spacing;
  told["epsg"] = taken.reading.epsg > 0 ? py::object(py::int_(taken.reading.epsg)) : py::none();
  return told;
}

}  // namespace

void bindPositions(py::module_& module) {
  auto survey =
      py::reinterpret_borrow<py::class_<Survey, std::shared_ptr<Survey>>>(module.attr("Survey"));
  survey.def(
      "set_positions",
      [](Survey& self, const std::variant<fs::path, GivenArray>& places, const std::string& line,
         const std::string& length, const std::optional<std::string>& stations,
         const std::optional<std::int32_t>& epsg, const std::optional<double>& firstDistance,
         bool fromOtherEnd) {
        SurveyedOptions options;
        options.shape = shapeOf(line);
        options.length = lengthOf(length);
        options.start = firstDistance;
        options.fromOtherEnd = fromOtherEnd;
        options.epsg = epsg.value_or(0);
        if (epsg && *epsg <= 0) throw Error("epsg must be the code of a projected system");
        if (firstDistance && !std::isfinite(*firstDistance)) {
          throw Error("first_distance must be a finite number");
        }
        return setPositions(self, places, stations, options);
      },
      py::arg("places"), py::kw_only(), py::arg("line") = "straight",
      py::arg("length") = "horizontal", py::arg("stations") = py::none(),
      py::arg("epsg") = py::none(), py::arg("first_distance") = py::none(),
      py::arg("from_other_end") = false,
      "Gives geophones and shots their places as surveyed, and the line its place on the map, as "
      "talvesk-batch --positions.\n\n"
      "places: the path of a table with a name for each, or an array (geophones, 3) of easting, "
      "northing and elevation in the order of the geophones. line: 'straight', 'ends' or 'bent'. "
      "length: 'horizontal' or 'slope'. stations: what names count, 'number', 'order' or "
      "'distance'. epsg: of easting and northing. Returns a dict: 'across', how far each "
      "geophone lies to the right of the line, 'rms_across' and 'spacing' (metres), 'epsg'. What "
      "is doubtful is a warning.");
}

}  // namespace talvesk::python

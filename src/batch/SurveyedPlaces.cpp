#include "batch/SurveyedPlaces.h"

#include "base/TextNumber.h"
#include "batch/Failure.h"
#include "batch/JsonText.h"
#include "batch/OptionParsing.h"
#include "batch/OutputFiles.h"
#include "io/Survey.h"
#include "io/TravelTimeFile.h"
#include "session/TakeSurveyed.h"

#include <algorithm>
#include <cmath>
#include <ostream>
#include <utility>

namespace talvesk {
namespace {

constexpr const char* kGroup = "Positions";

template <typename Value>
using Words = std::vector<std::pair<const char*, Value>>;

const Words<LineShape>& shapes() {
  static const Words<LineShape> words = {{"straight", LineShape::kFitted},
                                         {"ends", LineShape::kThroughEnds},
                                         {"bent", LineShape::kBent}};
  return words;
}

const Words<LengthAlong>& lengths() {
  static const Words<LengthAlong> words = {{"horizontal", LengthAlong::kHorizontal},
                                           {"slope", LengthAlong::kSlope}};
  return words;
}

const Words<StationsBy>& ways() {
  static const Words<StationsBy> words = {{"number", StationsBy::kNumber},
                                          {"order", StationsBy::kOrder},
                                          {"distance", StationsBy::kDistance}};
  return words;
}

template <typename Value>
Value valueOf(const std::string& option, const std::string& text, const Words<Value>& words) {
  std::string all;
  for (const auto& [word, value] : words) {
    if (text == word) return value;
    all += (all.empty() ? "" : ", ") + std::string(word);
  }
  throw CLI::ValidationError(option, "'" + text + "' is none of " + all);
}

template <typename Value>
std::string wordOf(Value wanted, const Words<Value>& words) {
  for (const auto& [word, value] : words) {
    if (value == wanted) return word;
  }
  return {};
}

/// An option that takes one of some words.
template <typename Value, typename Assign>
CLI::Option* addWord(CLI::App& command, const std::string& name, const Words<Value>& words,
                     const std::string& help, Assign assign) {
  return command
      .add_option_function<std::string>(
          name,
          [name, &words, assign](const std::string& text) { assign(valueOf(name, text, words)); },
          help)
      ->type_name("WORD");
}

Json placeJson(const Point2D& place) {
  return Json{{"x", place.x}, {"elevation", place.z}};
}

Json pointJson(const SurveyedPoint& point, const std::vector<SurveyedRow>& rows) {
  Json json = Json::object();
  json[point.shot ? "shot" : "geophone"] = point.index + 1;
  const bool surveyed = point.row != SurveyedPoint::kNoRow;
  const SurveyedRow* row = surveyed ? &rows[point.row] : nullptr;
  json["line"] = surveyed ? Json(row->line) : Json(nullptr);
  json["easting"] = surveyed ? Json(row->place.easting) : Json(nullptr);
  json["northing"] = surveyed ? Json(row->place.northing) : Json(nullptr);
  json["across"] = point.across;
  json["before"] = placeJson(point.before);
  json["after"] = placeJson(point.after);
  return json;
}

std::string reportOf(const SurveyedPlaceOptions& options, const TakenPositions& taken) {
  const SurveyedReading& reading = taken.reading;
  const SurveyedOutcome& outcome = taken.outcome;
  Json json = Json::object();
  json["table"] = options.table;
  json["line"] = wordOf(options.placing.shape, shapes());
  json["length"] = wordOf(options.placing.length, lengths());
  json["stations"] = wordOf(taken.stations, ways());
  json["epsg"] = reading.epsg > 0 ? Json(reading.epsg) : Json(nullptr);
  json["rms_across"] = outcome.rmsAcross;
  json["spacing"] = outcome.spacing;
  json["findings"] = Json::array();
  for (const SurveyedFinding& finding : outcome.findings) {
    json["findings"].push_back(describe(finding, outcome, reading.rows).english());
  }
  json["lines_without_position"] = reading.without;
  json["points"] = Json::array();
  for (const SurveyedPoint& point : outcome.points) {
    json["points"].push_back(pointJson(point, reading.rows));
  }
  return linePerKey(json) + "\n";
}

void summarize(const SurveyedPlaceOptions& options, const SurveyedReading& reading,
               const SurveyedOutcome& outcome, std::ostream& out) {
  double most = 0.0;
  std::size_t geophones = 0;
  std::size_t shots = 0;
  for (const SurveyedPoint& point : outcome.points) {
    if (point.row == SurveyedPoint::kNoRow) continue;
    (point.shot ? shots : geophones) += 1;
    if (!point.shot) most = std::max(most, std::fabs(point.across));
  }
  out << "Positions of " << options.table << ": " << geophones << " geophones, " << shots
      << " shots; across the line " << formatDouble(outcome.rmsAcross, 3) << " m RMS, at most "
      << formatDouble(most, 3) << " m\n";
  if (!reading.without.empty()) {
    warn(options.table + ": " + std::to_string(reading.without.size()) +
         " rows have no position and are not used");
  }
  for (const SurveyedFinding& finding : outcome.findings) {
    warn(options.table + ": " + describe(finding, outcome, reading.rows).english());
  }
  if (!outcome.map) {
    warn(options.table +
         ": without the code of its reference system (--positions-epsg) the map "
         "position of the line stays as it was");
  }
}

}  // namespace

void addSurveyedOptions(CLI::App& command, SurveyedPlaceOptions& options) {
  CLI::Option* table = addPath(
      command, "--positions", options.table,
      "Places of geophones and shots as surveyed: a table of easting, northing and elevation "
      "(metres), or of longitude, latitude and elevation, with a name or number for each. They "
      "become distances along the line, and the map position of the line");
  SurveyedOptions& placing = options.placing;
  const std::vector<CLI::Option*> others = {
      addWord(
          command, "--line", shapes(),
          "What geophones of --positions make the line: straight, fitted to them; ends, straight "
          "through the first and the last; bent, from one to the next (default: straight)",
          [&placing](LineShape shape) { placing.shape = shape; }),
      addWord(command, "--length", lengths(),
              "How long it is: horizontal, as on the map; slope, along the ground (default: "
              "horizontal)",
              [&placing](LengthAlong length) { placing.length = length; }),
      addWord(command, "--stations", ways(),
              "What the names of --positions count: number, geophones and shots from 1 on; "
              "distance, where they stand along the line so far; order, nothing, rows come in the "
              "order of geophones (default: what fits best)",
              [&options](StationsBy by) { options.stations = by; }),
      addNumber(command, "--positions-epsg", "N", Range<int>{1, 2147483647},
                "EPSG code of the projected system of easting and northing, or of that to project "
                "longitude and latitude into (default: the project's; of those the UTM zone)",
                [&placing](int code) { placing.epsg = code; }),
      addNumber(command, "--first-distance", "M", Range<double>{-1e7, 1e7},
                "Distance of the first geophone that was surveyed, metres (default: as it is)",
                [&placing](double metres) { placing.start = metres; }),
      addPath(command, "--positions-json", options.json,
              "Write what became of every geophone and shot as JSON: distance and elevation before "
              "and after, offset across the line, and what is doubtful")};
  table->group(kGroup);
  for (CLI::Option* option : others) option->needs(table)->group(kGroup);
}

Status placeBySurvey(const SurveyedPlaceOptions& options, const std::vector<std::string>& inputs,
                     std::ostream& out, Survey& survey) {
  if (options.table.empty()) return {};
  Status status = options.json.empty()
                      ? Status()
                      : checkOutputFiles({{"--positions-json", options.json}}, inputs);
  TakenPositions taken;
  if (status.ok()) {
    status = takeSurveyed(options.table, options.placing, options.stations, survey, taken);
  }
  if (!status.ok()) return status;
  summarize(options, taken.reading, taken.outcome, out);
  if (options.json.empty()) return {};
  return writeOutput(options.json, reportOf(options, taken));
}

Status placeBySurvey(const SurveyedPlaceOptions& options, const std::vector<std::string>& inputs,
                     std::ostream& out, TravelTimeData& picks, Survey& survey) {
  if (options.table.empty()) return {};
  Status status = importTravelTimes(picks, survey.document);
  if (status.ok()) status = placeBySurvey(options, inputs, out, survey);
  if (!status.ok()) return status;
  TravelTimeData placed = travelTimesOf(survey.document);
  picks.strings = std::move(placed.strings);
  picks.records = std::move(placed.records);
  return status;
}

}  // namespace talvesk

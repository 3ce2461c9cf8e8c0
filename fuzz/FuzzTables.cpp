// Throws any bytes at the readers of small tables: positions, elevations, layers of traces, known
// ground, surveyed positions, and what is pasted. The first byte chooses the reader and its
// separator.
#include "Demand.h"
#include "base/TypedTable.h"
#include "io/ElevationTable.h"
#include "io/GeometryFile.h"
#include "io/KnownGroundFile.h"
#include "io/LayerFile.h"
#include "io/NamedPositions.h"
#include "io/SurveyedTable.h"
#include "model/ElevationProfile.h"
#include "model/SurveyedPositions.h"
#include "model/TomoDocument.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string_view>

namespace {

using namespace talvesk;

void tryPositions(std::string_view text, const char* separator, bool labelled) {
  const GeometryRecords before = {{1.0, 2.0}};
  PositionTable table = {before, {}};
  const GeometryRecords& records = table.records;
  const Status status = parseRecords(text, "a.csv", separator, labelled, table);
  demand(status.ok() == status.message().empty(), "a message with every failure");
  if (!status.ok()) return demand(records == before, "what was there stays after a failure");
  std::size_t fields = 0;
  for (const auto& record : records) {
    fields += record.size();
    for (const double value : record) demand(std::isfinite(value), "finite positions");
  }
  demand(fields <= text.size(), "no more fields than bytes");
  demand(records.empty() || !records.back().empty(), "a last record that is one");
  demand(table.remarks.zeroCount <= fields, "no more zeros than fields");
  demand(table.remarks.zeros.size() <= TableRemarks::kNamedZeros, "bounded remarks");
  std::vector<Point2D> points;
  if (positionsOf(table, points).ok()) {
    demand(points.size() == records.size(), "a point per record");
  }
}

/// Shots of four, no and three traces.
TomoDocument threeShots() {
  TomoDocument document;
  for (const std::size_t traces : {4, 0, 3}) {
    TravelTime record;
    record.ttMisurati.edit().assign(traces, 0.01);
    document.ttArray.edit().push_back(record);
  }
  return document;
}

void tryLayers(std::string_view text) {
  static const TomoDocument document = threeShots();
  LayerMarks marks;
  const Status status = parseLayerMarks(text, "a.csv", document, marks);
  demand(status.ok() == status.message().empty(), "a message with every failure");
  if (!status.ok()) return demand(marks.empty(), "what was there stays after a failure");
  demand(marks.size() == document.ttArray.size(), "marks of every shot");
  for (std::size_t i = 0; i < marks.size(); ++i) {
    demand(marks[i].size() == document.ttArray[i].ttMisurati.size(), "a mark per trace");
    demand(std::all_of(marks[i].begin(), marks[i].end(), [](auto layer) { return layer <= 3; }),
           "layers that there are");
  }
}

void tryPasted(std::string_view text, bool decimalComma) {
  constexpr std::size_t kMostRows = 50;
  TypedTable table;
  TableRemarks remarks;
  const Status status = parseTypedTable(text, decimalComma, kMostRows, table, remarks);
  demand(status.ok() == status.message().empty(), "a message with every failure");
  if (!status.ok()) return demand(table.empty(), "what was there stays after a failure");
  demand(table.size() <= kMostRows, "bounded rows");
  for (const auto& row : table) {
    for (const double value : row) demand(!std::isinf(value), "finite or empty fields");
  }
}

void demandPlaces(const std::vector<Point2D>& points) {
  for (const Point2D& point : points) demand(isFinite(point), "finite points");
}

void tryElevations(std::string_view text) {
  std::vector<Point2D> points;
  const Status status = parseElevationTable(text, "a.csv", points);
  demand(status.ok() != points.empty(), "points after a success only");
  demandPlaces(points);
  if (!status.ok()) return;
  for (const auto course :
       {ElevationProfile::Course::kStraight, ElevationProfile::Course::kSmooth}) {
    const ElevationProfile profile(points, course);
    for (const double x : {-1e9, 0.0, 7.5, points.front().x}) {
      demand(std::isfinite(profile.at(x)), "elevations everywhere");
    }
  }
}

void tryNamed(std::string_view text, PositionsOf what) {
  PositionTable table;
  const Status status = parseNamedPositions(text, "a.csv", {what, 0, 0}, table);
  demand(status.ok() == status.message().empty(), "a message with every failure");
  std::vector<Point2D> points;
  if (status.ok()) demand(positionsOf(table, points).ok(), "positions with an elevation");
  demandPlaces(points);
}

void tryKnownGround(std::string_view text) {
  KnownGround known;
  const Status status = parseKnownGround(text, "a.csv", known);
  demand(status.ok() == status.message().empty(), "a message with every failure");
  demand(status.ok() != known.empty(), "ground after a success only");
  demand(faultOf(known).empty(), "ground that can be");
}

/// The table, and what its rows make of a line of three geophones.
void trySurveyed(std::string_view text) {
  SurveyedTable table;
  SurveyedReading reading;
  Status status = SurveyedTable::parse(text, "a.csv", table);
  if (status.ok()) table.firstRows(3);
  if (status.ok()) status = table.read(table.proposed(), 0, reading);
  demand(status.ok() == status.message().empty(), "a message with every failure");
  demand(status.ok() != reading.rows.empty(), "rows after a success only");
  SurveyGeometry geometry;
  geometry.strings = {{{0.0, 0.0, false}, {5.0, 0.0, false}, {10.0, 0.0, false}}};
  for (const LineShape shape : {LineShape::kFitted, LineShape::kThroughEnds, LineShape::kBent}) {
    SurveyedOptions options;
    options.shape = shape;
    options.stations = proposeStations(reading.rows, geometry);
    options.epsg = 32632;
    SurveyedOutcome outcome;
    if (!placeSurveyed(reading.rows, options, geometry, outcome).ok()) continue;
    for (const SurveyedPoint& point : outcome.points) demandPlaces({point.after});
    for (const SurveyedFinding& finding : outcome.findings) {
      demand(!describe(finding, outcome, reading.rows).empty(), "words for every finding");
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  if (size == 0) return 0;
  static const char* const separators[] = {";", ",", kBlankSeparator};
  const std::string_view text(reinterpret_cast<const char*>(bytes) + 1, size - 1);
  const int choice = bytes[0] % 14;
  if (choice < 6) tryPositions(text, separators[choice % 3], choice >= 3);
  if (choice == 6) tryLayers(text);
  if (choice == 7 || choice == 8) tryPasted(text, choice == 8);
  if (choice == 9) tryElevations(text);
  if (choice == 12) tryKnownGround(text);
  if (choice == 13) trySurveyed(text);
  if (choice == 10 || choice == 11)
    tryNamed(text, choice == 10 ? PositionsOf::kShots : PositionsOf::kGeophones);
  return 0;
}

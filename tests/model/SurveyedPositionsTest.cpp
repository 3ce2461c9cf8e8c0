#include "model/GeometryCheck.h"
#include "model/MapLine.h"
#include "model/SurveyedPositions.h"

#include <cmath>
#include <functional>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr double kMillimetre = 0.00051;  ///< that distances are rounded to
constexpr MapPoint kOrigin = {566245.876, 7632624.454};

/// A place by its distance along a straight line and its offset to the right of it.
MapPoint onLine(double along, double across, double azimuth) {
  const double east = std::sin(azimuth);
  const double north = std::cos(azimuth);
  return {kOrigin.easting + along * east + across * north,
          kOrigin.northing + along * north - across * east};
}

SurveyGeometry lineOf(int geophones, double spacing, const std::vector<double>& shots) {
  SurveyGeometry geometry;
  geometry.strings.emplace_back();
  for (int i = 0; i < geophones; ++i) geometry.strings[0].push_back({i * spacing, 0.0, false});
  for (const double x : shots) {
    GeometryShot shot;
    shot.place = {x, 0.0, false};
    geometry.shots.push_back(shot);
  }
  return geometry;
}

SurveyedRow row(int number, const MapPoint& place, double z = 0.0,
                SurveyedKind kind = SurveyedKind::kStation) {
  SurveyedRow result;
  result.line = static_cast<std::size_t>(number) + 1;
  result.name = std::to_string(number);
  result.number = number;
  result.kind = kind;
  result.place = place;
  result.elevation = z;
  return result;
}

std::vector<SurveyedRow> straightRows(int count, double spacing, double azimuth) {
  std::vector<SurveyedRow> rows;
  for (int i = 0; i < count; ++i) rows.push_back(row(i + 1, onLine(i * spacing, 0.0, azimuth)));
  return rows;
}

SurveyedOutcome placed(const std::vector<SurveyedRow>& rows, const SurveyedOptions& options,
                       const SurveyGeometry& geometry) {
  SurveyedOutcome outcome;
  const Status status = placeSurveyed(rows, options, geometry, outcome);
  EXPECT_TRUE(status.ok()) << status.message();
  return outcome;
}

LinePlacement placementOf(const SurveyedOutcome& outcome) {
  return LinePlacement(outcome.map->ends, outcome.map->vertices);
}

void expectAt(const MapPoint& place, const MapPoint& expected) {
  EXPECT_NEAR(place.easting, expected.easting, 2 * kMillimetre);
  EXPECT_NEAR(place.northing, expected.northing, 2 * kMillimetre);
}

TEST(SurveyedPositions, measureAStraightLineWhateverItsAzimuthIs) {
  const SurveyGeometry geometry = lineOf(24, 2.0, {-2.0, 23.0});
  for (const double degrees : {0.0, 37.0, 90.0, 180.0, 213.0, 350.0}) {
    for (const LineShape shape : {LineShape::kFitted, LineShape::kThroughEnds, LineShape::kBent}) {
      SCOPED_TRACE(std::to_string(degrees) + " " + std::to_string(static_cast<int>(shape)));
      const double azimuth = degrees * M_PI / 180.0;
      std::vector<SurveyedRow> rows = straightRows(24, 5.0, azimuth);
      rows.push_back(row(1, onLine(-20.0, 3.0, azimuth), 1.5, SurveyedKind::kShot));
      rows.push_back(row(2, onLine(57.5, -1.0, azimuth), 2.0, SurveyedKind::kShot));
      SurveyedOptions options;
      options.shape = shape;
      options.epsg = 32723;
      const SurveyedOutcome outcome = placed(rows, options, geometry);
      for (std::size_t i = 0; i < 24; ++i) {
        EXPECT_NEAR(outcome.geometry.strings[0][i].x, 5.0 * static_cast<double>(i), kMillimetre);
        EXPECT_NEAR(outcome.points[i].across, 0.0, 1e-6);
      }
      EXPECT_NEAR(outcome.geometry.shots[0].place.x, -20.0, kMillimetre);
      EXPECT_NEAR(outcome.points[24].across, 3.0, 1e-6);
      EXPECT_NEAR(outcome.geometry.shots[1].place.x, 57.5, kMillimetre);
      EXPECT_NEAR(outcome.points[25].across, -1.0, 1e-6);
      EXPECT_EQ(outcome.geometry.shots[1].place.z, 2.0);
      EXPECT_NEAR(outcome.rmsAcross, 0.0, 1e-6);
      EXPECT_NEAR(outcome.spacing, 5.0, kMillimetre);
      ASSERT_TRUE(outcome.map.has_value());
      EXPECT_EQ(outcome.map->ends.CRS, 32723);
      EXPECT_EQ(outcome.map->vertices.empty(), shape != LineShape::kBent);
      expectAt(placementOf(outcome).at(0.0), onLine(0.0, 0.0, azimuth));
      expectAt(placementOf(outcome).at(115.0), onLine(115.0, 0.0, azimuth));
      expectAt(placementOf(outcome).at(-20.0), onLine(-20.0, 0.0, azimuth));
    }
  }
}

TEST(SurveyedPositions, fitTheLineWithTheLeastOffsets) {
  // Offsets without a trend: + - - + and so on.
  std::vector<SurveyedRow> rows;
  for (int i = 0; i < 16; ++i) {
    const double across = i % 4 == 0 || i % 4 == 3 ? 0.4 : -0.4;
    rows.push_back(row(i + 1, onLine(2.0 * i, across, 0.7)));
  }
  const SurveyedOutcome fitted = placed(rows, {}, lineOf(16, 2.0, {}));
  EXPECT_NEAR(fitted.rmsAcross, 0.4, 1e-9);
  EXPECT_NEAR(fitted.points[1].across, -0.4, 1e-9);
  EXPECT_NEAR(fitted.points[15].after.x, 30.0, kMillimetre);

  SurveyedOptions ends;
  ends.shape = LineShape::kThroughEnds;
  const SurveyedOutcome through = placed(rows, ends, lineOf(16, 2.0, {}));
  EXPECT_NEAR(through.points[0].across, 0.0, 1e-6);
  EXPECT_NEAR(through.points[1].across, -0.8, 1e-6);
  EXPECT_NEAR(through.rmsAcross, 0.8 / std::sqrt(2.0), 1e-6);

  SurveyedOptions bent;
  bent.shape = LineShape::kBent;
  const SurveyedOutcome along = placed(rows, bent, lineOf(16, 2.0, {}));
  EXPECT_NEAR(along.points[15].after.x, 8 * std::hypot(2.0, 0.8) + 7 * 2.0, kMillimetre);
  EXPECT_EQ(along.rmsAcross, 0.0);
}

TEST(SurveyedPositions, followALineThatBendsByThirtyDegrees) {
  const double azimuth = 1.1;
  const double bend = M_PI / 6.0;
  const MapPoint corner = onLine(50.0, 0.0, azimuth);
  const auto second = [&](double along, double across) {
    const MapPoint place = onLine(along, across, azimuth + bend);
    return MapPoint{corner.easting + place.easting - kOrigin.easting,
                    corner.northing + place.northing - kOrigin.northing};
  };
  std::vector<SurveyedRow> rows = straightRows(11, 5.0, azimuth);
  for (int i = 1; i <= 10; ++i) rows.push_back(row(11 + i, second(5.0 * i, 0.0)));
  rows.push_back(row(1, second(70.0, 2.4), 0.0, SurveyedKind::kShot));
  const SurveyGeometry geometry = lineOf(21, 5.0, {120.0});
  SurveyedOptions options;
  options.shape = LineShape::kBent;
  options.epsg = 32632;
  const SurveyedOutcome outcome = placed(rows, options, geometry);
  for (std::size_t i = 0; i < 21; ++i) {
    EXPECT_NEAR(outcome.points[i].after.x, 5.0 * static_cast<double>(i), kMillimetre) << i;
    expectAt(placementOf(outcome).at(5.0 * static_cast<double>(i)), rows[i].place);
  }
  EXPECT_NEAR(outcome.points[21].after.x, 120.0, kMillimetre);
  EXPECT_NEAR(outcome.points[21].across, 2.4, 1e-6);
  EXPECT_THAT(outcome.findings, IsEmpty());

  // Straight from end to end: an isosceles triangle.
  options.shape = LineShape::kThroughEnds;
  const SurveyedOutcome straight = placed(rows, options, geometry);
  EXPECT_NEAR(straight.points[20].after.x, 2 * 50.0 * std::cos(bend / 2), kMillimetre);
  EXPECT_NEAR(straight.points[10].across, -50.0 * std::sin(bend / 2), 1e-6);
}

TEST(SurveyedPositions, measureAlongASlopeOfFortyFiveDegrees) {
  std::vector<SurveyedRow> rows;
  for (int i = 0; i < 12; ++i)
    rows.push_back(row(i + 1, onLine(3.0 * i, 0.0, 2.0), 200.0 - 3.0 * i));
  // Beyond the end the ground goes on to the shot; one between geophones stands on their line.
  rows.push_back(row(1, onLine(37.0, 0.0, 2.0), 164.0, SurveyedKind::kShot));
  rows.push_back(row(2, onLine(4.5, 0.0, 2.0), 190.0, SurveyedKind::kShot));
  SurveyedOptions options;
  options.epsg = 32632;
  const SurveyGeometry geometry = lineOf(12, 3.0, {40.0, 4.0});
  EXPECT_NEAR(placed(rows, options, geometry).points[11].after.x, 33.0, kMillimetre);
  options.length = LengthAlong::kSlope;
  const SurveyedOutcome outcome = placed(rows, options, geometry);
  const double step = 3.0 * std::sqrt(2.0);
  for (std::size_t i = 0; i < 12; ++i) {
    const double x = step * static_cast<double>(i);
    EXPECT_NEAR(outcome.points[i].after.x, x, kMillimetre);
    EXPECT_NEAR(outcome.points[i].after.z, 200.0 - 3.0 * static_cast<double>(i), 1e-9);
    expectAt(placementOf(outcome).at(x), rows[i].place);
  }
  EXPECT_NEAR(outcome.points[12].after.x, 11 * step + std::hypot(4.0, 3.0), kMillimetre);
  EXPECT_NEAR(outcome.points[13].after.x, 1.5 * step, kMillimetre);

  rows[4].elevation = std::nan("");
  SurveyedOutcome kept;
  const Status status = placeSurveyed(rows, options, geometry, kept);
  EXPECT_THAT(status.message(), HasSubstr("the table lacks 1"));
  EXPECT_THAT(kept.points, IsEmpty());
}

TEST(SurveyedPositions, countInTheSenseAndFromTheStartOfTheSurvey) {
  SurveyGeometry backward = lineOf(10, 5.0, {});
  for (GeometryPlace& place : backward.strings[0]) place.x = 100.0 - place.x;
  const std::vector<SurveyedRow> rows = straightRows(10, 6.0, 0.3);
  SurveyedOptions options;
  EXPECT_NEAR(placed(rows, options, backward).points[0].after.x, 55.0 + 54.0, kMillimetre);
  EXPECT_NEAR(placed(rows, options, backward).points[9].after.x, 55.0, kMillimetre);
  options.start = 10.0;
  EXPECT_NEAR(placed(rows, options, backward).points[9].after.x, 10.0, kMillimetre);
  options.fromOtherEnd = true;
  EXPECT_NEAR(placed(rows, options, backward).points[0].after.x, 10.0, kMillimetre);
  // The map begins at the least distance, whichever channel stands there.
  options = {};
  options.epsg = 32632;
  const SurveyedOutcome outcome = placed(rows, options, backward);
  EXPECT_NEAR(outcome.map->ends.mEastFstGeoph, rows[9].place.easting, kMillimetre);
  EXPECT_NEAR(outcome.map->ends.mNorthLstGeoph, rows[0].place.northing, kMillimetre);
}

TEST(SurveyedPositions, placeWhatHasNoRowByItsDistanceSoFar) {
  // Every other geophone was surveyed, 4 m apart instead of 2, and no shot.
  SurveyGeometry geometry = lineOf(9, 2.0, {-3.0, 7.0});
  std::vector<SurveyedRow> rows;
  for (int i = 2; i <= 6; i += 2) rows.push_back(row(i, onLine(4.0 * i, 0.0, 0.0), 10.0 * i));
  SurveyedOptions options;
  options.epsg = 32632;
  const SurveyedOutcome outcome = placed(rows, options, geometry);
  std::vector<double> x;
  std::vector<double> z;
  for (const GeometryPlace& place : outcome.geometry.strings[0]) {
    x.push_back(place.x);
    z.push_back(place.z);
  }
  EXPECT_THAT(x, ElementsAre(0, 2, 6, 10, 14, 18, 20, 22, 24));
  EXPECT_THAT(z, ElementsAre(20, 20, 30, 40, 50, 60, 60, 60, 60));
  EXPECT_EQ(outcome.geometry.shots[0].place.x, -3.0);
  EXPECT_EQ(outcome.geometry.shots[1].place.x, 12.0);
  ASSERT_EQ(outcome.findings.size(), 1U);
  EXPECT_EQ(describe(outcome.findings[0], outcome, rows).english(),
            "Without a row, placed among those that have one by the distances so far: geophones 1, "
            "3, 5, 7-9 and shots 1-2");
  expectAt({outcome.map->ends.mEastFstGeoph, outcome.map->ends.mNorthFstGeoph},
           onLine(6.0, 0.0, 0.0));
  expectAt(placementOf(outcome).at(24.0), onLine(30.0, 0.0, 0.0));

  // Where all stand in one heap, nothing tells where those without a row are.
  for (GeometryPlace& place : geometry.strings[0]) place.x = 0.0;
  EXPECT_EQ(placed(rows, {}, geometry).findings[0].fault, SurveyedFault::kLeft);
}

TEST(SurveyedPositions, findTheGeophonesThatRowsAreOf) {
  // Two strings that overlap: ten geophones at eight places.
  SurveyGeometry geometry = lineOf(5, 5.0, {0.0, 12.5, 12.5});
  geometry.strings.push_back(geometry.strings[0]);
  for (GeometryPlace& place : geometry.strings[1]) place.x += 15.0;
  ASSERT_EQ(stationsOf(geometry).size(), 8U);
  std::vector<SurveyedRow> byDistance;
  for (const double x : {0.0, 5.0, 10.0, 12.5, 15.0, 20.0, 25.0, 30.0, 35.0, 99.0}) {
    byDistance.push_back(row(0, onLine(1.1 * x, 0.0, 0.0)));
    byDistance.back().number = x;
    byDistance.back().name = std::to_string(x);
  }
  EXPECT_EQ(proposeStations(byDistance, geometry), StationsBy::kDistance);
  SurveyedOptions options;
  options.stations = StationsBy::kDistance;
  const SurveyedOutcome outcome = placed(byDistance, options, geometry);
  EXPECT_NEAR(outcome.geometry.strings[0][4].x, 22.0, kMillimetre);
  EXPECT_EQ(outcome.geometry.strings[0][4].x, outcome.geometry.strings[1][1].x);
  EXPECT_NEAR(outcome.geometry.shots[2].place.x, 13.75, kMillimetre);
  EXPECT_EQ(outcome.geometry.shots[0].place.x, outcome.geometry.strings[0][0].x);
  ASSERT_EQ(outcome.findings.size(), 1U);
  EXPECT_THAT(describe(outcome.findings[0], outcome, byDistance).english(),
              HasSubstr("Not used, for no geophone or shot of the survey is there: line 1 ("));

  const std::vector<SurveyedRow> byNumber = straightRows(8, 5.0, 0.0);
  EXPECT_EQ(proposeStations(byNumber, geometry), StationsBy::kNumber);
  std::vector<SurveyedRow> pegs = byNumber;
  for (SurveyedRow& peg : pegs) *peg.number += 1000.0;
  EXPECT_EQ(proposeStations(pegs, geometry), StationsBy::kOrder);
  options.stations = StationsBy::kOrder;
  EXPECT_NEAR(placed(pegs, options, geometry).geometry.strings[1].back().x, 35.0, kMillimetre);
}

TEST(SurveyedPositions, sayWhatIsDoubtful) {
  const struct {
    SurveyedFault fault;
    LineShape shape;
    std::function<void(std::vector<SurveyedRow>&)> spoil;
    const char* text;
  } cases[] = {
      {SurveyedFault::kFarAcross, LineShape::kThroughEnds,
       [](auto& rows) { rows[4].place = onLine(20.0, 2.6, 0.5); }, "spacing of 5 m: geophone 5"},
      {SurveyedFault::kDoubled, LineShape::kFitted,
       [](auto& rows) { rows[4].place = onLine(15.1, 0.0, 0.5); }, "neighbours: geophone 5"},
      {SurveyedFault::kRunsBack, LineShape::kFitted,
       [](auto& rows) { std::swap(rows[4].place, rows[7].place); }, "back to geophones 6, 8"},
      {SurveyedFault::kRunsBack, LineShape::kBent,
       [](auto& rows) { std::swap(rows[4].place, rows[5].place); }, "back to geophones 6-7"},
      {SurveyedFault::kGap, LineShape::kFitted,
       [](auto& rows) {
         for (std::size_t i = 6; i < rows.size(); ++i) {
           rows[i].place = onLine(5.0 * static_cast<double>(i) + 5.0, 0.0, 0.5);
         }
       },
       "as expected: geophone 7"},
      {SurveyedFault::kRowTwice, LineShape::kFitted,
       [](auto& rows) { rows.push_back(row(3, onLine(99.0, 0.0, 0.5))); }, ": line 4 ("},
      {SurveyedFault::kRowUnused, LineShape::kFitted,
       [](auto& rows) {
         for (SurveyedRow& each : rows) each.kind = SurveyedKind::kGeophone;
         rows.insert(rows.begin(), row(1, onLine(99.0, 7.0, 0.5)));
       },
       "is there: line 2 ("},
      {SurveyedFault::kNoElevation, LineShape::kFitted,
       [](auto& rows) { rows[2].elevation = std::nan(""); }, "others: geophone 3"},
  };
  const SurveyGeometry geometry = lineOf(12, 5.0, {});
  EXPECT_THAT(placed(straightRows(12, 5.0, 0.5), {}, geometry).findings, IsEmpty());
  for (const auto& c : cases) {
    std::vector<SurveyedRow> rows = straightRows(12, 5.0, 0.5);
    c.spoil(rows);
    SurveyedOptions options;
    options.shape = c.shape;
    const SurveyedOutcome outcome = placed(rows, options, geometry);
    std::string told;
    for (const SurveyedFinding& finding : outcome.findings) {
      if (finding.fault == c.fault) told = describe(finding, outcome, rows);
    }
    EXPECT_THAT(told, HasSubstr(c.text)) << static_cast<int>(c.fault);
  }
}

TEST(SurveyedPositions, refuseWhatGivesNoLine) {
  SurveyedOutcome outcome;
  const SurveyGeometry geometry = lineOf(3, 5.0, {});
  EXPECT_THAT(placeSurveyed({}, {}, geometry, outcome).message(), HasSubstr("fewer than two"));
  const std::vector<SurveyedRow> heap = {row(1, kOrigin), row(2, kOrigin), row(3, kOrigin)};
  for (const LineShape shape : {LineShape::kFitted, LineShape::kThroughEnds, LineShape::kBent}) {
    SurveyedOptions options;
    options.shape = shape;
    EXPECT_THAT(placeSurveyed(heap, options, geometry, outcome).message(),
                HasSubstr("at one place on the map"));
  }
  EXPECT_THAT(outcome.points, IsEmpty());
}

}  // namespace
}  // namespace talvesk

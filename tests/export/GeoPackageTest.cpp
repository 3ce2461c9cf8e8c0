#include "export/GeoPackage.h"
#include "export/SectionGeoPackage.h"
#include "model/Annotations.h"
#include "model/GeographicsCoord.h"
#include "model/SurveyLine.h"
#include "support/ConsoleCapture.h"
#include "support/SectionDocument.h"
#include "support/TestFolder.h"
#include "view/SectionScene.h"

#include <cstring>
#include <limits>
#include <memory>

#include <gmock/gmock.h>
#include <sqlite3.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

/// A file as SQLite reads it.
class Tables {
 public:
  explicit Tables(const std::string& path) {
    sqlite3* database = nullptr;
    EXPECT_EQ(sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READONLY, nullptr), SQLITE_OK);
    mDatabase.reset(database);
  }

  /// All fields of all rows, one after the other.
  std::vector<std::string> ask(const std::string& question) const {
    sqlite3_stmt* statement = nullptr;
    EXPECT_EQ(sqlite3_prepare_v2(mDatabase.get(), question.c_str(), -1, &statement, nullptr),
              SQLITE_OK)
        << sqlite3_errmsg(mDatabase.get());
    std::vector<std::string> fields;
    while (sqlite3_step(statement) == SQLITE_ROW) {
      for (int i = 0; i < sqlite3_column_count(statement); ++i) {
        const void* bytes = sqlite3_column_blob(statement, i);
        const int size = sqlite3_column_bytes(statement, i);
        fields.emplace_back(static_cast<const char*>(bytes), bytes ? size : 0);
      }
    }
    sqlite3_finalize(statement);
    return fields;
  }

 private:
  std::unique_ptr<sqlite3, int (*)(sqlite3*)> mDatabase{nullptr, sqlite3_close};
};

double doubleAt(const std::string& bytes, std::size_t offset) {
  double value = 0.0;
  EXPECT_LE(offset + sizeof value, bytes.size());
  std::memcpy(&value, bytes.data() + offset, sizeof value);
  return value;
}

/// Three rows of ten cells of 1 m, level ground at 100 m, 100 m/s more in every row; the line runs
/// along (0.6, 0.8) of the map.
TomoDocument placed() {
  TomoDocument document = sectionDocument(
      3, 10, 0.0, [](std::uint32_t row, std::uint32_t) { return 500.0 + 100.0 * row; });
  document.title = "Valley; DROP TABLE \"line\" 'x'";
  document.map.edit().geoCoord = {32632, 652000.0, 652004.8, 5074000.0, 5074006.4};
  document.map.edit().geoCoord_isSet = true;
  return document;
}

DrawingOptions lines() {
  DrawingOptions options;
  options.isovalues = {600.0, 650.0, 9000.0};
  options.refractors = {
      {"first", {{{101.0, 97.0}, {103.0, 96.5}}, {{105.0, 96.0}, {107.0, 96.0}}}}};
  return options;
}

TEST(SectionGeoPackage, isAGeoPackageOfTheSystemOfTheLine) {
  const ConsoleCapture console;
  const TestFolder folder;
  ASSERT_TRUE(writeSectionGeoPackage(folder.file("s.gpkg"), placed(), lines()).ok());
  EXPECT_EQ(folder.entries(), 1) << "no journal is left";
  const Tables tables(folder.file("s.gpkg"));
  EXPECT_THAT(tables.ask("PRAGMA application_id"), ElementsAre("1196444487"));
  EXPECT_THAT(tables.ask("PRAGMA integrity_check"), ElementsAre("ok"));
  EXPECT_TRUE(tables.ask("PRAGMA foreign_key_check").empty());
  EXPECT_THAT(tables.ask("SELECT srs_id FROM gpkg_spatial_ref_sys ORDER BY srs_id"),
              ElementsAre("-1", "0", "4326", "32632"));
  EXPECT_THAT(tables.ask("SELECT definition FROM gpkg_spatial_ref_sys WHERE srs_id = 32632"),
              ElementsAre(StartsWith("PROJCS[\"WGS 84 / UTM zone 32N\"")));
  EXPECT_THAT(
      tables.ask("SELECT table_name FROM gpkg_contents WHERE srs_id = 32632"),
      ElementsAre("line", "geophones", "shots", "isolines", "refractors", "isovalue_depths"));
  EXPECT_THAT(tables.ask("SELECT count(*) FROM gpkg_geometry_columns WHERE z = 1 AND m = 0"),
              ElementsAre("6"));
  EXPECT_THAT(tables.ask("SELECT title FROM line"), ElementsAre("Valley; DROP TABLE \"line\" 'x'"));
}

TEST(SectionGeoPackage, placesFeaturesWithTheirNumbersAndElevations) {
  const ConsoleCapture console;
  const TestFolder folder;
  TomoDocument document = placed();
  document.line.edit().goephonesStringSet.push_back({{103.0, 100.0}, {std::nan(""), 100.0}});
  ASSERT_TRUE(writeSectionGeoPackage(folder.file("s.gpkg"), document, lines()).ok());
  const Tables tables(folder.file("s.gpkg"));
  EXPECT_THAT(tables.ask("SELECT string, number, distance_m, elevation_m FROM geophones WHERE "
                         "string = 2"),
              ElementsAre("2", "1", "103.0", "100.0"))
      << "one without a place is left out";
  const std::string point = tables.ask("SELECT geom FROM geophones WHERE string = 2").at(0);
  ASSERT_EQ(point.size(), 8U + 5U + 24U);
  EXPECT_THAT(point, StartsWith(std::string("GP\0\1\x78\x7F\0\0\1\xE9\3\0\0", 13)));
  EXPECT_NEAR(doubleAt(point, 13), 652000.0 + 0.6 * 3.0, 1e-6);
  EXPECT_NEAR(doubleAt(point, 21), 5074000.0 + 0.8 * 3.0, 1e-6);
  EXPECT_EQ(doubleAt(point, 29), 100.0);

  EXPECT_THAT(tables.ask("SELECT number, name FROM refractors"),
              ElementsAre("1", "first", "1", "first"));
  const std::string line = tables.ask("SELECT geom FROM refractors").at(0);
  ASSERT_EQ(line.size(), 8U + 32U + 9U + 48U);
  EXPECT_NEAR(doubleAt(line, 8), 652000.6, 1e-6) << "its box: least easting";
  EXPECT_NEAR(doubleAt(line, 32), 5074002.4, 1e-6) << "greatest northing";
  EXPECT_EQ(doubleAt(line, 8 + 32 + 9 + 24 + 16), 96.5);
  EXPECT_THAT(tables.ask("SELECT DISTINCT velocity_m_s FROM isolines ORDER BY 1"),
              ElementsAre("600.0", "650.0"));
}

TEST(SectionGeoPackage, tellsHowDeepAnIsovalueIs) {
  const ConsoleCapture console;
  const TestFolder folder;
  ASSERT_TRUE(writeSectionGeoPackage(folder.file("s.gpkg"), placed(), lines()).ok());
  const Tables tables(folder.file("s.gpkg"));
  // 600 m/s is the middle of the second row: between corners of 550 at 1 m and 650 at 2 m.
  EXPECT_THAT(tables.ask("SELECT count(*), min(round(depth_m, 9)), max(round(depth_m, 9)) FROM "
                         "isovalue_depths WHERE velocity_m_s = 600"),
              ElementsAre("10", "1.5", "1.5"));
  EXPECT_THAT(tables.ask("SELECT count(*) FROM isovalue_depths WHERE velocity_m_s = 9000"),
              ElementsAre("0"));
}

TEST(SectionGeoPackage, hasMarkedIsolinesWithTheirNamesWhateverElseIsAskedFor) {
  const ConsoleCapture console;
  const TestFolder folder;
  TomoDocument document = placed();
  document.annotations.edit().isolines = {
      {"water 'table'", 625.0}, {"known", 650.0}, {"", 575.0}, {"rock", 9000.0}};
  ASSERT_TRUE(writeSectionGeoPackage(folder.file("s.gpkg"), document, lines()).ok());
  const Tables tables(folder.file("s.gpkg"));
  EXPECT_THAT(tables.ask("SELECT DISTINCT velocity_m_s, name FROM isolines ORDER BY 1"),
              ElementsAre("575.0", "", "600.0", "", "625.0", "water 'table'", "650.0", "known"));
  EXPECT_THAT(tables.ask("SELECT count(*), min(round(depth_m, 9)) FROM isovalue_depths WHERE name "
                         "LIKE 'water%'"),
              ElementsAre("10", "1.75"));
}

TEST(SectionGeoPackage, hasMarkedIsolinesBesideAsManyIsovaluesAsThereMayBe) {
  const ConsoleCapture console;
  const TestFolder folder;
  TomoDocument document = placed();
  document.annotations.edit().isolines = {{"water table", 625.0}};
  DrawingOptions many;
  for (std::size_t i = 0; i + 1 < SectionSceneOptions::kMaxContours; ++i) {
    many.isovalues.push_back(5000.0 + static_cast<double>(i));
  }
  many.isovalues.push_back(600.0);
  ASSERT_TRUE(writeSectionGeoPackage(folder.file("s.gpkg"), document, many).ok());
  const Tables tables(folder.file("s.gpkg"));
  EXPECT_THAT(tables.ask("SELECT DISTINCT velocity_m_s, name FROM isolines ORDER BY 1"),
              ElementsAre("600.0", "", "625.0", "water table"));
  EXPECT_THAT(tables.ask("SELECT count(*) FROM isovalue_depths WHERE name = 'water table'"),
              ElementsAre("10"));
}

TEST(IsovalueDepths, areThoseOfTheShallowestLine) {
  SectionScene drawing;
  drawing.mesh = {
      1, 2, {{0.0, 10.0}, {1.0, 10.0}, {2.0, 12.0}, {0.0, 0.0}, {1.0, 0.0}, {2.0, 0.0}}, {1, 1}};
  drawing.contourLevels = {700.0};
  drawing.contours = {{700.0, false, {{0.0, 4.0}, {2.0, 8.0}}},
                      {700.0, true, {{1.2, 2.0}, {1.8, 2.0}, {1.5, 9.0}}}};
  const auto depths = isovalueDepths(drawing);
  ASSERT_EQ(depths.size(), 2U);
  EXPECT_EQ(depths[0].x, 0.5);
  EXPECT_EQ(depths[0].depth, 10.0 - 5.0);
  EXPECT_EQ(depths[1].surface, 11.0);
  EXPECT_EQ(depths[1].depth, 11.0 - 9.0) << "the tip of the closed line";
}

TEST(GeoPackage, keepsASystemThatIsNotKnownByItsCode) {
  const TestFolder folder;
  GeoPackage file(999999, "", "");
  file.addLayer("places", "", GeoPackage::Geometry::kPoint, {{"value"}});
  file.addFeature({{1.0, 2.0, 3.0}}, {std::numeric_limits<double>::quiet_NaN()});
  file.addFeature({{1.0, std::numeric_limits<double>::infinity(), 3.0}}, {1.0});
  ASSERT_TRUE(file.write(folder.file("s.gpkg")).ok());
  const Tables tables(folder.file("s.gpkg"));
  EXPECT_THAT(tables.ask("SELECT srs_name, definition FROM gpkg_spatial_ref_sys WHERE srs_id = "
                         "999999"),
              ElementsAre("EPSG:999999", "undefined"));
  EXPECT_THAT(tables.ask("SELECT count(*), count(value) FROM places"), ElementsAre("1", "0"));
}

TEST(GeoPackage, tellsWhyItCannotBeWritten) {
  const ConsoleCapture console;
  const TestFolder folder;
  TomoDocument nowhere = placed();
  nowhere.map.edit().geoCoord_isSet = false;
  EXPECT_THAT(writeSectionGeoPackage(folder.file("s.gpkg"), nowhere, lines()).message(),
              HasSubstr("no place on the map"));
  EXPECT_THAT(writeSectionGeoPackage(folder.file("no/s.gpkg"), placed(), lines()).message(),
              HasSubstr("no/s.gpkg"));
  GeoPackage twice(32632, "", "");
  twice.addLayer("same", "", GeoPackage::Geometry::kPoint, {});
  twice.addLayer("same", "", GeoPackage::Geometry::kPoint, {});
  EXPECT_THAT(twice.write(folder.file("s.gpkg")).message(), HasSubstr("same"));
  EXPECT_EQ(folder.entries(), 0);
}

}  // namespace
}  // namespace talvesk

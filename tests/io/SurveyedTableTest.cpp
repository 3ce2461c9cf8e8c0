#include "io/AngleText.h"
#include "io/SurveyedTable.h"
#include "support/CommaLocale.h"
#include "support/ConsoleCapture.h"

#include <cmath>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using testing::ConsoleCapture;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

SurveyedReading readingOf(const std::string& text) {
  SurveyedTable table;
  SurveyedReading reading;
  Status status = SurveyedTable::parse(text, "points.csv", table);
  if (status.ok()) status = table.read(table.proposed(), 0, reading);
  EXPECT_TRUE(status.ok()) << status.message() << " in\n" << text;
  return reading;
}

std::string complaintOf(const std::string& text) {
  SurveyedTable table;
  SurveyedReading reading;
  Status status = SurveyedTable::parse(text, "points.csv", table);
  if (status.ok()) status = table.read(table.proposed(), 0, reading);
  EXPECT_TRUE(status.ok() || reading.rows.empty());
  return status.message();
}

TEST(SurveyedTable, knowsColumnsByTheirNamesAndSeparators) {
  const ConsoleCapture console;
  const testing::CommaNumbers commas;
  const char* const tables[] = {
      "name,easting,northing,elevation\nG2,566245.5,7632624.25,606.5\n",
      "Name;Rechtswert;Hochwert;H\xC3\xB6he\nGeophon 2;566245,5;7632624,25;606,5\n",
      "Name;Rechtswert;Hochwert;H\xF6he [m]\nGeophon 2;566245,5;7632624,25;606,5\n",
      "Punto\tQuota (m)\tNord\tEst\nR2\t606,5\t7632624,25\t566245,5\n",
      "# surveyed by hand\n\nEstaci\xC3\xB3n Este_(m) Norte_(m) Elevaci\xC3\xB3n\n"
      "g2 566245.5 7632624.25 606.5\n",
      "No,Code,X [m],Y [m],Z [ft]\n2,G\xC3\xA9ophone,566245.5,7632624.25,1989.8293963254593\n",
      "\"pt\",\"type\",\"E\",\"N\",\"alt\"\n\"2\",\"R\",\"566245.5\",\"7632624.25\",\"606.5\"\n",
      "G2 566245,5 7632624,25 606,5\n",
      "G2,566245.5,7632624.25,606.5\n",
      "punkt;a;b;c\ng2;566245.5;7632624.25;606.5\n",
  };
  for (const char* text : tables) {
    SCOPED_TRACE(text);
    const SurveyedReading reading = readingOf(text);
    ASSERT_EQ(reading.rows.size(), 1U);
    const SurveyedRow& row = reading.rows[0];
    EXPECT_EQ(row.place.easting, 566245.5);
    EXPECT_EQ(row.place.northing, 7632624.25);
    EXPECT_NEAR(row.elevation, 606.5, 1e-9);
    EXPECT_EQ(row.number, 2.0);
    EXPECT_EQ(row.kind, SurveyedKind::kGeophone);
    EXPECT_EQ(reading.epsg, 0);
  }
}

TEST(SurveyedTable, knowsShotsAndGeophonesByTheirNames) {
  const SurveyedReading reading = readingOf(
      "station;type;x;y\n"
      "S3;;1;2\nShot 12;;1;2\nSP-7;;1;2\nTiro 4;;1;2\n12;S;1;2\n12;shot;1;2\n12,5;;1;2\n"
      "peg 9;;1;2\nG-1-12;;1;2\n;;1;2\nend;;1;2\n7;;;\n");
  using Kind = SurveyedKind;
  const std::pair<Kind, double> expected[] = {
      {Kind::kShot, 3},      {Kind::kShot, 12},    {Kind::kShot, 7},       {Kind::kShot, 4},
      {Kind::kShot, 12},     {Kind::kShot, 12},    {Kind::kStation, 12.5}, {Kind::kStation, 9},
      {Kind::kGeophone, 12}, {Kind::kStation, -1}, {Kind::kStation, -1}};
  ASSERT_EQ(reading.rows.size(), std::size(expected));
  for (std::size_t i = 0; i < reading.rows.size(); ++i) {
    EXPECT_EQ(reading.rows[i].kind, expected[i].first) << i;
    EXPECT_EQ(reading.rows[i].number.value_or(-1), expected[i].second) << i;
    EXPECT_TRUE(std::isnan(reading.rows[i].elevation));
  }
  EXPECT_THAT(reading.without, ElementsAre(13U));
}

TEST(SurveyedTable, projectsLongitudeAndLatitude) {
  const ConsoleCapture console;
  const char* const tables[] = {
      "name,lat,lon,ele\n1,45.802816454347,10.956078145340,59\n",
      "Nr;L\xC3\xA4nge;Breite;H\xC3\xB6he\n1;10,956078145340;45,802816454347;59\n",
      "id\tLatitude\tLongitude\n1\t45\xC2\xB0 48' 10.139236\" N\t10\xC2\xB0 57' 21.881323\" E\n",
      "id,Latitude,Longitude\n1,\"45\xC2\xB0"
      "48'10.139236\"\"N\",E 10 57.364688720\n",
  };
  for (const char* text : tables) {
    SCOPED_TRACE(text);
    const SurveyedReading reading = readingOf(text);
    ASSERT_EQ(reading.rows.size(), 1U);
    EXPECT_EQ(reading.epsg, 32632);
    EXPECT_NEAR(reading.rows[0].place.easting, 652000.0, 0.01);
    EXPECT_NEAR(reading.rows[0].place.northing, 5074000.0, 0.01);
  }
  SurveyedTable table;
  SurveyedReading reading;
  ASSERT_TRUE(SurveyedTable::parse(tables[0], "a", table).ok());
  ASSERT_TRUE(table.read(table.proposed(), 32633, reading).ok());
  EXPECT_EQ(reading.epsg, 32633);
  EXPECT_LT(reading.rows[0].place.easting, 200000.0) << "seen from the zone beside";
  EXPECT_THAT(table.read(table.proposed(), 4326, reading).message(), HasSubstr("not a projected"));
}

TEST(AngleText, readsWhatReceiversAndMapsWrite) {
  const auto kOff = std::numeric_limits<double>::quiet_NaN();
  const struct {
    const char* text;
    double longitude;  ///< NaN: refused
  } cases[] = {{"-47.25", -47.25},
               {"47,25", 47.25},
               {" +47.25\xC2\xB0 ", 47.25},
               {"47.25W", -47.25},
               {"w 47 15", -47.25},
               {"47 15 0", 47.25},
               {"47:15:00.0", 47.25},
               {"-0 15 0", -0.25},
               {"\xE2\x88\x92"
                "47.25",
                -47.25},
               {"47d15m0s", 47.25},
               {"47d15m0sW", -47.25},
               {"47\xC2\xB0"
                "15\xE2\x80\xB2"
                "0\xE2\x80\xB3"
                "E",
                47.25},
               {"47\xC2\xB0"
                "15'W",
                -47.25},
               {"180", 180.0},
               {"180.1", kOff},
               {"47 60", kOff},
               {"47.5 15", kOff},
               {"47 15 0 0", kOff},
               {"47.25N", kOff},
               {"47.25O", kOff},
               {"-47.25W", kOff},
               {"47 E 15", kOff},
               {"1e2", kOff},
               {"", kOff},
               {"east", kOff},
               {"47.2.5", kOff},
               {"nan", kOff}};
  for (const auto& c : cases) {
    double degrees = 1e9;
    const NumberError error = parseAngle(c.text, GlobeAngle::kLongitude, degrees);
    EXPECT_EQ(error == NumberError::kNone, !std::isnan(c.longitude)) << c.text;
    EXPECT_NEAR(degrees, std::isnan(c.longitude) ? 1e9 : c.longitude, 1e-12) << c.text;
  }
  double latitude = 0.0;
  EXPECT_EQ(parseAngle("33.5S", GlobeAngle::kLatitude, latitude), NumberError::kNone);
  EXPECT_EQ(latitude, -33.5);
  EXPECT_EQ(parseAngle("90.5", GlobeAngle::kLatitude, latitude), NumberError::kOutOfRange);
}

TEST(SurveyedTable, refusesWhatIsNoTableOfPositions) {
  const ConsoleCapture console;
  const struct {
    std::string text;
    const char* complaint;
  } cases[] = {
      {"", "points.csv: it is empty"},
      {"\n\n  \n", "points.csv: it is empty"},
      {"name,x,y,z\n", "points.csv: it holds no point"},
      {"x,z\n0,606\n5,605\n", "which columns hold easting and northing"},
      {"0 606\n5 605\n", "which columns hold easting and northing"},
      {"PK\x03\x04 binary", "which columns hold easting and northing"},
      {"name,x,y\n1,10,abc\n", "points.csv, line 2: in column \"y\" stands \"abc\""},
      {"name,x,y\n1,10,20\n2,10,\n", "line 3: in column \"y\""},
      {"name,x,y\n1,10,1e300\n", "which is out of range"},
      {"name,x,y\n1,10,nan\n", "line 2: in column \"y\""},
      {"name,x,y,z\n1,10,20,high\n", "in column \"z\" stands \"high\""},
      {"name,lat,lon\n1,45,181\n", "line 2: in column \"lon\""},
      {"name;lat;lon\n1;45 O;10\n", "line 2: in column \"lat\""},
  };
  for (const auto& c : cases) {
    EXPECT_THAT(complaintOf(c.text), HasSubstr(c.complaint)) << c.text;
  }
  std::string many = "x,y,z\n";
  for (std::size_t i = 0; i <= SurveyedTable::kMostRows; ++i) many += "1,2,3\n";
  EXPECT_THAT(complaintOf(many), HasSubstr("more than 20000 rows"));
}

TEST(SurveyedTable, takesColumnsAndSeparatorsThatAreChosen) {
  SurveyedTable table;
  ASSERT_TRUE(SurveyedTable::parse("a b c d\n1,5 2,5 G3 4\n", "t", table).ok());
  EXPECT_THAT(table.columns(), ElementsAre("a", "b", "c", "d"));
  EXPECT_THAT(table.firstRows(9), ElementsAre(ElementsAre("1,5", "2,5", "G3", "4")));
  SurveyedColumns columns;
  columns.east = 1;
  columns.north = 3;
  columns.station = 2;
  SurveyedReading reading;
  ASSERT_TRUE(table.read(columns, 0, reading).ok());
  EXPECT_EQ(reading.rows[0].place.easting, 2.5);
  EXPECT_EQ(reading.rows[0].place.northing, 4.0);
  EXPECT_EQ(reading.rows[0].name, "G3");
  columns.north = 99;
  EXPECT_FALSE(table.read(columns, 0, reading).ok());
  table.separateBy(',');
  EXPECT_THAT(table.columns(), ElementsAre("a b c d"));
  EXPECT_THAT(table.firstRows(1), ElementsAre(ElementsAre("1")));
}

}  // namespace
}  // namespace talvesk

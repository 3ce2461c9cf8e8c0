#include "io/ElevationTable.h"
#include "io/NamedPositions.h"
#include "support/TestFolder.h"

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using namespace talvesk::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST(ElevationTable, isReadWithAHeadingOrAsTwoColumns) {
  for (const char* text :
       {"0 100.5\n5 -2\n", "0\t100.5\r\n\r\n5\t-2", "# x;z\n0;100.5\n5;-2\n", "0,100.5\n5,-2\n",
        "0, 100.5\n5, -2\n", "0 100,5\n5 -2\n", "0;100,5\n5;-2,0\n",
        "\xEF\xBB\xBF"
        "0 100.5\n5 -2\n",
        "Distance (m),name,Elevation (m)\n0,A,100.5\n5,B,-2\n",
        "z [cm]\tx [km]\n10050\t0\n-200\t0.005\n",
        "line 3\nstation;x;y;height\n1;0;7;100,5\n2;5;7;-2\n"}) {
    std::vector<Point2D> points;
    const Status status = parseElevationTable(text, "a.txt", points);
    ASSERT_TRUE(status.ok()) << status.message() << text;
    EXPECT_THAT(points, ElementsAre(Point2D{0, 100.5}, Point2D{5, -2})) << text;
  }
}

TEST(ElevationTable, isRefusedWhereItIsNotPlain) {
  const struct {
    const char* text;
    const char* reason;
  } cases[] = {
      {"", "a.txt: it is empty"},
      {"0 1 2 100\n", "a.txt: it has 4 columns and no heading"},
      {"x;z\n", "a.txt: it holds no point"},
      {"x;z\n0;1\n5;high\n", "a.txt, line 3: in column \"z\" stands \"high\", which is not"},
      {"0 1\n5\n", "a.txt, line 2: in column 2 stands \"\""},
      {"0 1\n1e99 1\n", "a.txt, line 2: in column 1 stands \"1e99\", which is out of range"},
      {"0 1\nnan 1\n", "which is out of range"}};
  for (const auto& c : cases) {
    std::vector<Point2D> points = {{1, 2}};
    EXPECT_THAT(parseElevationTable(c.text, "a.txt", points).message(), HasSubstr(c.reason));
    EXPECT_THAT(points, ElementsAre(Point2D{1, 2}));
  }
}

const std::string kSurvey =
    "kind\tspread\tx\televation\n"
    "geophone\t1\t0\t100\ngeophone\t1\t5\t101\nreceiver\t2\t10\t102\nshot\t1\t2,5\t99,5\n";

TEST(NamedPositions, findTheRowsThatAreWanted) {
  const TestFolder folder;
  const struct {
    std::string text;
    WantedPositions wanted;
    GeometryRecords records;
    bool byName;
  } cases[] = {
      {kSurvey, {PositionsOf::kGeophones, 2, 0}, {{0, 100}, {5, 101}}, true},
      {kSurvey, {PositionsOf::kGeophones, 1, 1}, {{10, 102}}, true},
      {kSurvey, {PositionsOf::kShots, 1, 0}, {{2.5, 99.5}}, true},
      {"gx,sx,gz,sz\n0,1,2,3\n", {PositionsOf::kShots, 1, 0}, {{1, 3}}, true},
      {"gx,sx,gz,sz\n0,1,2,3\n", {PositionsOf::kGeophones, 1, 0}, {{0, 2}}, true},
      // The heading of a file that the separator fits may still name other columns.
      {"number;x;z\n1;0;100\n2;5;101\n",
       {PositionsOf::kGeophones, 2, 0},
       {{0, 100}, {5, 101}},
       true},
      {"x;z\n0;100\n5;101\n", {PositionsOf::kGeophones, 2, 0}, {{0, 100}, {5, 101}}, false},
      {"0;100\n5;101\n", {PositionsOf::kGeophones, 2, 0}, {{0, 100}, {5, 101}}, false},
      {"shot_id_1;7;8\n", {PositionsOf::kShots, 1, 0}, {{7, 8}}, false}};
  for (const auto& c : cases) {
    PositionTable table;
    bool byName = false;
    const std::string path = folder.put("a.csv", c.text);
    ASSERT_TRUE(readPositions(path, ";", c.wanted, table, byName).ok()) << c.text;
    EXPECT_EQ(table.records, c.records) << c.text;
    EXPECT_EQ(byName, c.byName) << c.text;
  }
}

TEST(NamedPositions, leaveWhatFitsNobodyToTheReaderOfTheSeparator) {
  const TestFolder folder;
  for (const std::string& text :
       {kSurvey, std::string("x\tz\n1\tup\n2\t3\n"), std::string("1,2\n3,4\n5,6\n")}) {
    const std::string path = folder.put("a.csv", text);
    PositionTable table;
    PositionTable stated;
    bool byName = true;
    const Status status = readPositions(path, ",", {PositionsOf::kGeophones, 7, 0}, table, byName);
    EXPECT_EQ(status.message(), readRecords(path, ",", stated).message());
    EXPECT_EQ(table.records, stated.records);
    EXPECT_FALSE(byName);
  }
  PositionTable table;
  EXPECT_THAT(parseNamedPositions("x;z\n1;2\n3;up\n", "a.csv", {}, table).message(),
              HasSubstr("a.csv, line 3: in column \"z\" stands \"up\""));
}

}  // namespace
}  // namespace talvesk

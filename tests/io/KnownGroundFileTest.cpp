#include "io/KnownGroundFile.h"
#include "support/CommaLocale.h"
#include "support/TestFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::HasSubstr;

constexpr const char* kHeading =
    "kind,name,x,offset,depth,bottom,velocity,error,refractor,above,below\n";

KnownGround someGround() {
  KnownGround known;
  known.boreholes = {{"B 1, north", 12.5, -1.25, {{0, 2.4, 380, 20}, {2.4, 7.1, 1450, 0}}},
                     {"B2", 40, 0, {{1.0 / 3.0, 5, 600, 0}}}};
  known.depths = {{"P1", 3, 4.2, 0.3, 1, 0, 400, 1500}, {"P2", 33, 5, 0, 0, 1200}};
  known.bodies = {{"wall", 3500, {{20, 0}, {22, 0}, {22, 3}}}};
  return known;
}

TEST(KnownGroundFile, bringsBackWhatWasWritten) {
  const testing::CommaStreams streams;
  const testing::CommaNumbers numbers;
  const testing::TestFolder folder;
  const std::string path = folder.file("known.csv");
  ASSERT_TRUE(writeKnownGround(path, someGround()).ok());
  KnownGround read;
  const Status status = readKnownGround(path, read);
  ASSERT_TRUE(status.ok()) << status.message();
  EXPECT_EQ(read, someGround());
}

TEST(KnownGroundFile, readsTablesAsPeopleWriteThem) {
  const std::string rows =
      "# of the drilling in May\n"
      "Name; Kind; x (m); Depth (m); Bottom; Velocity (m/s)\n\n"
      "B1; borehole; 10; 0; 2; 400\n"
      "# below the water table\n"
      "B1; borehole; 10; 2; 6; 1500\n"
      "; depth; 30; 5; ; 1200\n"
      "W; body; 1; 0; ; 340\nW; body; 2; 0\nW; body; 2; 1";
  for (const std::string& text : {rows, "\xEF\xBB\xBF" + rows}) {
    KnownGround known;
    const Status status = parseKnownGround(text, "a.csv", known);
    ASSERT_TRUE(status.ok()) << status.message();
    ASSERT_EQ(known.boreholes.size(), 1U);
    EXPECT_EQ(known.boreholes[0].layers.size(), 2U);
    EXPECT_EQ(known.boreholes[0].layers[1].velocity, 1500.0);
    EXPECT_EQ(known.depths.at(0).isovalue, 1200.0);
    EXPECT_EQ(known.depths[0].name, "P1");
    EXPECT_EQ(known.bodies.at(0).outline.size(), 3U);
  }
}

TEST(KnownGroundFile, namesTheLineThatCannotBe) {
  struct Case {
    const char* rows;
    const char* says;
  };
  const std::string long61(61, 'n');
  const std::string longName = "borehole," + long61 + ",1,,0,2,400\n";
  const Case cases[] = {
      {"", "there is no row"},
      {"bore,B1,1,,0,2,400\n", "line 2: \"bore\" is none of"},
      {"borehole,B1,1,,0,2,400\nborehole,B1,2,,2,3,500\n", "line 3: borehole B1 stands somewhere"},
      {"borehole,B1,1,,0,2,400\nborehole,B1,1,,1,3,500\n",
       "line 3: the layer from 1 m begins above"},
      {"borehole,B1,1,,2,2,400\n", "line 2: a layer from 2 m to 2 m"},
      {"borehole,,1,,0,2,400\n", "line 2: it has no name"},
      {"borehole,B1,1,,0,2,\n", "line 2: there is no velocity"},
      {"borehole,B1,1,,0,2\n", "line 2: there is no velocity"},
      {"borehole,B1,1e12,,0,2,400\n", "is no position"},
      {"borehole,B1,nan,,0,2,400\n", "\"nan\" is no number for x"},
      {"borehole,B1,1,,0,2,1e999\n", "is no number for velocity"},
      {"borehole,B1,1,,0,2,-400\n", "is no velocity of ground"},
      {"borehole,B1,1,,0,2,400,400\n", "less than its velocity"},
      {"borehole,B1,1,,0,2,400,,,100\n", "line 2: a borehole has no above"},
      {"borehole,B1,1,,0,2,400 m/s\n", "is no number for velocity"},
      {longName.c_str(), "its name is too long"},
      {"depth,P1,1,,0\n", "is no depth below the surface"},
      {"depth,P1,1,,5,,,-1\n", "is no error of a depth"},
      {"depth,P1,1,,5,,,,1.5\n", "is a whole one"},
      {"depth,P1,1,,5,,,,1e300\n", "is a whole one"},
      {"depth,P1,1,,5,,,,12\n", "refractors have the numbers"},
      {"depth,P1,1,,5,,,,,400,400\n", "nothing begins here"},
      {"body,W,1,,0,,300\nbody,W,2,,0,,300\n", "a.csv: body W: its outline needs three corners"},
      {"body,W,1,,0,,300\nbody,W,2,,0,,310\n", "line 3: body W has another velocity"},
      {"body,W,1,,0\n", "line 2: there is no velocity"},
  };
  for (const Case& each : cases) {
    KnownGround known = someGround();
    const Status status = parseKnownGround(kHeading + std::string(each.rows), "a.csv", known);
    EXPECT_FALSE(status.ok()) << each.rows;
    EXPECT_THAT(status.message(), HasSubstr(each.says)) << each.rows;
    EXPECT_EQ(known, someGround()) << each.rows;
  }
}

TEST(KnownGroundFile, refusesHeadingsThatItDoesNotKnow) {
  for (const char* text : {"", "\n\n", "1,2,3\n", "kind,name,x\n", "title\nkind,x,depth\n",
                           "kind,x,depth,speed\nbody,1,2,3\n", "kind,x (ft),depth\n"}) {
    KnownGround known;
    EXPECT_FALSE(parseKnownGround(text, "a.csv", known).ok()) << text;
    EXPECT_TRUE(known.empty());
  }
}

TEST(KnownGroundFile, endsWhereThereIsTooMuch) {
  std::string many = kHeading;
  for (std::size_t i = 0; i <= KnownGround::kMostThings; ++i) many += "depth,P,1,,5\n";
  std::string deep = kHeading;
  for (std::size_t i = 0; i <= KnownGround::kMostParts; ++i) deep += "body,W,1,,5,,300\n";
  for (const std::string& text : {many, deep}) {
    KnownGround known;
    const Status status = parseKnownGround(text, "a.csv", known);
    EXPECT_FALSE(status.ok());
    EXPECT_LT(status.message().size(), 300U);
  }
}

}  // namespace
}  // namespace talvesk

#include "export/LineOnMap.h"
#include "export/LinePlacement.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

TEST(LinePlacement, walksFromTheFirstGeophoneTowardsTheLast) {
  const struct {
    const char* what;
    geographicsCoord ends;  ///< east first, east last, north first, north last
    double distance;
    double easting, northing;
  } cases[] = {
      {"three four five", {0, 100.0, 130.0, 200.0, 240.0}, 25.0, 115.0, 220.0},
      {"north", {0, 100.0, 100.0, 200.0, 240.0}, 10.0, 100.0, 210.0},
      {"south", {0, 100.0, 100.0, 200.0, 140.0}, 10.0, 100.0, 190.0},
      {"east", {0, 100.0, 130.0, 200.0, 200.0}, 10.0, 110.0, 200.0},
      {"west", {0, 100.0, 30.0, 200.0, 200.0}, 10.0, 90.0, 200.0},
      {"before the first", {0, 100.0, 130.0, 200.0, 240.0}, -5.0, 97.0, 196.0},
      {"beyond the last", {0, 100.0, 103.0, 200.0, 204.0}, 50.0, 130.0, 240.0},
      {"no length", {0, 100.0, 100.0, 200.0, 200.0}, 10.0, 100.0, 200.0},
  };
  for (const auto& c : cases) {
    const MapPoint place = LinePlacement(c.ends).at(c.distance);
    EXPECT_NEAR(place.easting, c.easting, 1e-9) << c.what;
    EXPECT_NEAR(place.northing, c.northing, 1e-9) << c.what;
  }
}

TEST(LinePlacement, followsTheCourseOfALineThatHasOne) {
  // Ten metres east of which eight are level, then north; longer along the ground than on the map.
  const std::vector<MapVertex> course = {
      {0.0, {100.0, 200.0}}, {12.5, {110.0, 200.0}}, {32.5, {110.0, 220.0}}};
  const LinePlacement line({0, 100.0, 110.0, 200.0, 220.0}, course);
  EXPECT_EQ(line.length(), 32.5);
  const struct {
    double distance, easting, northing;
  } cases[] = {{0.0, 100.0, 200.0},  {5.0, 104.0, 200.0},  {12.5, 110.0, 200.0},
               {22.5, 110.0, 210.0}, {32.5, 110.0, 220.0}, {-2.5, 98.0, 200.0},
               {40.0, 110.0, 227.5}};
  for (const auto& c : cases) {
    EXPECT_NEAR(line.at(c.distance).easting, c.easting, 1e-9) << c.distance;
    EXPECT_NEAR(line.at(c.distance).northing, c.northing, 1e-9) << c.distance;
  }
  EXPECT_EQ(line.direction(-2.5).easting, 1.0) << "goes on as it begins";
  EXPECT_EQ(line.direction(5.0).northing, 0.0);
  EXPECT_EQ(line.direction(22.5).easting, 0.0);
  EXPECT_EQ(line.direction(40.0).northing, 1.0);
  EXPECT_NEAR(LinePlacement({0, 100.0, 130.0, 200.0, 240.0}).direction(7.0).easting, 0.6, 1e-12);
  EXPECT_TRUE(isCourse(course));
  EXPECT_FALSE(isCourse({{0.0, {}}}));
  EXPECT_FALSE(isCourse({{0.0, {}}, {0.0, {}}}));
  EXPECT_FALSE(isCourse({{0.0, {}}, {1.0, {std::numeric_limits<double>::infinity(), 0.0}}}));
}

TEST(LineOnMap, liesOnTheCourseOfABentLine) {
  TomoDocument document;
  const geographicsCoord ends{32632, 100.0, 110.0, 200.0, 220.0};
  document.map.edit().geoCoord = ends;
  document.map.edit().geoCoord_isSet = true;
  document.line.edit().goephonesStringSet = {{{5.0, 0.0}, {37.5, 0.0}}};
  document.line.edit().course = {
      ends, {{0.0, {100.0, 200.0}}, {12.5, {110.0, 200.0}}, {32.5, {110.0, 220.0}}}};
  const LineOnMap map(document);
  EXPECT_NEAR(map.at(17.5).easting, 110.0, 1e-9) << "the bend, 12.5 m from the first geophone";
  EXPECT_NEAR(map.at(17.5).northing, 200.0, 1e-9);
  EXPECT_EQ(map.direction(30.0).northing, 1.0);
  document.map.edit().geoCoord.mEastLstGeoph = 120.0;
  EXPECT_NEAR(LineOnMap(document).direction(30.0).easting, std::sqrt(0.5), 1e-12)
      << "other ends than those of the course";
}

TEST(LineEnds, areTheOutermostGeophonesWhateverTheOrderOfChannels) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  TomoDocument document;
  EXPECT_FALSE(lineEnds(document));
  document.line.edit().goephonesStringSet = {{{nan, 0.0}}};
  EXPECT_FALSE(lineEnds(document));
  document.line.edit().goephonesStringSet = {
      {{40.0, 0.0}, {20.0, 0.0}}, {}, {{nan, 0.0}, {60.0, 0.0}}};
  EXPECT_EQ(lineEnds(document)->first, 20.0);
  EXPECT_EQ(lineEnds(document)->length(), 40.0);
}

}  // namespace
}  // namespace talvesk

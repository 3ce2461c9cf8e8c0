#include "model/ElevationProfile.h"
#include "model/SurveyGeometry.h"
#include "numerics/Splines.h"

#include <cmath>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using Course = ElevationProfile::Course;

TEST(ElevationProfile, goesStraightOrSmoothlyThroughItsPointsAndFlatBeyond) {
  const std::vector<Point2D> points = {{30, 4}, {0, 1}, {10, 2}, {20, 0}, {10, 4}};
  const ElevationProfile straight(points);
  const ElevationProfile smooth(points, Course::kSmooth);
  for (const ElevationProfile* profile : {&straight, &smooth}) {
    for (const Point2D& known : {Point2D{-50, 1}, {0, 1}, {10, 3}, {20, 0}, {30, 4}, {99, 4}}) {
      EXPECT_EQ(profile->at(known.x), known.z) << known.x;
    }
    EXPECT_TRUE(profile->covers(30));
    EXPECT_FALSE(profile->covers(30.01));
  }
  EXPECT_EQ(straight.at(2.5), 1.5);
  Splines::BesselSpline bessel;
  bessel.build({0, 10, 20, 30}, {1, 3, 0, 4});
  EXPECT_EQ(smooth.at(12.5), std::round(bessel(12.5) * 1000) / 1000);
  EXPECT_NE(smooth.at(12.5), straight.at(12.5));
  EXPECT_EQ(ElevationProfile({{5, 7}}).at(-100), 7);
}

TEST(ElevationProfile, isGivenToEveryPositionThatThereIs) {
  SurveyGeometry geometry;
  geometry.strings = {{{0, 5, true}, {10, NAN, false}}, {{40, 0, false}, {NAN, NAN, false}}};
  geometry.shots.resize(1);
  geometry.shots[0].place = {-1, 0, false};
  const ElevationOutcome outcome = layOnto(ElevationProfile({{0, 100}, {20, 102}}), geometry);
  EXPECT_EQ(outcome.geophones, 3u);
  EXPECT_EQ(outcome.shots, 1u);
  EXPECT_EQ(outcome.beyond, 2u);
  EXPECT_EQ(geometry.strings[0][0].z, 100);
  EXPECT_EQ(geometry.strings[0][1].z, 101);
  EXPECT_EQ(geometry.strings[1][0].z, 102);
  EXPECT_TRUE(geometry.strings[1][0].typed);
  EXPECT_TRUE(std::isnan(geometry.strings[1][1].z));
  EXPECT_EQ(geometry.shots[0].place.z, 100);
}

}  // namespace
}  // namespace talvesk

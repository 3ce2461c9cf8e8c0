#include "refraction/Phantoming.h"
#include "support/Arrivals.h"
#include "support/ConsoleCapture.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using refractionDataStructure::layerStruct;
using refractionDataStructure::phantom;
using testing::ConsoleCapture;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::marks;
using testing::shotAt;

TEST(TimeShift, isTheMeanDifferenceOfTheFacingPicks) {
  const ShotArrivals shot = shotAt(10, {5, 10, 15, 20, 25, 30}, {.9, .9, .020, .024, 0.0, .050});
  layerStruct own = marks(0, {2, 2, 2, 2, 2, 1});
  // The line has 0.030 s at 15 m and 0.040 s at 20 m: 10 and 16 ms above the picks.
  const auto shift = shiftOntoLine(shot, 2, Side::kRight, {0.002, 0.0}, own);
  ASSERT_TRUE(shift);
  EXPECT_NEAR(*shift, 0.013, 1e-12);
  EXPECT_THAT(own.trasla, ElementsAre(0, 0, *shift, *shift, 0, 0));
}

TEST(TimeShift, isNoneWithoutAFacingPick) {
  const ShotArrivals shot = shotAt(10, {5, 10, 15}, {.9, .9, 0.0});
  layerStruct own = marks(0, {2, 2, 2});
  EXPECT_FALSE(shiftOntoLine(shot, 2, Side::kRight, {0.002, 0.0}, own));
  EXPECT_THAT(own.trasla, ElementsAre(0, 0, 0));
}

TEST(Merging, weighsALaterShotAsMuchAsAllBefore) {
  phantom curve;
  curve.layer = 2;
  curve.points = {{10, 0}, {20, 0}};
  curve.times = {-1.0, -1.0};
  const double expected[] = {0.040, 0.045, 0.0525};
  const double arrivals[] = {0.040, 0.050, 0.060};
  for (int i = 0; i < 3; ++i) {
    layerStruct own = marks(0, {2, 2});
    own.trasla = {0.001, 0.001};
    // The other trace misses its receiver by next to nothing.
    mergeInto(curve, shotAt(0, {10, 20.0000001}, {arrivals[i] - 0.001, 0.1}), own, Side::kRight);
    EXPECT_NEAR(curve.times[0], expected[i], 1e-12) << i;
  }
  EXPECT_EQ(curve.times[1], -1.0);
}

TEST(Curve, isTheEndShotsOwnLineWithTheOthersOnIt) {
  const ConsoleCapture console;
  const std::vector<double> receivers = {10, 20, 30, 40, 50};
  const std::vector<ShotArrivals> shots = {
      shotAt(0, receivers, {.01, .02, .040, .050, .0}),     // the end shot reaches 40 m
      shotAt(15, receivers, {.9, .018, .028, .038, .048}),  // 12 ms early
      shotAt(25, receivers, {.9, .9, .1, .1, .1}),          // disabled
      shotAt(45, receivers, {.1, .1, .1, .1, .0})};         // faces the other way
  std::vector<layerStruct> own = {marks(0, {1, 1, 2, 2, 2}), marks(1, {2, 1, 2, 2, 2}),
                                  marks(2, {2, 2, 2, 2, 2}), marks(3, {2, 2, 2, 2, 2})};
  own[2].enabled = false;
  const CurveOutcome outcome = buildCurve(shots, 0, 2, Side::kRight, own);
  ASSERT_TRUE(outcome.usable());
  EXPECT_EQ(outcome.ownPicks, 2U);
  const phantom& curve = outcome.curve;
  EXPECT_NEAR(curve.slope, 0.001, 1e-12);
  EXPECT_NEAR(curve.intercept, 0.010, 1e-12);
  ASSERT_EQ(curve.points.size(), 3U) << "receivers without an arrival are dropped";
  const double times[] = {0.040, 0.050, 0.060};
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(curve.points[i].x, 30.0 + 10.0 * static_cast<double>(i));
    EXPECT_NEAR(curve.times[i], times[i], 1e-12) << i;
  }
  EXPECT_NEAR(own[1].trasla[4], 0.012, 1e-12);
  EXPECT_EQ(own[1].trasla[0], 0.0) << "behind the shot";
  EXPECT_EQ(own[2].trasla[4], 0.0) << "disabled";
  EXPECT_THAT(console.out(), HasSubstr("ID Time\n"));
}

TEST(Curve, needsTwoPicksOfTheEndShotAtDifferentPlaces) {
  const ConsoleCapture console;
  const std::vector<double> receivers = {10, 20, 30};
  const std::vector<ShotArrivals> shots = {shotAt(0, receivers, {.01, .02, .0}),
                                           shotAt(5, receivers, {.01, .02, .03})};
  std::vector<layerStruct> own = {marks(0, {1, 2, 2}), marks(1, {2, 2, 2})};
  const CurveOutcome outcome = buildCurve(shots, 0, 2, Side::kRight, own);
  EXPECT_FALSE(outcome.usable());
  EXPECT_EQ(outcome.ownPicks, 1U);
}

}  // namespace
}  // namespace talvesk

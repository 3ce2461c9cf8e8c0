#include "refraction/Branches.h"
#include "refraction/LinearFit.h"
#include "support/Arrivals.h"
#include "support/ConsoleCapture.h"

#include <cmath>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using refractionDataStructure::layerStruct;
using testing::marks;
using testing::shotAt;

TEST(LinearFit, findsTheLineAndTellsIt) {
  const testing::ConsoleCapture console;
  // Five points: one quadruple and a remainder.
  const LinearFit fit = linearFit({0, 1, 2, 3, 4}, {1, 3, 5, 7, 9});
  EXPECT_DOUBLE_EQ(fit.slope, 2.0);
  EXPECT_DOUBLE_EQ(fit.intercept, 1.0);
  EXPECT_EQ(console.out(), "\nThe linear fit line is of the form:\n2x + 1\n");
}

TEST(LinearFit, divergesWhereThePointsGiveNoLine) {
  const testing::ConsoleCapture console;
  EXPECT_FALSE(std::isfinite(linearFit({2, 2}, {1, 3}).slope));
  EXPECT_FALSE(std::isfinite(linearFit({}, {}).slope));
}

TEST(LayerVelocity, isTheMeanOverBothSidesOfAllShots) {
  const testing::ConsoleCapture console;
  const std::vector<ShotArrivals> shots = {
      shotAt(10, {0, 5, 10, 15, 20}, {0.020, 0.010, 0.0, 0.005, 0.010}),  // 500 and 1000 m/s
      shotAt(0, {0, 5, 10, 15, 20}, {0, 0.010, 0.020, 0, 0})};            // 500 m/s
  const std::vector<layerStruct> all = {marks(0, {1, 1, 1, 1, 1}), marks(1, {1, 1, 1, 1, 1})};
  EXPECT_NEAR(layerVelocity(shots, all, 1), 2000.0 / 3.0, 1e-9);
}

TEST(LayerVelocity, leavesOutShotsThatDoNotTakePart) {
  const testing::ConsoleCapture console;
  const std::vector<ShotArrivals> shots = {shotAt(0, {5, 10, 15}, {0.010, 0.020, 0.030}),
                                           shotAt(0, {5, 10, 15}, {0.001, 0.002, 0.003})};
  std::vector<layerStruct> all = {marks(0, {1, 1, 1}), marks(1, {1, 1, 1})};
  EXPECT_NEAR(layerVelocity(shots, all, 1), 2750.0, 1e-9);
  all[1].enabled = false;
  EXPECT_NEAR(layerVelocity(shots, all, 1), 500.0, 1e-9);
  all[0].enabled = false;
  EXPECT_TRUE(std::isnan(layerVelocity(shots, all, 1)));
}

struct NoBranch {
  const char* what;
  std::vector<std::uint32_t> layers;
  std::vector<double> times;
};

TEST(LayerVelocity, isNotANumberWithoutABranch) {
  const testing::ConsoleCapture console;
  const NoBranch cases[] = {
      {"one pick per side", {0, 1, 0, 1, 0}, {0.02, 0.01, 0, 0.01, 0.02}},
      {"the second pick is missing", {1, 1, 1, 1, 1}, {-99.0, 0.01, 0, 0.01, 0.0}},
      {"no trace of the layer", {2, 2, 2, 2, 2}, {0.02, 0.01, 0, 0.01, 0.02}},
      {"marks that end early", {1}, {0.02, 0.01, 0, 0.01, 0.02}}};
  for (const NoBranch& c : cases) {
    const std::vector<ShotArrivals> shots = {shotAt(10, {0, 5, 10, 15, 20}, c.times)};
    EXPECT_TRUE(std::isnan(layerVelocity(shots, {marks(0, c.layers)}, 1))) << c.what;
  }
}

TEST(ShotPair, isTheNearestShotsAtBothEnds) {
  const std::vector<double> spread = {0, 5, 10};
  const std::vector<double> times = {0.01, 0.01, 0.01};
  std::vector<ShotArrivals> shots;
  for (const double x : {-30.0, -10.0, 0.0, 5.0, 12.0, 12.0, 40.0}) {
    shots.push_back(shotAt(x, spread, times));
  }
  std::vector<layerStruct> all;
  for (std::uint32_t i = 0; i < shots.size(); ++i) all.push_back(marks(i, {2, 2, 2}));
  EXPECT_EQ(findShotPair(shots, all, 2).a, 2) << "a shot at the first receiver";
  EXPECT_EQ(findShotPair(shots, all, 2).b, 4) << "the first of two in one place";
  all[2].enabled = false;
  all[4].layer = {1, 1, 3};
  EXPECT_EQ(findShotPair(shots, all, 2).a, 1) << "disabled";
  EXPECT_EQ(findShotPair(shots, all, 2).b, 5) << "not assigned to the refractor";
  EXPECT_EQ(findShotPair(shots, all, 3).a, -1);
  EXPECT_EQ(findShotPair(shots, all, 3).b, 4);
}

TEST(ShotPair, canBeToldWhyThereIsNone) {
  const std::vector<double> times = {0.01, 0.01, 0.01};
  const std::vector<ShotArrivals> shots = {shotAt(-2, {0, 5, 10}, times),
                                           shotAt(12, {5, 10, 15}, times),
                                           shotAt(30, {5, 10, 15}, times)};
  std::vector<layerStruct> all = {marks(0, {1, 2, 2}), marks(1, {2, 1, 1}), marks(2, {1, 1, 1})};
  ASSERT_FALSE(findShotPair(shots, all, 2).complete());
  const ShotPairReach reach = shotPairReach(shots, all, 2);
  EXPECT_EQ(reach.firstReceiver, 0.0);
  EXPECT_EQ(reach.lastReceiver, 15.0) << "geophones behind the last shot that has marks";
  EXPECT_EQ(reach.firstShot, -2.0);
  EXPECT_EQ(reach.lastShot, 12.0);
  EXPECT_FALSE(shotPairReach(shots, all, 3).hasShots());
}

}  // namespace
}  // namespace talvesk

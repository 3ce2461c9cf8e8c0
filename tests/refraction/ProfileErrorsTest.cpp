#include "refraction/BuildProfiles.h"
#include "refraction/ProfileOrigin.h"
#include "refraction/methods/ProfileErrors.h"
#include "support/ConsoleCapture.h"
#include "support/DelayTimeLine.h"

#include <cmath>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

LayerPicks builtPicks() {
  LayerPicks picks = testing::delayTimePicks({});
  const testing::ConsoleCapture console;
  EXPECT_TRUE(buildProfiles(picks.shots, picks.interpretation).built);
  return picks;
}

TEST(ProfileErrors, lieAroundTheProfileAtItsReceivers) {
  const LayerPicks picks = builtPicks();
  const auto& built = picks.interpretation.refractData.cData[0];
  const auto errors = findProfileErrors(picks, {60, 1, 0});
  ASSERT_TRUE(errors);
  ASSERT_EQ(errors->refractors.size(), 1U);
  const ProfileErrors::Refractor& refractor = errors->refractors[0];
  ASSERT_EQ(refractor.depth.low.size(), built.x.size());
  for (std::size_t j = 5; j + 5 < built.x.size(); ++j) {
    EXPECT_GT(refractor.depth.errorAt(j), 0.05) << j;
    EXPECT_LT(refractor.depth.errorAt(j), 1.0) << j;
    EXPECT_NEAR(0.5 * (refractor.depth.low[j] + refractor.depth.high[j]), built.depth[j], 1.0);
    EXPECT_GT(refractor.velocity.errorAt(j), 0.0) << j;
  }
  EXPECT_GT(refractor.medianError, 0.0);
  EXPECT_LT(refractor.medianError, 100.0) << "of 2000 m/s";
  EXPECT_GT(errors->v1Error, 0.0);
  EXPECT_LT(errors->v1Error, 25.0) << "of 500 m/s, from 0.5 ms";
}

TEST(ProfileErrors, growWithThoseOfThePicks) {
  LayerPicks picks = builtPicks();
  const auto fine = findProfileErrors(picks, {60, 1, 0});
  for (std::vector<double>& sigmas : picks.sigmas) {
    for (double& sigma : sigmas) sigma *= 3.0;
  }
  const auto rough = findProfileErrors(picks, {60, 1, 0});
  ASSERT_TRUE(fine && rough);
  EXPECT_NEAR(rough->v1Error / fine->v1Error, 3.0, 0.6);
  EXPECT_NEAR(rough->refractors[0].depth.errorAt(30) / fine->refractors[0].depth.errorAt(30), 3.0,
              1.0);
}

/// Where moved picks make all velocities one mean velocity, that of the picks lies far from it.
TEST(ProfileErrors, reachFromAValueOutsideItsBandToTheFartherEnd) {
  Band band;
  band.low = {10.0, 10.0, 10.0, std::nan("")};
  band.high = {14.0, 14.0, 14.0, std::nan("")};
  EXPECT_EQ(band.errorOf(0, 11.0), 2.0);
  EXPECT_EQ(band.errorOf(1, 30.0), 20.0);
  EXPECT_EQ(band.errorOf(2, 4.0), 10.0);
  EXPECT_TRUE(std::isnan(band.errorOf(3, 4.0)));
  EXPECT_TRUE(std::isnan(Band().errorOf(0, 4.0)));
}

TEST(ProfileErrors, areNoneOfAProfileOfOtherPicksOrMarks) {
  const LayerPicks built = builtPicks();
  EXPECT_TRUE(isProfileOf(built.shots, built.interpretation));
  LayerPicks picks = built;
  picks.shots[2].times[30] += 0.002;
  EXPECT_FALSE(findProfileErrors(picks, {4, 1, 0}));
  LayerPicks marks = built;
  for (auto& own : marks.interpretation.ttLayer) own.layer[30] = 0;
  EXPECT_FALSE(findProfileErrors(marks, {4, 1, 0}));
  EXPECT_FALSE(isProfileOf(testing::delayTimePicks({}).shots, {})) << "there is none";
}

TEST(ProfileErrors, tellHowFarTheyAreAndCanBeStopped) {
  const LayerPicks picks = builtPicks();
  std::size_t last = 0;
  EXPECT_TRUE(findProfileErrors(picks, {20, 1, 1}, [&last](std::size_t done) {
    EXPECT_GE(done, last);
    last = done;
    return true;
  }));
  EXPECT_EQ(last, 20U);
  EXPECT_FALSE(findProfileErrors(picks, {20, 1, 1}, [](std::size_t done) { return done < 5; }));
}

}  // namespace
}  // namespace talvesk

#include "tomo/TestFit.h"
#include "tomo/fitted/ShotShifts.h"

#include <numeric>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::fitLine;
using testing::FitLine;
using testing::gradientTimes;
using testing::twoLayerTimes;

constexpr double kTriggerError = 0.002;
constexpr double kLate = 0.005;
constexpr std::size_t kLateShot = 2;

void delay(FitLine& line, std::size_t shot, double seconds) {
  const FitShot& late = line.data.shots[shot];
  for (std::size_t i = 0; i < late.receivers.size(); ++i) {
    line.data.picks[late.firstPick + i].time += seconds;
  }
}

std::vector<double> exactTimes(const FitLine& line, const testing::TimeBetween& time) {
  std::vector<double> times;
  for (const FitShot& shot : line.data.shots) {
    for (const double x : shot.receivers) times.push_back(time(shot.source - 1.0, x - 1.0));
  }
  return times;
}

TEST(ShotShifts, tellALateShotFromPicksThatAreOff) {
  const auto ground = gradientTimes(400.0, 50.0);
  FitLine line = fitLine({}, ground);
  delay(line, kLateShot, kLate);
  const FitShot& late = line.data.shots[kLateShot];
  for (const std::size_t k : {3, 9, 15, 20}) line.data.picks[late.firstPick + k].time += 0.03;
  const std::vector<double> times = exactTimes(line, ground);
  const std::vector<double> shifts = shotShifts(line.data, times, kTriggerError, true);
  ASSERT_EQ(shifts.size(), line.data.shots.size());
  EXPECT_NEAR(std::accumulate(shifts.begin(), shifts.end(), 0.0), 0.0, 1e-9);
  const double mean = kLate / static_cast<double>(shifts.size());
  for (std::size_t s = 0; s < shifts.size(); ++s) {
    EXPECT_NEAR(shifts[s], (s == kLateShot ? kLate : 0.0) - mean, 0.0005) << s;
  }
  EXPECT_GT(shotShifts(line.data, times, kTriggerError, false)[kLateShot], kLate)
      << "or the gross errors are no test";
}

TEST(ShotShifts, aShotThatIsVeryLateIsNotHeldBackByTheTriggerError) {
  const auto ground = gradientTimes(400.0, 50.0);
  FitLine line = fitLine({}, ground);
  for (FitPick& pick : line.data.picks) pick.sigma = 0.005;
  delay(line, kLateShot, 0.1);
  const std::vector<double> times = exactTimes(line, ground);
  const std::vector<double> shifts = shotShifts(line.data, times, 0.001, true);
  EXPECT_NEAR(shifts[kLateShot], 0.1 - 0.1 / 7.0, 0.01);
}

TEST(ShotShifts, timesThereAndBackTellALateShotWhateverTheGround) {
  for (const auto& ground : {gradientTimes(400.0, 50.0), twoLayerTimes(500.0, 1800.0, 2.5, 0.08)}) {
    const FitLine clean = fitLine({}, ground);
    const std::vector<double> none(clean.data.shots.size(), 0.0);
    EXPECT_EQ(reciprocalShifts(clean.data, kTriggerError), none) << "nothing stands out";
    FitLine spoilt = clean;
    delay(spoilt, kLateShot, kLate);
    const std::vector<double> shifts = reciprocalShifts(spoilt.data, kTriggerError);
    for (std::size_t s = 0; s < shifts.size(); ++s) {
      if (s == kLateShot) {
        EXPECT_NEAR(shifts[s], kLate, 0.0006);
      } else {
        EXPECT_EQ(shifts[s], 0.0) << s;
      }
    }
    const FitData onTime = picksOnTime(spoilt.data, kTriggerError);
    for (std::size_t i = 0; i < onTime.picks.size(); ++i) {
      EXPECT_NEAR(onTime.picks[i].time, clean.data.picks[i].time, 0.0006) << i;
    }
  }
}

TEST(ShotShifts, nothingIsSaidOfShotsThatNoOtherOneTellsOf) {
  FitLine line = fitLine({}, gradientTimes(400.0, 50.0));
  line.data.shots.resize(2);
  line.data.picks.resize(line.data.shots[1].firstPick + line.data.shots[1].receivers.size());
  delay(line, 1, 0.02);
  EXPECT_EQ(reciprocalShifts(line.data, kTriggerError), std::vector<double>(2, 0.0))
      << "either of the two could be off";
  line.data = {};
  EXPECT_TRUE(reciprocalShifts(line.data, kTriggerError).empty());
  EXPECT_TRUE(picksOnTime(line.data, kTriggerError).picks.empty());
}

/// Shots off the end of a spread have no times there and back.
TEST(ShotShifts, seemToBeThereWhereOnlyTheResidualsTell) {
  const auto ground = gradientTimes(400.0, 50.0);
  FitLine line = fitLine({}, ground);
  for (std::size_t s = 0; s < line.data.shots.size(); ++s) {
    FitShot& shot = line.data.shots[s];
    shot.source = -1.0 - static_cast<double>(s);
    for (std::size_t k = 0; k < shot.receivers.size(); ++k) {
      line.data.picks[shot.firstPick + k].time = ground(shot.source, shot.receivers[k]);
    }
  }
  std::vector<double> times;
  for (const FitPick& pick : line.data.picks) times.push_back(pick.time);
  const std::vector<double> none(line.data.shots.size(), 0.0);
  EXPECT_EQ(seemingShifts(line.data, times, kTriggerError), none);
  delay(line, kLateShot, kLate);
  EXPECT_EQ(reciprocalShifts(line.data, kTriggerError), none) << "or the test is lame";
  std::vector<double> expected = none;
  expected[kLateShot] = kLate;
  const std::vector<double> seeming = seemingShifts(line.data, times, kTriggerError);
  for (std::size_t s = 0; s < expected.size(); ++s) EXPECT_NEAR(seeming[s], expected[s], 1e-9);
}

}  // namespace
}  // namespace talvesk

#include "TestShots.h"
#include "widgets/traces/PickSnap.h"

#include <cmath>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

/// A little noise that repeats, then a strong wave from sample 100 on.
std::vector<double> noisyArrival(double level = 0.0) {
  std::vector<double> samples;
  for (int k = 0; k < 300; ++k) {
    const double noise = 0.01 * std::sin(1.7 * k) * std::cos(0.31 * k * k);
    samples.push_back(level + noise + (k < 100 ? 0.0 : std::sin(0.2 * (k - 100))));
  }
  return samples;
}

constexpr double kRadius = 0.010;  // seconds, 20 samples

TEST(PickSnap, findsTheOnsetFromBothSides) {
  const std::vector<double> samples = noisyArrival();
  for (const int from : {88, 95, 100, 106, 112}) {
    const double time = snapPick(samples, testing::kInterval, 0.0, from * testing::kInterval,
                                 PickSnap::Onset, kRadius);
    EXPECT_NEAR(time / testing::kInterval, 100.0, 2.0) << from;
  }
}

TEST(PickSnap, findsTheOnsetOfSamplesWithALargeOffset) {
  const double time = snapPick(noisyArrival(1e6), testing::kInterval, 1e6, 106 * testing::kInterval,
                               PickSnap::Onset, kRadius);
  EXPECT_NEAR(time / testing::kInterval, 100.0, 2.0);
}

TEST(PickSnap, findsTheOnsetAfterPerfectSilence) {
  std::vector<double> samples(200, 0.0);
  for (int k = 100; k < 200; ++k) samples[k] = std::sin(0.3 * (k - 99));
  const double time = snapPick(samples, 1.0, 0.0, 104.0, PickSnap::Onset, 20.0);
  EXPECT_NEAR(time, 99.0, 1.0);
}

TEST(PickSnap, findsTheNearestSignChangeBetweenSamples) {
  const std::vector<double> samples{5, 5, 1, -3, -5, -5, -5, 2, 6, 6, 6, 6};
  EXPECT_DOUBLE_EQ(snapPick(samples, 1.0, 0.0, 3.0, PickSnap::ZeroCrossing, 4.0), 2.25);
  EXPECT_NEAR(snapPick(samples, 1.0, 0.0, 6.0, PickSnap::ZeroCrossing, 4.0), 6.0 + 5.0 / 7.0,
              1e-12);
}

TEST(PickSnap, findsPeaksAndTroughs) {
  std::vector<double> samples;
  for (int k = 0; k < 200; ++k) samples.push_back(std::cos(2.0 * M_PI * (k - 50.3) / 40.0));
  EXPECT_NEAR(snapPick(samples, 1.0, 0.0, 53.0, PickSnap::Peak, 8.0), 50.3, 0.01);
  EXPECT_NEAR(snapPick(samples, 1.0, 0.0, 68.0, PickSnap::Peak, 8.0), 70.3, 0.01);
}

TEST(PickSnap, leavesTheTimeWhereThereIsNothingToSnapTo) {
  const std::vector<double> flat(50, 3.0);
  std::vector<double> holed = noisyArrival();
  holed[101] = std::numeric_limits<double>::quiet_NaN();
  for (const PickSnap snap : {PickSnap::Onset, PickSnap::ZeroCrossing, PickSnap::Peak}) {
    EXPECT_DOUBLE_EQ(snapPick(flat, 1.0, 3.0, 20.25, snap, 8.0), 20.25);
    EXPECT_DOUBLE_EQ(snapPick(holed, 1.0, 0.0, 100.25, snap, 8.0), 100.25);
    EXPECT_DOUBLE_EQ(snapPick({}, 1.0, 0.0, 0.25, snap, 8.0), 0.25);
    EXPECT_DOUBLE_EQ(snapPick(flat, 1.0, 3.0, 99.0, snap, 8.0), 99.0) << "beyond the record";
  }
  EXPECT_DOUBLE_EQ(snapPick(noisyArrival(), 1.0, 0.0, 104.0, PickSnap::None, 8.0), 104.0);
}

}  // namespace
}  // namespace talvesk

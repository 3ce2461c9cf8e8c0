#include "refraction/ReciprocalMethod.h"
#include "support/ConsoleCapture.h"

#include <algorithm>
#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using refractionDataStructure::phantom;
using testing::ConsoleCapture;
using ::testing::Each;
using ::testing::HasSubstr;

phantom curve(const std::vector<double>& x, double slope, double intercept) {
  phantom result;
  for (const double at : x) {
    result.points.push_back({at, 0.0});
    result.times.push_back(slope * at + intercept);
  }
  result.slope = slope;
  result.intercept = intercept;
  return result;
}

std::vector<double> every(double step, int n) {
  std::vector<double> x;
  for (int i = 0; i < n; ++i) x.push_back(i * step);
  return x;
}

TEST(ReciprocalTime, isTheLargerOfBothLines) {
  const ConsoleCapture console;
  phantom forward = curve({0, 10}, 0.001, 0.010);
  phantom reverse = curve({0, 10}, -0.001, 0.035);
  EXPECT_NEAR(reciprocalTime(forward, reverse, 0.0, 20.0), 0.035, 1e-12);
  EXPECT_NEAR(forward.reciprocalTime, 0.030, 1e-12);
  EXPECT_NEAR(reverse.reciprocalTime, 0.035, 1e-12);
  EXPECT_EQ(console.out(), " TAB: 0.035\n");
}

TEST(Families, followTheHalfSeparationConvention) {
  const ConsoleCapture console;
  // 1000 m/s; straight curves are lines to the spline, beyond their ends too.
  const phantom forward = curve(every(5, 5), 0.001, 0.020);
  const phantom reverse = curve(every(10, 3), -0.001, 0.040);
  const double tAB = 0.040;
  const auto tVs = buildTV(forward, reverse, every(5, 5), tAB);
  ASSERT_EQ(tVs.size(), 45U);
  const auto tV = memberOf(tVs, indexOfXY(0.0));
  const auto tGs = buildTG(forward, reverse, every(5, 5), tAB, tV);
  ASSERT_EQ(tGs.size(), 45U);
  for (std::size_t k = 0; k < 9; ++k) {
    for (std::size_t j = 0; j < 5; ++j) {
      const double x = 5.0 * static_cast<double>(j);
      // The two points are 2 XY apart: what they add to tV cancels, and delta takes it from tG.
      EXPECT_NEAR(memberOf(tVs, k)[j], 0.001 * x + 0.010, 1e-12) << kXYFamily[k];
      EXPECT_NEAR(memberOf(tGs, k)[j], 0.010, 1e-12) << kXYFamily[k];
    }
  }
  for (const char* head :
       {"j xy tY tX tAB tVsJ\n", "j xy tY tX tAB delta -build\n", "j xy tY tX tAB delta\n"}) {
    EXPECT_THAT(console.out(), HasSubstr(head));
  }
}

TEST(Families, takeAnXYOfTheFamilyOnly) {
  EXPECT_EQ(kXYFamily[indexOfXY(-4.0)], -4.0);
  EXPECT_EQ(kXYFamily[indexOfXY(3.0)], 3.0);
  for (const double other : {0.5, 17.0, std::nan("")}) EXPECT_EQ(kXYFamily[indexOfXY(other)], 0.0);
}

/// tV whose slowness changes from receiver to receiver: 1 m apart, so that the difference over 2 m
/// to either side spans four of them.
TEST(RefractorVelocity, smoothsInPlaceFromLeftToRight) {
  const ConsoleCapture console;
  const auto x = every(1.0, 14);
  std::vector<double> tV = {0.0};
  for (std::size_t i = 1; i < x.size(); ++i) tV.push_back(tV.back() + (i > 6 ? 0.0005 : 0.001));
  const RefractorVelocity found = refractorVelocity(x, tV);
  ASSERT_EQ(found.fallback, VelocityFallback::kNone);
  // The same by hand: tV is held constant beyond its ends.
  std::vector<double> v;
  const auto at = [&](int i) { return tV[static_cast<std::size_t>(std::clamp(i, 0, 13))]; };
  for (int j = 0; j < 14; ++j) v.push_back(4.0 / (at(j + 2) - at(j - 2)));
  EXPECT_NEAR(v[0], 2000.0, 1e-6) << "the flattened end doubles the velocity";
  for (int j = 0; j < 14; ++j) {
    double sum = 0.0;
    int n = 0;
    for (int i = j - 4; i <= j + 3; ++i) {
      if (i < 0 || i > 13) continue;
      sum += v[static_cast<std::size_t>(i)];
      ++n;
    }
    v[static_cast<std::size_t>(j)] = sum / n;
    EXPECT_NEAR(found.velocity[static_cast<std::size_t>(j)], v[static_cast<std::size_t>(j)], 1e-6);
  }
}

TEST(RefractorVelocity, fallsBackToTheLine) {
  const ConsoleCapture console;
  const auto x = every(10.0, 12);
  std::vector<double> backward;
  for (const double at : x) backward.push_back(at <= 60 ? 0.001 * at : 0.06 - 0.002 * (at - 60));
  const RefractorVelocity negative = refractorVelocity(x, backward);
  EXPECT_EQ(negative.fallback, VelocityFallback::kNotPositive);
  EXPECT_THAT(negative.velocity, Each(negative.velocity[0]));

  std::vector<double> bent;
  for (const double at : x) bent.push_back(at <= 50 ? 0.004 * at : 0.2 + 0.0002 * (at - 50));
  const RefractorVelocity strong = refractorVelocity(x, bent);
  EXPECT_EQ(strong.fallback, VelocityFallback::kStrongVariation);
  EXPECT_THAT(strong.velocity, Each(strong.velocity[0]));
  EXPECT_GT(strong.velocity[0], 250.0);
  EXPECT_LT(strong.velocity[0], 5000.0);
}

TEST(RefractorVelocity, keepsARatioOfExactlyFour) {
  struct Case {
    double ratio;
    VelocityFallback expected;
  };
  for (const Case& c :
       {Case{4.0, VelocityFallback::kNone}, Case{4.01, VelocityFallback::kStrongVariation}}) {
    EXPECT_EQ(fallbackOf({100.0, 200.0, 100.0 * c.ratio}), c.expected) << c.ratio;
  }
  EXPECT_EQ(fallbackOf({100.0, 0.0}), VelocityFallback::kNotPositive);
  EXPECT_EQ(fallbackOf({100.0, std::nan("")}), VelocityFallback::kNone);
}

struct DepthCase {
  const char* what;
  double tG, v2, v1, depth;
  bool warned;
};

TEST(FirstDepth, followsTheTimeDepths) {
  const double nan = std::nan("");
  const DepthCase cases[] = {{"5-4-3", 0.010, 1000.0, 600.0, 7.5, false},
                             {"a time-depth of exactly 0", 0.0, 1000.0, 600.0, 0.0, true},
                             {"negative", -0.001, 1000.0, 600.0, 0.0, true},
                             {"slower than the layer above", 0.010, 500.0, 600.0, nan, false},
                             {"no velocity above", 0.010, 1000.0, nan, nan, false}};
  for (const DepthCase& c : cases) {
    const RefractorDepth found = depthFirstRefractor({c.tG}, {c.v2}, c.v1, 0);
    EXPECT_EQ(found.tGNotPositive, c.warned) << c.what;
    if (std::isnan(c.depth)) {
      EXPECT_TRUE(std::isnan(found.depth[0])) << c.what;
    } else {
      EXPECT_NEAR(found.depth[0], c.depth, 1e-9) << c.what;
    }
  }
}

TEST(FirstDepth, leavesTheSkippedEndsAtZero) {
  const auto found = depthFirstRefractor({.01, .01, .01}, {1000, 1000, 1000}, 600, 1);
  EXPECT_EQ(found.depth[0], 0.0);
  EXPECT_NEAR(found.depth[1], 7.5, 1e-9);
  EXPECT_EQ(found.depth[2], 0.0);
  EXPECT_EQ(depthFirstRefractor({.01}, {1000}, 600, 5).depth[0], 0.0);
}

TEST(SecondDepth, addsTheLayerBelowTheFirst) {
  const double v1 = 400.0, v2 = 1200.0, v3 = 3000.0, z1 = 3.0, z2 = 10.0;
  const double tG = z1 * std::sqrt(v3 * v3 - v1 * v1) / (v3 * v1) +
                    (z2 - z1) * std::sqrt(v3 * v3 - v2 * v2) / (v3 * v2);
  EXPECT_NEAR(depthSecondRefractor({tG}, {z1}, {v2}, {v3}, v1, 0)[0], z2, 1e-9);
  EXPECT_TRUE(std::isnan(depthSecondRefractor({tG}, {z1}, {v2}, {1000.0}, v1, 0)[0]));
}

}  // namespace
}  // namespace talvesk

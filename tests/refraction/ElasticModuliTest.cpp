#include "refraction/elastic/ElasticModuli.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using Q = ElasticQuantity;

const double kNone = std::numeric_limits<double>::quiet_NaN();

DensityRule constant(double density) {
  DensityRule rule;
  rule.layers = {density};
  return rule;
}

DensityRule gardner() {
  DensityRule rule;
  rule.gardner = true;
  return rule;
}

ElasticState stateOf(double vp, double vs, double density = 2000.0) {
  return elasticState({vp, kNone}, {vs, kNone}, constant(density), 0);
}

TEST(ElasticModuli, areThoseOfKnownSolids) {
  struct Row {
    double ratio;
    double poisson;
    double youngOverShear;
    double bulkOverShear;
    ElasticVerdict verdict;
  };
  const double kNoRatio = kNone;
  const Row rows[] = {
      {std::sqrt(3.0), 0.25, 2.5, 5.0 / 3.0, ElasticVerdict::kSound},  // a Poisson solid
      {2.0, 1.0 / 3.0, 8.0 / 3.0, 8.0 / 3.0, ElasticVerdict::kSound},
      {5.0, 23.0 / 48.0, 71.0 / 24.0, 71.0 / 3.0, ElasticVerdict::kSound},  // soaked clay
      {1.5, 0.1, 2.2, 11.0 / 12.0, ElasticVerdict::kSound},
      {1.25, -7.0 / 18.0, 11.0 / 9.0, 11.0 / 48.0, ElasticVerdict::kNegativePoisson},
      {1.1, -79.0 / 42.0, 2.0 - 79.0 / 21.0, 1.21 - 4.0 / 3.0, ElasticVerdict::kNegativePoisson},
      {1.0, kNoRatio, kNoRatio, kNoRatio, ElasticVerdict::kSNotSlower},
      {0.5, kNoRatio, kNoRatio, kNoRatio, ElasticVerdict::kSNotSlower},
  };
  const double vs = 300.0;
  const double shear = 2000.0 * vs * vs;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.ratio);
    const ElasticState state = stateOf(row.ratio * vs, vs);
    EXPECT_EQ(state.verdict, row.verdict);
    EXPECT_NEAR(state[Q::kRatio].value, row.ratio, 1e-12);
    EXPECT_NEAR(state[Q::kShear].value, shear, 1e-6);
    EXPECT_NEAR(state[Q::kConstrained].value, row.ratio * row.ratio * shear, 1e-3);
    EXPECT_TRUE(std::isnan(state[Q::kPoisson].sigma));
    if (row.verdict == ElasticVerdict::kSNotSlower) {
      for (const Q none : {Q::kPoisson, Q::kYoung, Q::kBulk}) {
        EXPECT_TRUE(std::isnan(state[none].value));
      }
      continue;
    }
    EXPECT_NEAR(state[Q::kPoisson].value, row.poisson, 1e-12);
    EXPECT_NEAR(state[Q::kYoung].value / shear, row.youngOverShear, 1e-11);
    EXPECT_NEAR(state[Q::kBulk].value / shear, row.bulkOverShear, 1e-11);
  }
}

TEST(ElasticModuli, sayWhatOneVelocityTellsAndNoMore) {
  for (const double none : {kNone, 0.0, -300.0, std::numeric_limits<double>::infinity()}) {
    SCOPED_TRACE(none);
    const ElasticState withoutS = stateOf(900.0, none);
    EXPECT_EQ(withoutS.verdict, ElasticVerdict::kUnknown);
    EXPECT_NEAR(withoutS[Q::kConstrained].value, 2000.0 * 810000.0, 1e-3);
    EXPECT_TRUE(std::isnan(withoutS[Q::kShear].value));
    const ElasticState withoutP = stateOf(none, 300.0);
    EXPECT_EQ(withoutP.verdict, ElasticVerdict::kUnknown);
    for (const Q quantity : {Q::kRatio, Q::kPoisson, Q::kConstrained, Q::kBulk}) {
      EXPECT_TRUE(std::isnan(withoutP[quantity].value));
    }
  }
}

TEST(ElasticModuli, takeTheDensityOfTheirLayerOrGardners) {
  DensityRule rule;
  rule.layers = {1700.0, 2100.0};
  EXPECT_EQ(rule.at(0, 400.0), 1700.0);
  EXPECT_EQ(rule.at(1, 400.0), 2100.0);
  EXPECT_EQ(rule.at(2, 400.0), 2100.0);
  EXPECT_NEAR(gardner().at(0, 2500.0), 310.0 * std::sqrt(50.0), 1e-9);
}

/// The errors are those of a step of each velocity by its own, small beside it.
TEST(ElasticModuli, carryTheErrorsOfTheVelocities) {
  for (const DensityRule& rule : {constant(1900.0), gardner()}) {
    for (const double ratio : {1.25, 1.8, 4.0}) {
      SCOPED_TRACE(ratio);
      const double vs = 420.0;
      const double vp = ratio * vs;
      const double errorP = 1e-3 * vp;
      const double errorS = 2e-3 * vs;
      const ElasticState state = elasticState({vp, errorP}, {vs, errorS}, rule, 0);
      const double step = 1e-4;
      const auto half = [&](Q quantity, double p, double s) {
        const auto at = [&](double sign) {
          return elasticState({vp + sign * p, kNone}, {vs + sign * s, kNone}, rule, 0)[quantity]
              .value;
        };
        return 0.5 * (at(step) - at(-step)) / step;
      };
      for (const Q quantity :
           {Q::kRatio, Q::kPoisson, Q::kShear, Q::kYoung, Q::kBulk, Q::kConstrained}) {
        SCOPED_TRACE(static_cast<int>(quantity));
        const double expected =
            std::hypot(half(quantity, errorP, 0.0), half(quantity, 0.0, errorS));
        EXPECT_NEAR(state[quantity].sigma / expected, 1.0, 1e-5);
      }
      EXPECT_EQ(std::isnan(state[Q::kDensity].sigma), !rule.gardner);
    }
  }
}

}  // namespace
}  // namespace talvesk

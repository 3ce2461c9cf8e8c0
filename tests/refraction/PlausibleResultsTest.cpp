#include "refraction/BuildProfiles.h"
#include "refraction/PlausibleResults.h"
#include "refraction/Profile.h"
#include "support/Arrivals.h"
#include "support/ConsoleCapture.h"
#include "support/RefractionLines.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using refractionDataStructure::computedData;
using refractionDataStructure::Interpretation;
using refractionDataStructure::processingData;
using testing::ConsoleCapture;
using ::testing::Each;
using ::testing::HasSubstr;
using ::testing::IsNan;
using ::testing::Not;
using Kind = RefractionWarning::Kind;

constexpr double kInf = std::numeric_limits<double>::infinity();

TEST(Plausible, areVelocitiesOfGround) {
  for (const double v : {50.0, 330.0, 12000.0}) EXPECT_TRUE(isPlausibleVelocity(v)) << v;
  for (const double v : {-1500.0, 0.0, 49.99, 12000.1, 1e17, kInf, -kInf, std::nan("")}) {
    EXPECT_FALSE(isPlausibleVelocity(v)) << v;
  }
}

TEST(Plausible, areDepthsWithinTheLengthOfTheLine) {
  const double length =
      lineLength({testing::shotAt(-3, {0, 5, 10}, {}), testing::shotAt(4, {0, 12}, {}), {}});
  EXPECT_EQ(length, 15.0);
  EXPECT_EQ(lineLength({}), 0.0);
  std::vector<double> depths = {15.0, 15.01, -15.01, 0.0, kInf, std::nan("")};
  EXPECT_EQ(leaveOutDepths(depths, length), 2U) << "finite ones";
  EXPECT_EQ(depths[0], 15.0);
  EXPECT_EQ(depths[3], 0.0);
  for (const std::size_t j : {1U, 2U, 4U, 5U}) EXPECT_TRUE(std::isnan(depths[j])) << j;
}

std::vector<Kind> kinds(const ProfileOutcome& outcome) {
  std::vector<Kind> result;
  for (const RefractionWarning& warning : outcome.warnings) result.push_back(warning.kind);
  return result;
}

struct Case {
  const char* what;
  testing::Functions functions;
  double directWave;  ///< times of the direct wave, as a factor
  Kind told;
  std::size_t velocities;  ///< how many of 60 are known
  std::size_t depths;
};

std::size_t known(const std::vector<double>& values) {
  return static_cast<std::size_t>(
      std::count_if(values.begin(), values.end(), [](double v) { return std::isfinite(v); }));
}

/// Every result of a profile is one that ground can have, or is left out with the reason.
TEST(Profile, failsWhereNoGroundIsLikeThat) {
  const ConsoleCapture console;
  const auto deep = [](double) { return 0.02; };
  const auto steady = [](double x) { return 5e-4 * x; };
  const Case cases[] = {
      {"one time everywhere",
       {[](double x) { return 0.05 + 1e-19 * x; }, deep},
       1.0,
       Kind::kBadVelocity,
       0,
       0},
      {"slower than any soil",
       {[](double x) { return 0.05 * x; }, deep, 10.0},
       1.0,
       Kind::kBadVelocity,
       0,
       0},
      {"11 000 m/s, doubled where the curve ends",
       {[](double x) { return x / 11000; }, deep},
       1.0,
       Kind::kBadVelocity,
       55,
       55},
      {"three seconds down", {steady, [](double) { return 3.0; }}, 1.0, Kind::kTooDeep, 60, 0},
      {"three seconds down for a while",
       {steady, [](double x) { return x >= 100.0 && x < 110.0 ? 3.0 : 0.02; }},
       1.0,
       Kind::kTooDeep,
       60,
       56},
      {"a direct wave of 50 000 m/s", {steady, deep}, 0.01, Kind::kBadFirstLayer, 60, 0}};
  for (const Case& c : cases) {
    Interpretation interpretation;
    TomoDocument line =
        testing::standardDippingLine(testing::twoDippingLayers(), interpretation.ttLayer);
    for (TravelTime& record : line.ttArray.edit()) {
      for (double& time : record.ttMisurati.edit()) time *= c.directWave;
    }
    testing::arrive(line, interpretation.ttLayer, c.functions);
    const ProfileOutcome outcome = buildProfiles(shotArrivals(line), interpretation);
    ASSERT_TRUE(outcome.built) << c.what;
    EXPECT_THAT(kinds(outcome), ::testing::Contains(c.told)) << c.what;
    const processingData& results = interpretation.refractData;
    const computedData& found = results.cData[0];
    EXPECT_EQ(known(found.velocity), c.velocities) << c.what;
    EXPECT_EQ(known(found.depth), c.depths) << c.what;
    for (const RefractionWarning& warning : outcome.warnings) {
      if (warning.kind != c.told || c.told == Kind::kBadFirstLayer) continue;
      EXPECT_EQ(warning.total, 60U) << c.what;
      EXPECT_EQ(warning.count, 60 - std::min(c.velocities, c.depths)) << c.what;
    }
    for (const char* nothing : {"nan", "inf", "e+"}) {
      EXPECT_THAT(profileTable(results), Not(HasSubstr(nothing))) << c.what;
    }
    EXPECT_EQ(std::isnan(results.v1), c.told == Kind::kBadFirstLayer) << c.what;
  }
}

TEST(Profile, ofElsewhereIsCutToWhatGroundCanHave) {
  processingData results;
  results.v1 = 400.0;
  results.v2 = {1e17, 1500.0};
  computedData refractor;
  refractor.x = {0, 1};
  refractor.velocity = results.v2;
  refractor.depth = {3.0, -1e15};
  results.cData = {refractor};
  EXPECT_EQ(leaveOutImplausible(results, 100.0), 3U) << "a velocity with its depth, and a depth";
  EXPECT_THAT(results.cData[0].depth, Each(IsNan()));
  EXPECT_EQ(results.cData[0].velocity[1], 1500.0);
  EXPECT_TRUE(std::isnan(results.v2[0]));
  EXPECT_EQ(leaveOutImplausible(results, 100.0), 0U) << "what is not known is not lost again";
  processingData none;
  EXPECT_EQ(leaveOutImplausible(none, 100.0), 0U);
  EXPECT_EQ(none.v1, 0.0) << "nothing was built";
}

}  // namespace
}  // namespace talvesk

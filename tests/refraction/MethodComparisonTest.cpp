#include "model/ChiSquare.h"
#include "refraction/methods/MethodComparison.h"
#include "support/DelayTimeLine.h"
#include "support/RefractionLines.h"

#include <algorithm>
#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using ::testing::NanSensitiveDoubleEq;
using ::testing::Pointwise;

constexpr LayerMethod kPlusMinusOnly[] = {LayerMethod::kPlusMinus};
const std::vector<LayerMethod> kAll(std::begin(kAllLayerMethods), std::end(kAllLayerMethods));

LayerPicks dippingPicks() {
  refractionDataStructure::Interpretation interpretation;
  const TomoDocument line =
      testing::standardDippingLine(testing::twoDippingLayers(), interpretation.ttLayer);
  PickErrorRule rule;
  rule.floor = 0.0005;
  rule.share = 0.0;
  return layerPicksOf(line, interpretation, rule);
}

double shareOf(const std::vector<bool>& flags) {
  return static_cast<double>(std::count(flags.begin(), flags.end(), true)) /
         static_cast<double>(flags.size());
}

TEST(MethodComparison, isTheSameOnAnyNumberOfThreadsAndAnotherWithAnotherSeed) {
  const LayerPicks picks = perturbedPicks(dippingPicks(), 9, 0);
  const MethodComparison one = compareMethods(picks, kAll, {6, 1, 1});
  const MethodComparison three = compareMethods(picks, kAll, {6, 1, 3});
  const MethodComparison other = compareMethods(picks, kAll, {6, 2, 3});
  for (std::size_t m = 0; m < kAll.size(); ++m) {
    const MethodLayer& a = one.results[m].layers.at(0);
    const MethodLayer& b = three.results[m].layers.at(0);
    const MethodLayer& c = other.results[m].layers.at(0);
    EXPECT_THAT(a.depthBand.low, Pointwise(NanSensitiveDoubleEq(), b.depthBand.low));
    EXPECT_THAT(a.velocityBand.high, Pointwise(NanSensitiveDoubleEq(), b.velocityBand.high));
    EXPECT_NE(a.depthBand.low, c.depthBand.low);
    EXPECT_EQ(a.depth, c.depth) << "what picks as they are tell has no seed";
  }
}

/// What bands are for: the truth lies within 68 of 100 of them.
TEST(MethodComparison, bandsHoldTheTruthAsOftenAsTheySay) {
  const LayerPicks truth = dippingPicks();
  for (const LayerMethod method : {LayerMethod::kReciprocal, LayerMethod::kPlusMinus}) {
    int inside = 0;
    int all = 0;
    for (std::uint64_t draw = 0; draw < 16; ++draw) {
      const MethodComparison comparison =
          compareMethods(perturbedPicks(truth, 7, draw), {method}, {30, 1, 0});
      const MethodResult& result = comparison.results[0];
      const MethodLayer& layer = result.layers.at(0);
      for (std::size_t j = 5; j + 5 < layer.depth.size(); ++j) {
        const double depth = testing::twoDippingLayers().depth(0, result.receivers[j].x);
        ++all;
        if (std::fabs(layer.depth[j] - depth) < layer.depthBand.errorAt(j)) ++inside;
      }
    }
    EXPECT_NEAR(static_cast<double>(inside) / all, 0.65, 0.13) << nameOf(method);
  }
}

TEST(MethodComparison, methodsDisagreeOnAWavyRefractorAndHardlyOnAPlane) {
  testing::DelayTimeGround wavy;
  wavy.depth = [](double x) { return 10.0 + 2.0 * std::sin(x / 8.0); };
  const auto disagreementOn = [](const LayerPicks& picks) {
    const MethodComparison comparison =
        compareMethods(perturbedPicks(picks, 3, 1), kAll, {40, 1, 0});
    return shareOf(comparison.disagreement(2)->depth);
  };
  EXPECT_LT(disagreementOn(dippingPicks()), 0.2);
  EXPECT_GT(disagreementOn(testing::delayTimePicks(wavy)), 0.5);
}

TEST(MethodComparison, hasNoBandsWithoutMembersAndWhenStopped) {
  const LayerPicks picks = dippingPicks();
  const std::vector<LayerMethod> methods(std::begin(kPlusMinusOnly), std::end(kPlusMinusOnly));
  EXPECT_TRUE(compareMethods(picks, methods, {}).results[0].layers[0].depthBand.empty());
  const MethodComparison stopped =
      compareMethods(picks, methods, {50, 1, 0}, [](std::size_t) { return false; });
  EXPECT_TRUE(stopped.results[0].layers[0].depthBand.empty());
  EXPECT_TRUE(stopped.disagreements.empty());
}

TEST(MethodComparison, tellsHowManyMembersAreDone) {
  std::vector<std::size_t> told;
  compareMethods(dippingPicks(), {LayerMethod::kPlusMinus}, {4, 1, 1}, [&](std::size_t done) {
    told.push_back(done);
    return true;
  });
  EXPECT_EQ(told, (std::vector<std::size_t>{0, 1, 2, 3, 4}));
}

/// A result of one refractor by its depths alone.
MethodResult resultOf(LayerMethod method, std::vector<double> depths) {
  MethodResult result;
  result.method = method;
  MethodLayer layer;
  layer.velocity.assign(depths.size(), std::nan(""));
  layer.depthSupport.assign(depths.size(), Support::kPicks);
  for (std::size_t j = 0; j < depths.size(); ++j) {
    result.receivers.push_back({5.0 * static_cast<double>(j), 0.0});
  }
  layer.depth = std::move(depths);
  result.layers.push_back(std::move(layer));
  return result;
}

TEST(MethodComparison, tellsWhereMethodsAreFarthestApart) {
  const double none = std::nan("");
  MethodComparison comparison;
  comparison.results = {resultOf(LayerMethod::kReciprocal, {9.0, 5.0, 6.0, 1.0}),
                        resultOf(LayerMethod::kDelayTimes, {none, 5.0, 6.5, 1.0}),
                        resultOf(LayerMethod::kIntercept, {none, 6.0, 4.5, 1.0})};
  const auto found = greatestDifference(comparison, 2, &MethodLayer::depth);
  ASSERT_TRUE(found) << "one method alone, at 0 m, is apart from none";
  EXPECT_EQ(found->receiver, 2U);
  EXPECT_EQ(found->low, LayerMethod::kIntercept);
  EXPECT_EQ(found->high, LayerMethod::kDelayTimes);
  EXPECT_EQ(found->greatest - found->least, 2.0);
  EXPECT_FALSE(greatestDifference(comparison, 2, &MethodLayer::velocity));
  EXPECT_FALSE(greatestDifference(comparison, 3, &MethodLayer::depth));
  const std::vector<Message> lines = comparisonDifferences(comparison, 2);
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].english(),
            "Layer 2: depths are farthest apart at 10 m, from 4.5 m (intercept times) to 6.5 m "
            "(delay times)");
}

TEST(MethodComparison, movesPicksByTheirErrorsAndKeepsThemPicks) {
  LayerPicks picks = dippingPicks();
  picks.sigmas[2].assign(60, 0.01);
  picks.shots[4].times[9] = 0.0;
  const LayerPicks moved = perturbedPicks(picks, 1, 0);
  EXPECT_EQ(moved.shots[4].times[9], 0.0);
  double square = 0.0;
  for (std::size_t i = 0; i < 60; ++i) {
    EXPECT_GE(moved.shots[2].times[i], 0.1 * picks.shots[2].times[i]);
    square += std::pow(moved.shots[5].times[i] - picks.shots[5].times[i], 2) / 60.0;
  }
  EXPECT_NEAR(std::sqrt(square), 0.0005, 0.0001);
}

TEST(MethodComparison, standsInATableSideBySide) {
  const MethodComparison comparison = compareMethods(dippingPicks(), kAll, {4, 1, 0});
  const std::string table = comparisonTable(comparison);
  EXPECT_THAT(table, HasSubstr("Layer 2\nx elevation reciprocal-depth reciprocal-depth-error "
                               "reciprocal-velocity reciprocal-velocity-error "
                               "reciprocal-carried-by delay-times-depth "));
  EXPECT_THAT(table, HasSubstr(" plus-minus-carried-by disagree-in\n0 100 "));
  EXPECT_THAT(table, HasSubstr(" phantom "));
  EXPECT_EQ(std::count(table.begin(), table.end(), '\n'), 62);
  std::string summary;
  for (const Message& line : comparisonSummary(comparison)) summary += line.english() + '\n';
  EXPECT_THAT(summary, HasSubstr("Layer 2, delay times: 1799 m/s ± "));
  EXPECT_THAT(summary, HasSubstr(" of 60 geophones, in velocity at "));
}

}  // namespace
}  // namespace talvesk

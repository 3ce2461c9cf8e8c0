#include "model/ChiSquare.h"
#include "model/SurveyLine.h"
#include "refraction/BuildProfiles.h"
#include "refraction/methods/LayerMethods.h"
#include "support/DelayTimeLine.h"
#include "support/RefractionLines.h"

#include <algorithm>
#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using refractionDataStructure::Interpretation;
using testing::DelayTimeGround;
using testing::DippingLayers;
using ::testing::HasSubstr;

constexpr LayerMethod kBeside[] = {LayerMethod::kDelayTimes, LayerMethod::kIntercept,
                                   LayerMethod::kPlusMinus};
constexpr double kPi = 3.14159265358979323846;

/// Largest relative error of what is known, but for the receivers at the ends.
template <typename Truth>
double worst(const MethodResult& result, const std::vector<double>& values, std::size_t ends,
             const Truth& truth) {
  double largest = 0.0;
  for (std::size_t j = ends; j + ends < values.size(); ++j) {
    if (std::isnan(values[j])) continue;
    largest = std::max(largest, std::fabs(values[j] / truth(result.receivers[j].x) - 1.0));
  }
  return largest;
}

TEST(LayerMethods, recoverPlanesThatDip) {
  for (const DippingLayers* ground :
       {&testing::twoDippingLayers(), &testing::threeDippingLayers()}) {
    Interpretation interpretation;
    const TomoDocument line = testing::standardDippingLine(*ground, interpretation.ttLayer);
    const LayerPicks picks = layerPicksOf(line, interpretation, {});
    for (const LayerMethod method : kBeside) {
      const MethodResult result = interpretBy(method, picks);
      EXPECT_TRUE(result.remarks.empty()) << nameOf(method);
      ASSERT_EQ(result.layers.size(), ground->depths.size()) << nameOf(method);
      for (std::size_t r = 0; r < result.layers.size(); ++r) {
        const MethodLayer& layer = result.layers[r];
        EXPECT_EQ(std::count_if(layer.depth.begin(), layer.depth.end(),
                                [](double d) { return std::isfinite(d); }),
                  60);
        EXPECT_LT(worst(result, layer.depth, 0, [&](double x) { return ground->depth(r, x); }),
                  1.5e-3)
            << nameOf(method) << r;
        EXPECT_LT(
            worst(result, layer.velocity, 0, [&](double) { return ground->velocities[r + 1]; }),
            1.5e-3)
            << nameOf(method) << r;
      }
    }
  }
}

/// A steep dip, at which the cosine counts: the plane formula takes it into account.
TEST(LayerMethods, interceptsOfASteepDipAreExact) {
  const DippingLayers ground{{600.0, 2000.0}, {20.0}, {0.15}};
  Interpretation interpretation;
  const TomoDocument line = testing::standardDippingLine(ground, interpretation.ttLayer);
  const MethodResult result =
      interpretBy(LayerMethod::kIntercept, layerPicksOf(line, interpretation, {}));
  ASSERT_EQ(result.layers.size(), 1U);
  EXPECT_LT(worst(result, result.layers[0].depth, 0, [&](double x) { return ground.depth(0, x); }),
            1e-6);
  EXPECT_LT(worst(result, result.layers[0].velocity, 0, [](double) { return 2000.0; }), 1e-6);
}

TEST(LayerMethods, delayTimesFollowWavesWhereOthersSmoothThem) {
  DelayTimeGround ground;
  ground.depth = [](double x) { return 10.0 + 1.5 * std::sin(2.0 * kPi * x / 50.0); };
  const LayerPicks picks = testing::delayTimePicks(ground);
  const auto misfit = [&](LayerMethod method) {
    const MethodResult result = interpretBy(method, picks);
    return worst(result, result.layers.at(0).depth, 6, ground.depth);
  };
  EXPECT_LT(misfit(LayerMethod::kDelayTimes), 0.02);
  EXPECT_GT(misfit(LayerMethod::kIntercept), 0.08) << "a refractor taken as even";
  EXPECT_GT(misfit(LayerMethod::kPlusMinus), misfit(LayerMethod::kDelayTimes));
}

TEST(LayerMethods, followVelocitiesThatChangeAlongTheRefractor) {
  DelayTimeGround ground;
  ground.slowness = [](double x) { return 1.0 / (1600.0 + 6.0 * x); };
  const LayerPicks picks = testing::delayTimePicks(ground);
  for (const LayerMethod method : {LayerMethod::kDelayTimes, LayerMethod::kPlusMinus}) {
    const MethodResult result = interpretBy(method, picks);
    ASSERT_EQ(result.layers.size(), 1U);
    EXPECT_LT(worst(result, result.layers[0].velocity, 5,
                    [&](double x) { return 1.0 / ground.slowness(x); }),
              0.04)
        << nameOf(method);
  }
}

/// The refractor is level; the surface is not, and depths are below it.
TEST(LayerMethods, tellDepthsBelowASurfaceThatGoesUpAndDown) {
  DelayTimeGround ground;
  ground.elevation = [](double x) { return 100.0 + 2.0 * std::sin(2.0 * kPi * x / 90.0); };
  ground.depth = [&ground](double x) { return ground.elevation(x) - 90.0; };
  ground.meetsBelow = true;
  const LayerPicks picks = testing::delayTimePicks(ground);
  for (const LayerMethod method : {LayerMethod::kDelayTimes, LayerMethod::kPlusMinus}) {
    const MethodResult result = interpretBy(method, picks);
    ASSERT_EQ(result.layers.size(), 1U);
    EXPECT_LT(worst(result, result.layers[0].depth, 4, ground.depth), 0.06) << nameOf(method);
  }
}

TEST(LayerMethods, delayTimesWithstandGrossErrors) {
  const DelayTimeGround ground;
  LayerPicks picks = testing::delayTimePicks(ground);
  for (std::size_t shot = 0; shot < picks.shots.size(); ++shot) {
    for (std::size_t i = shot % 7; i < 60; i += 15) picks.shots[shot].times[i] += 0.03;
  }
  const MethodResult result = interpretBy(LayerMethod::kDelayTimes, picks);
  ASSERT_EQ(result.layers.size(), 1U);
  EXPECT_LT(worst(result, result.layers[0].velocity, 5,
                  [&](double x) { return 1.0 / ground.slowness(x); }),
            0.05);
}

TEST(LayerMethods, sayWhatKeepsThemFromARefractor) {
  struct Case {
    const char* description;
    LayerMethod method;
    void (*spoil)(LayerPicks& picks);
    const char* remark;
  };
  const auto toRightOnly = [](LayerPicks& picks) {
    for (std::size_t shot = 0; shot < picks.shots.size(); ++shot) {
      for (std::size_t i = 0; i < 60; ++i) {
        if (picks.shots[shot].onSide(i, Side::kLeft)) picks.shots[shot].times[i] = 0.0;
      }
    }
  };
  const auto fivePicks = [](LayerPicks& picks) {
    for (std::size_t shot = 0; shot < picks.shots.size(); ++shot) {
      for (std::size_t i = 0; i < 60; ++i) {
        std::uint32_t& layer = picks.interpretation.ttLayer[shot].layer[i];
        if (layer == 2 && (shot != 3 || i < 30 || i > 34)) layer = 0;
      }
    }
  };
  const auto noDirectWave = [](LayerPicks& picks) {
    for (auto& marks : picks.interpretation.ttLayer) {
      std::replace(marks.layer.begin(), marks.layer.end(), 1U, 0U);
    }
  };
  const Case cases[] = {
      {"one side", LayerMethod::kDelayTimes, toRightOnly, "Layer 2: picks of it from shots on one"},
      {"one side", LayerMethod::kIntercept, toRightOnly, "Layer 2: no shot has three picks"},
      {"one side", LayerMethod::kPlusMinus, toRightOnly, "Layer 2: no two shots have picks"},
      {"few picks", LayerMethod::kDelayTimes, fivePicks, "Layer 2: fewer than six picks"},
      {"few picks", LayerMethod::kPlusMinus, fivePicks, "Layer 2: no two shots"},
      {"no first layer", LayerMethod::kPlusMinus, noDirectWave, "The first layer has no velocity"}};
  for (const Case& one : cases) {
    LayerPicks picks = testing::delayTimePicks({});
    one.spoil(picks);
    const MethodResult result = interpretBy(one.method, picks);
    ASSERT_FALSE(result.remarks.empty()) << one.description;
    EXPECT_THAT(result.remarks.front().english(), HasSubstr(one.remark)) << nameOf(one.method);
    for (const MethodLayer& layer : result.layers) {
      EXPECT_TRUE(std::all_of(layer.depth.begin(), layer.depth.end(),
                              [](double d) { return std::isnan(d); }));
    }
  }
}

TEST(LayerMethods, tellTheReciprocalProfileAsItIsBuilt) {
  Interpretation interpretation;
  const TomoDocument line =
      testing::standardDippingLine(testing::threeDippingLayers(), interpretation.ttLayer);
  const MethodResult result =
      interpretBy(LayerMethod::kReciprocal, layerPicksOf(line, interpretation, {}));
  ASSERT_TRUE(buildProfiles(shotArrivals(line), interpretation).built);
  ASSERT_EQ(result.layers.size(), 2U);
  for (std::size_t r = 0; r < 2; ++r) {
    const auto& built = interpretation.refractData.cData[r];
    for (std::size_t j = 0; j < built.x.size(); ++j) {
      const auto at = static_cast<std::size_t>(std::lround(built.x[j] / 2.5));
      EXPECT_EQ(result.layers[r].depth[at], built.depth[j]);
      EXPECT_EQ(result.layers[r].velocity[at], built.velocity[j]);
    }
  }
}

TEST(LayerMethods, takeErrorsOfPicksWhereTheyAreStated) {
  Interpretation interpretation;
  TomoDocument line =
      testing::standardDippingLine(testing::twoDippingLayers(), interpretation.ttLayer);
  line.ttArray.edit()[3].setError(7, 0.004);
  PickErrorRule rule;
  rule.floor = 0.0005;
  rule.share = 0.0;
  const LayerPicks picks = layerPicksOf(line, interpretation, rule);
  EXPECT_EQ(picks.sigmas[3][7], 0.004);
  EXPECT_EQ(picks.sigmas[3][8], 0.0005);
}

}  // namespace
}  // namespace talvesk

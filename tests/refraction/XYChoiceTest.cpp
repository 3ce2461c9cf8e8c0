#include "refraction/BuildProfiles.h"
#include "refraction/ReciprocalMethod.h"
#include "refraction/XYChoice.h"
#include "refraction/methods/MethodComparison.h"
#include "support/ConsoleCapture.h"
#include "support/DelayTimeLine.h"

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using refractionDataStructure::Interpretation;

/// Waves meet this refractor 5 m beside their geophones: two spacings.
testing::DelayTimeGround wavyGround() {
  testing::DelayTimeGround ground;
  ground.v1 = 1000.0;
  const double depth = 5.0 * std::sqrt(3.0);
  ground.depth = [depth](double x) { return depth + 1.5 * std::sin(x / 6.0); };
  return ground;
}

Interpretation built(const LayerPicks& picks, double xy = 0.0) {
  const testing::ConsoleCapture console;
  Interpretation interpretation = picks.interpretation;
  chooseXY(interpretation, 2, xy);
  EXPECT_TRUE(buildProfiles(picks.shots, interpretation).built);
  return interpretation;
}

TEST(XYChoice, findsWhereWavesLeaveAWavyRefractor) {
  const LayerPicks exact = testing::delayTimePicks(wavyGround());
  for (const LayerPicks& picks :
       {exact, perturbedPicks(exact, 1, 0), perturbedPicks(exact, 1, 1)}) {
    const XYChoice choice = findXY(built(picks), 2);
    ASSERT_EQ(choice.tried.size(), 13U);
    EXPECT_EQ(choice.tried.front().xy, -15.0);
    EXPECT_EQ(choice.tried.back().xy, 15.0);
    for (const XYProposal& proposal : {choice.smoothest, choice.mostEven}) {
      EXPECT_TRUE(proposal.told);
      EXPECT_EQ(proposal.xy, 5.0);
    }
    EXPECT_LT(choice.tried[8].unevenness, 0.6 * choice.tried[6].unevenness);
  }
}

/// By chance some XY is always the best.
TEST(XYChoice, ofAPlaneIsHardlyEverTold) {
  const LayerPicks exact = testing::delayTimePicks({});
  const XYChoice choice = findXY(built(exact), 2);
  EXPECT_GT(choice.receivers, 0U);
  EXPECT_FALSE(choice.smoothest.told);
  EXPECT_FALSE(choice.mostEven.told);
  int smoothest = 0;
  int mostEven = 0;
  for (std::uint64_t draw = 0; draw < 40; ++draw) {
    const XYChoice found = findXY(built(perturbedPicks(exact, 8, draw)), 2);
    smoothest += found.smoothest.told ? 1 : 0;
    mostEven += found.mostEven.told ? 1 : 0;
    if (!found.smoothest.told) {
      EXPECT_EQ(found.smoothest.xy, 0.0);
    }
  }
  EXPECT_LE(smoothest, 5);
  EXPECT_LE(mostEven, 5);
}

TEST(XYChoice, ofAShortRefractorJudgesFewerXY) {
  LayerPicks picks = testing::delayTimePicks({});
  for (auto& marks : picks.interpretation.ttLayer) {
    for (std::size_t i = 0; i < marks.layer.size(); ++i) {
      if (i < 20 || i > 36) marks.layer[i] = marks.layer[i] == 2 ? 0 : marks.layer[i];
    }
  }
  const XYChoice choice = findXY(built(picks), 2);
  EXPECT_EQ(choice.receivers, 11U) << "of 17, three spacings from both ends";
  EXPECT_TRUE(std::isnan(choice.tried[2].roughness));
  EXPECT_FALSE(std::isnan(choice.tried[3].roughness));
  EXPECT_TRUE(findXY(built(picks), 3).tried.empty());
}

/// With the XY beyond the prescribed ones that was found, the waves are gone from the velocities.
TEST(XYChoice, beyondTheFamilyMakesVelocitiesEven) {
  const LayerPicks picks = testing::delayTimePicks(wavyGround());
  const auto spreadOf = [](const std::vector<double>& values) {
    const auto ends = std::minmax_element(values.begin() + 8, values.end() - 8);
    return *ends.second / *ends.first;
  };
  const Interpretation zero = built(picks, 0.0);
  const Interpretation wide = built(picks, 5.0);
  EXPECT_EQ(wide.refractData.cData[0].chosenXY, 5.0);
  EXPECT_LT(spreadOf(wide.refractData.cData[0].velocity), 1.06);
  EXPECT_GT(spreadOf(zero.refractData.cData[0].velocity), 1.2);
  EXPECT_EQ(wide.refractData.cData[0].tVs, zero.refractData.cData[0].tVs) << "the family stays";
}

TEST(XYChoice, isBoundedBySixSpacings) {
  const LayerPicks picks = testing::delayTimePicks({});
  EXPECT_EQ(built(picks, 15.0).refractData.cData[0].chosenXY, 15.0);
  EXPECT_EQ(built(picks, -2.5).refractData.cData[0].chosenXY, -2.5);
  EXPECT_EQ(built(picks, 15.1).refractData.cData[0].chosenXY, 0.0);
  EXPECT_EQ(built(picks, std::nan("")).refractData.cData[0].chosenXY, 0.0);
}

}  // namespace
}  // namespace talvesk

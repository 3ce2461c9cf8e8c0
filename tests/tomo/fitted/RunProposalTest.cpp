#include "../TestFit.h"
#include "../TestInversion.h"
#include "tomo/fitted/RunProposal.h"

#include <gtest/gtest.h>

namespace talvesk {
namespace {

RunProposal proposalFor(const testing::TimeBetween& time, double cell = 1.0) {
  testing::FitLineSize size;
  size.cell = cell;
  const testing::FitLine line = testing::fitLine(size, time);
  return proposeRun(linePicksOf(line.data, *line.geometry), cell).value();
}

TEST(RunProposal, enclosesTheVelocitiesOfTheGround) {
  const struct {
    double v1, v2, depth;
  } grounds[] = {{300.0, 1500.0, 3.0}, {450.0, 2800.0, 4.0}, {900.0, 4000.0, 6.0}};
  for (const auto& ground : grounds) {
    const RunProposal proposal =
        proposalFor(testing::twoLayerTimes(ground.v1, ground.v2, ground.depth));
    EXPECT_LT(proposal.minVelocity, ground.v1);
    EXPECT_GT(proposal.minVelocity, 0.4 * ground.v1);
    EXPECT_GT(proposal.maxVelocity, ground.v2);
    EXPECT_LT(proposal.maxVelocity, 2.0 * ground.v2);
  }
}

TEST(RunProposal, reachesAsDeepAsRaysTurn) {
  const double v0 = 400.0, k = 40.0, reach = 46.0;
  const double turn = v0 / k * (std::sqrt(1.0 + std::pow(k * reach / (2.0 * v0), 2)) - 1.0);
  const RunProposal proposal = proposalFor(testing::gradientTimes(v0, k));
  EXPECT_GT(proposal.depth, turn);
  EXPECT_LT(proposal.depth, 1.5 * turn);
  EXPECT_LE(proposal.depth, reach / 2.0);
}

TEST(RunProposal, smoothsOverTheDistanceOfTheGeophones) {
  const auto ground = testing::gradientTimes(400.0, 40.0);
  EXPECT_EQ(proposalFor(ground, 1.0).smoothing, 2);
  EXPECT_EQ(proposalFor(ground, 0.5).smoothing, 4);
  EXPECT_EQ(proposalFor(ground, 4.0).smoothing, 1);
}

TEST(RunProposal, isNoneWithoutPicks) {
  EXPECT_FALSE(proposeRun(LinePicks(), 1.0));
  TomoDocument line = testing::twoLayers();
  EXPECT_TRUE(proposeRun(line));
  for (TravelTime& record : line.ttArray.edit()) {
    for (double& time : record.ttMisurati.edit()) time = kNoTime;
  }
  EXPECT_FALSE(proposeRun(line));
  EXPECT_FALSE(proposeRun(TomoDocument()));
}

}  // namespace
}  // namespace talvesk

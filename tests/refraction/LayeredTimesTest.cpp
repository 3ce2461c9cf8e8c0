#include "refraction/BuildProfiles.h"
#include "refraction/LayeredFit.h"
#include "refraction/LayeredTimes.h"
#include "refraction/WeighedPicks.h"
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
using testing::DippingLayers;

/// A profile that is the ground itself, known at some receivers of the standard line.
processingData profileOf(const DippingLayers& ground, double first, double last) {
  processingData results;
  results.v1 = ground.velocities[0];
  for (std::size_t i = 0; i < ground.depths.size(); ++i) {
    computedData refractor;
    for (double x = first; x <= last; x += 2.5) {
      refractor.x.push_back(x);
      refractor.elevation.push_back(100.0);
      refractor.depth.push_back(ground.depth(i, x));
      refractor.velocity.push_back(ground.velocities[i + 1]);
    }
    results.cData.push_back(std::move(refractor));
  }
  return results;
}

TEST(LayeredTimes, areThoseOfTheClosedFormsOfPlaneLayers) {
  const DippingLayers grounds[] = {testing::twoDippingLayers(),
                                   {{500.0, 1800.0}, {6.0}, {0.0}},
                                   {{300.0, 4500.0}, {24.0}, {-0.08}},
                                   {{900.0, 1200.0}, {8.0}, {0.05}},
                                   testing::threeDippingLayers(),
                                   {{400.0, 1200.0, 3500.0}, {3.0, 18.0}, {0.0, 0.0}},
                                   {{350.0, 900.0, 5000.0}, {6.0, 34.0}, {0.03, -0.05}}};
  for (const DippingLayers& ground : grounds) {
    std::vector<refractionDataStructure::layerStruct> truth;
    const auto shots = shotArrivals(testing::standardDippingLine(ground, truth));
    // What lies beyond the receivers of the profile is continued.
    const auto body = layeredGround(shots, profileOf(ground, 20.0, 110.0));
    ASSERT_TRUE(body);
    LayeredTimes through(*body);
    ASSERT_EQ(through.layers(), ground.velocities.size());
    double worst = 0.0;
    for (std::size_t shot = 0; shot < shots.size(); ++shot) {
      for (std::uint32_t layer = 1; layer <= through.layers(); ++layer) {
        const auto times = through.times(layer, shots[shot].shot, shots[shot].receivers);
        for (std::size_t i = 0; i < times.size(); ++i) {
          // Nearer to the shot there is no head wave.
          if (truth[shot].layer[i] != layer) continue;
          worst = std::max(worst, std::fabs(times[i] - shots[shot].times[i]));
        }
      }
    }
    EXPECT_LT(worst, 5e-5) << ground.velocities.size() << " layers, " << ground.velocities[1];
  }
}

/// A trough in the refractor is followed, a hump is passed straight below.
TEST(LayeredTimes, takeTheShortestWayBelowABoundary) {
  LayeredGround ground;
  ground.firstVelocity = 500.0;
  LayeredGround::Boundary boundary;
  for (double x = 0.0; x <= 200.0; x += 0.5) {
    ground.x.push_back(x);
    boundary.elevation.push_back(-10.0 + std::max(0.0, 5.0 - std::fabs(x - 100.0)));
    boundary.slowness.push_back(1.0 / 2000.0);
  }
  ground.boundaries = {boundary};
  LayeredTimes hump(ground);
  const double level = 100.0 / 2000.0 + 2.0 * 10.0 * std::sqrt(1.0 / 25e4 - 1.0 / 4e6);
  EXPECT_NEAR(hump.times(2, {50.0, 0.0}, {{150.0, 0.0}})[0], level, 1e-6);
  for (double& z : ground.boundaries[0].elevation) z = -20.0 - z;
  LayeredTimes trough(ground);
  const double detour = (2.0 * std::hypot(5.0, 5.0) - 10.0) / 2000.0;
  const double followed = trough.times(2, {50.0, 0.0}, {{150.0, 0.0}})[0];
  EXPECT_GT(followed, level);
  EXPECT_LE(followed, level + detour);
  EXPECT_EQ(trough.times(2, {150.0, 0.0}, {{50.0, 0.0}})[0], followed) << "the same way back";
}

/// The velocity along the refractor is that of each place, not a mean of the line.
TEST(LayeredTimes, goWithTheVelocityAlongARefractor) {
  LayeredGround ground;
  ground.firstVelocity = 500.0;
  LayeredGround::Boundary boundary;
  for (double x = 0.0; x <= 200.0; x += 0.5) {
    ground.x.push_back(x);
    boundary.elevation.push_back(-5.0);
    boundary.slowness.push_back(x < 100.0 ? 1.0 / 1500.0 : 1.0 / 3000.0);
  }
  ground.boundaries = {boundary};
  LayeredTimes through(ground);
  const auto times =
      through.times(2, {10.0, 0.0}, {{60.0, 0.0}, {90.0, 0.0}, {150.0, 0.0}, {180.0, 0.0}});
  EXPECT_NEAR(times[1] - times[0], 30.0 / 1500.0, 1e-6);
  EXPECT_NEAR(times[3] - times[2], 30.0 / 3000.0, 1e-6);
}

/// Slower to the left than to the right, and faster downward as far as the layer grows.
TEST(LayeredTimes, goThroughAFirstLayerThatChanges) {
  LayeredGround ground;
  ground.firstVelocity = 500.0;
  LayeredGround::Boundary boundary;
  for (double x = 0.0; x <= 200.0; x += 0.5) {
    ground.x.push_back(x);
    ground.firstSlowness.push_back((2.5 - 0.005 * x) / 1000.0);
    ground.surface.push_back(0.0);
    boundary.elevation.push_back(-10.0);
    boundary.slowness.push_back(1.0 / 3000.0);
  }
  ground.boundaries = {boundary};
  const auto slownessAt = [](double x) { return (2.5 - 0.005 * x) / 1000.0; };
  EXPECT_NEAR(LayeredTimes(ground).times(1, {20.25, 0.0}, {{60.0, 0.0}})[0],
              39.75 * slownessAt(40.125), 1e-6);
  ground.growth = 0.2;
  ground.growsTo = 4.0;
  LayeredTimes through(ground);
  EXPECT_NEAR(through.times(1, {20.0, 0.0}, {{60.0, 0.0}})[0],
              slownessAt(40.0) * 2.0 / 0.2 * std::asinh(0.5 * 0.2 * 40.0), 1e-9);
  const auto delayAt = [&](double x) {
    double delay = 0.0;
    for (double z = 0.005; z < 10.0; z += 0.01) {
      const double slowness = slownessAt(x) / (1.0 + 0.2 * std::min(z, 4.0));
      delay += 0.01 * std::sqrt(slowness * slowness - 1.0 / 9e6);
    }
    return delay;
  };
  // Waves leave and reach the surface some metres from where they touch the refractor.
  const double expected = 100.0 / 3000.0 + delayAt(51.5) + delayAt(148.5);
  EXPECT_NEAR(through.times(2, {50.0, 0.0}, {{150.0, 0.0}})[0], expected, 3e-4);
}

TEST(LayeredFit, measuresTheProfileAgainstItsPicks) {
  const testing::ConsoleCapture console;
  Interpretation interpretation;
  TomoDocument line =
      testing::standardDippingLine(testing::twoDippingLayers(), interpretation.ttLayer);
  // One shot later by 3 ms than it says: it takes no part in the profile's curves.
  const std::size_t late = 8;
  interpretation.ttLayer[late].enabled = false;
  ASSERT_TRUE(buildProfiles(shotArrivals(line), interpretation).built);
  interpretation.ttLayer[late].enabled = true;
  TravelTime& record = line.ttArray.edit()[late];
  for (double& time : record.ttMisurati.edit()) time += 0.003;
  for (std::size_t i = 0; i < record.ttMisurati.size(); ++i) record.setError(i, 0.001);
  const auto shots = shotArrivals(line);
  const LayeredFit fit = fitOfProfile(shots, pickErrors(line, shots), interpretation);
  ASSERT_EQ(fit.perLayer.size(), 2U);
  EXPECT_LT(fit.perLayer[0].rms, 0.001);
  std::size_t picks = 0;
  for (const LayerMisfit& one : fit.perShot) {
    picks += one.picks;
    EXPECT_NEAR(one.mean, one.shot == late ? 0.003 : 0.0, 1.5e-3) << one.shot;
    if (one.shot == late && one.layer == 1) {
      EXPECT_NEAR(one.chi2, 9.0, 1e-6);
    }
  }
  EXPECT_EQ(fit.total.picks, picks);
  EXPECT_THAT(misfitTable(fit), ::testing::StartsWith("shot layer picks rms_ms mean_ms chi2\n1 "));
  EXPECT_THAT(misfitTable(fit), ::testing::HasSubstr("\nall all " + std::to_string(picks)));
}

TEST(LayeredFit, isEmptyWithoutDepths) {
  Interpretation interpretation;
  const TomoDocument line =
      testing::standardDippingLine(testing::twoDippingLayers(), interpretation.ttLayer);
  const auto shots = shotArrivals(line);
  for (const double v1 : {0.0, std::numeric_limits<double>::quiet_NaN(), 500.0}) {
    interpretation.refractData = profileOf(testing::twoDippingLayers(), 20.0, 20.0);
    interpretation.refractData.v1 = v1;
    EXPECT_EQ(fitOfProfile(shots, pickErrors(line, shots), interpretation).total.picks, 0U);
  }
}

}  // namespace
}  // namespace talvesk

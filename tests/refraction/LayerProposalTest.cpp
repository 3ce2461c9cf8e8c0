#include "refraction/BuildProfiles.h"
#include "refraction/LayerProposal.h"
#include "support/ConsoleCapture.h"
#include "support/RefractionLines.h"

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using refractionDataStructure::Interpretation;
using refractionDataStructure::layerStruct;
using testing::DippingLayers;

/// A few milliseconds of noise, the same every time.
void shake(TomoDocument& line, double seconds) {
  std::uint32_t state = 12345;
  for (TravelTime& record : line.ttArray.edit()) {
    for (double& time : record.ttMisurati.edit()) {
      state = state * 1664525U + 1013904223U;
      if (time > 0.0) time = std::max(1e-4, time + seconds * (state / 2147483648.0 - 1.0));
    }
  }
}

double rightMarks(const std::vector<layerStruct>& proposed, const std::vector<layerStruct>& truth) {
  std::size_t right = 0;
  std::size_t all = 0;
  for (std::size_t shot = 0; shot < truth.size(); ++shot) {
    for (std::size_t i = 0; i < truth[shot].layer.size(); ++i) {
      ++all;
      if (proposed[shot].layer[i] == truth[shot].layer[i]) ++right;
    }
  }
  return static_cast<double>(right) / static_cast<double>(all);
}

TEST(Proposal, findsTheLayersOfALine) {
  struct Case {
    const char* what;
    const DippingLayers& ground;
    double noise;  ///< seconds
    double right;  ///< part of the marks
  };
  const Case cases[] = {{"two", testing::twoDippingLayers(), 0.0, 0.98},
                        {"two, noisy", testing::twoDippingLayers(), 1e-3, 0.96},
                        {"three", testing::threeDippingLayers(), 0.0, 0.96},
                        {"three, noisy", testing::threeDippingLayers(), 5e-4, 0.93}};
  for (const Case& c : cases) {
    std::vector<layerStruct> truth;
    TomoDocument line = testing::standardDippingLine(c.ground, truth);
    shake(line, c.noise);
    const auto proposed = proposeLayers(shotArrivals(line), {});
    ASSERT_EQ(proposed.size(), truth.size());
    EXPECT_GT(rightMarks(proposed, truth), c.right) << c.what;
  }
}

TEST(Proposal, isGoodEnoughForAProfile) {
  const testing::ConsoleCapture console;
  for (const DippingLayers& ground : {testing::twoDippingLayers(), testing::threeDippingLayers()}) {
    Interpretation interpretation;
    TomoDocument line = testing::standardDippingLine(ground, interpretation.ttLayer);
    const auto shots = shotArrivals(line);
    interpretation.ttLayer = proposeLayers(shots, {});
    ASSERT_TRUE(buildProfiles(shots, interpretation).built);
    const auto& results = interpretation.refractData;
    EXPECT_NEAR(results.v1, ground.velocities[0], 0.03 * ground.velocities[0]);
    ASSERT_EQ(results.cData.size(), ground.depths.size());
    for (std::size_t i = 0; i < results.cData.size(); ++i) {
      const std::size_t middle = results.cData[i].x.size() / 2;
      const double depth = ground.depth(i, results.cData[i].x[middle]);
      EXPECT_NEAR(results.cData[i].depth[middle], depth, 0.05 * depth);
    }
  }
}

TEST(Proposal, marksPicksOnlyAndKeepsWhoIsDisabled) {
  std::vector<layerStruct> truth;
  TomoDocument line = testing::standardDippingLine(testing::twoDippingLayers(), truth);
  line.ttArray.edit()[3].ttMisurati.edit()[5] = kNoTime;
  line.ttArray.edit()[3].ttMisurati.edit()[6] = kUnpicked;
  truth[4].enabled = false;
  const auto proposed = proposeLayers(shotArrivals(line), truth);
  EXPECT_EQ(proposed[3].layer[5], 0U);
  EXPECT_EQ(proposed[3].layer[6], 0U);
  EXPECT_NE(proposed[3].layer[4], 0U);
  EXPECT_FALSE(proposed[4].enabled);
  EXPECT_TRUE(proposed[3].enabled);
}

TEST(Proposal, takesWhatThereIs) {
  struct Case {
    std::vector<double> offsets;
    std::vector<double> times;
    std::size_t pieces;
  };
  const Case cases[] = {{{}, {}, 0},
                        {{5}, {0.01}, 0},
                        {{5, 5, 5}, {0.01, 0.02, 0.03}, 0},
                        {{5, 10}, {0.02, 0.01}, 1},
                        {{10, 20, 30, 40}, {0.02, 0.04, 0.06, 0.08}, 1}};
  for (const Case& c : cases) {
    EXPECT_EQ(segmentBranch(c.offsets, c.times, 2).pieces.size(), c.pieces) << c.offsets.size();
  }
}

}  // namespace
}  // namespace talvesk

#include "refraction/SurveyProposal.h"
#include "refraction/WeighedPicks.h"
#include "support/ConsoleCapture.h"
#include "support/LayerTrials.h"

#include <algorithm>
#include <array>
#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using refractionDataStructure::layerStruct;
using ::testing::HasSubstr;
using testing::TrialGround;

SurveyProposal proposalOf(const TomoDocument& line, const std::vector<layerStruct>& before = {},
                          std::uint32_t layers = 0) {
  const auto shots = shotArrivals(line);
  return proposeFromSurvey(shots, pickErrors(line, shots), before, layers);
}

/// A few of the trials of the table in docs/layers.md.
TEST(SurveyProposal, findsLayersAndTellsThemFromAGradient) {
  const testing::ConsoleCapture console;
  constexpr std::uint32_t kTrials = 6;
  for (const TrialGround kind :
       {TrialGround::kTwoLevel, TrialGround::kTwoDipping, TrialGround::kThreeLevel,
        TrialGround::kThreeDipping, TrialGround::kGradient}) {
    for (const double gross : {0.0, 0.03}) {
      std::vector<double> depths;
      std::vector<double> velocities;
      for (std::uint32_t i = 0; i < kTrials; ++i) {
        const testing::LayerTrial trial(kind, i, 5e-4, gross);
        const testing::TrialOutcome outcome = trial.propose();
        const int which = 100 * static_cast<int>(kind) + static_cast<int>(i);
        ASSERT_EQ(outcome.layers, trial.layers()) << which << ", gross " << gross;
        depths.push_back(outcome.waveDepth);
        velocities.push_back(outcome.waveVelocity);
      }
      EXPECT_LT(medianOf(depths, 0.0), 0.05);
      EXPECT_LT(medianOf(velocities, 0.0), 0.03);
    }
  }
}

TEST(SurveyProposal, marksAsTheGroundIs) {
  for (const auto* ground : {&testing::twoDippingLayers(), &testing::threeDippingLayers()}) {
    std::vector<layerStruct> truth;
    const TomoDocument line = testing::standardDippingLine(*ground, truth);
    const SurveyProposal proposal = proposalOf(line);
    ASSERT_TRUE(proposal.hasLayers());
    std::size_t wrong = 0;
    for (std::size_t shot = 0; shot < truth.size(); ++shot) {
      for (std::size_t i = 0; i < truth[shot].layer.size(); ++i) {
        if (proposal.marks[shot].layer[i] != truth[shot].layer[i]) ++wrong;
      }
    }
    EXPECT_LT(wrong, 6U) << "of 1200";
    EXPECT_THAT(proposal.statement().english(),
                HasSubstr(std::to_string(ground->velocities.size()) + " layers, misfit 0"));
  }
}

/// Picks that bend the far ends of all curves count for little when they say that they are bad.
TEST(SurveyProposal, weighsPicksByTheirErrors) {
  std::vector<layerStruct> truth;
  TomoDocument line = testing::dippingLine({{500.0, 2000.0}, {5.0}, {0.0}}, 24, 2.0,
                                           {-10.0, -1.0, 23.0, 47.0, 56.0}, truth);
  const auto velocity = [&](double farError) {
    TomoDocument bent = line;
    for (TravelTime& record : bent.ttArray.edit()) {
      for (std::size_t i = 0; i < record.ttMisurati.size(); ++i) {
        const double offset = std::fabs(2.0 * static_cast<double>(i) - record.shotPos2d.x);
        if (offset > 36.0) record.ttMisurati.edit()[i] -= 0.0003 * (offset - 36.0);
        record.setError(i, offset > 36.0 ? farError : 0.0005);
      }
    }
    return proposalOf(bent, {}, 2).grounds[1].velocities[1];
  };
  EXPECT_NEAR(velocity(0.02), 2000.0, 20.0);
  EXPECT_GT(std::fabs(velocity(0.0005) - 2000.0), 60.0);
}

TEST(SurveyProposal, leavesGrossPicksToNoLayerAndNamesThem) {
  std::vector<layerStruct> truth;
  TomoDocument line = testing::standardDippingLine(testing::twoDippingLayers(), truth);
  line.ttArray.edit()[5].ttMisurati.edit()[50] += 0.04;
  const SurveyProposal proposal = proposalOf(line);
  ASSERT_EQ(proposal.standOut.size(), 1U);
  EXPECT_EQ(proposal.standOut[0], (TraceRef{5, 50}));
  EXPECT_EQ(proposal.marks[5].layer[50], 0U);
  ASSERT_FALSE(proposal.remarks().empty());
  EXPECT_THAT(proposal.remarks().back().english(),
              HasSubstr("1 pick fits no layer and is given to none (shot/trace): 6/51"));
}

TEST(SurveyProposal, saysWhichPiecesRestOnFewPicks) {
  std::vector<layerStruct> truth;
  TomoDocument line = testing::standardDippingLine(testing::twoDippingLayers(), truth);
  // Of the first shot within the line three direct arrivals to its right are left.
  for (std::size_t i = 3; i < truth[2].layer.size(); ++i) {
    if (truth[2].layer[i] == 1) line.ttArray.edit()[2].ttMisurati.edit()[i] = kNoTime;
  }
  const SurveyProposal proposal = proposalOf(line);
  const auto found =
      std::find_if(proposal.shortPieces.begin(), proposal.shortPieces.end(),
                   [](const ShortPiece& piece) { return piece.shot == 2 && piece.layer == 1; });
  ASSERT_NE(found, proposal.shortPieces.end());
  EXPECT_EQ(found->picks, 3U);
  std::string all;
  for (const Message& remark : proposal.remarks()) all += remark.english() + '\n';
  EXPECT_THAT(all,
              HasSubstr("layer 1 rests on fewer than four picks (their number in brackets) to the "
                        "right of shot 3 (3)\n"));
}

TEST(SurveyProposal, fitsEnabledShotsAndMarksAll) {
  std::vector<layerStruct> truth;
  TomoDocument line = testing::standardDippingLine(testing::twoDippingLayers(), truth);
  for (const std::size_t shot : {4U, 5U, 6U, 7U, 8U}) {
    truth[shot].enabled = false;
    for (double& time : line.ttArray.edit()[shot].ttMisurati.edit()) time *= 1.1;
  }
  const SurveyProposal proposal = proposalOf(line, truth);
  EXPECT_NEAR(proposal.grounds[1].velocities[0], 500.0, 1.0);
  EXPECT_FALSE(proposal.marks[4].enabled);
  EXPECT_TRUE(proposal.marks[3].enabled);
  EXPECT_NE(proposal.marks[4].layer[10], 0U);
}

TEST(SurveyProposal, givesAsManyLayersAsAreAskedFor) {
  std::vector<layerStruct> truth;
  const TomoDocument line = testing::standardDippingLine(testing::threeDippingLayers(), truth);
  for (const std::uint32_t layers : {1U, 2U, 3U}) {
    const SurveyProposal proposal = proposalOf(line, {}, layers);
    ASSERT_TRUE(proposal.chosen);
    EXPECT_EQ(proposal.grounds[*proposal.chosen].layers, layers);
    std::uint32_t deepest = 0;
    for (const layerStruct& own : proposal.marks) {
      deepest = std::max(deepest, *std::max_element(own.layer.begin(), own.layer.end()));
    }
    EXPECT_EQ(deepest, layers);
  }
}

TEST(SurveyProposal, takesWhatThereIs) {
  const auto huge = std::numeric_limits<double>::max();
  const std::vector<std::vector<ShotArrivals>> surveys = {
      {},
      {{{0.0, 0.0}, {}, {}}},
      {{{0.0, 0.0}, {{0.0, 0.0}, {1.0, 0.0}}, {0.0, 0.01}}},
      {{{0.0, 0.0},
        {{5.0, 0.0}, {5.0, 0.0}, {5.0, 0.0}, {5.0, 0.0}, {5.0, 0.0}},
        {0.01, 0.01, 0.02, 0.01, 0.01}}},
      {{{-huge, 0.0},
        {{huge, 0.0}, {1.0, 0.0}, {2.0, 0.0}, {3.0, 0.0}, {4.0, 0.0}},
        {huge, 0.01, 0.02, 0.03, 0.04}}}};
  for (const auto& shots : surveys) {
    const SurveyProposal proposal = proposeFromSurvey(shots, {}, {});
    EXPECT_EQ(proposal.marks.size(), shots.size());
    EXPECT_FALSE(proposal.hasLayers() && proposal.grounds[*proposal.chosen].layers > 1);
    EXPECT_FALSE(proposal.statement().empty());
  }
}

}  // namespace
}  // namespace talvesk

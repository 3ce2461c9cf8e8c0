#include "model/ChiSquare.h"
#include "numerics/Medians.h"
#include "refraction/BuildProfiles.h"
#include "refraction/FittedProfile.h"
#include "refraction/ProfileOrigin.h"
#include "refraction/Support.h"
#include "refraction/WeighedPicks.h"
#include "refraction/methods/ProfileErrors.h"
#include "support/ConsoleCapture.h"
#include "support/LayerTrials.h"

#include <algorithm>
#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using refractionDataStructure::Interpretation;
using refractionDataStructure::layerStruct;
using ::testing::HasSubstr;
using testing::TrialGround;

struct Line {
  explicit Line(const TomoDocument& document)
      : shots(shotArrivals(document)), errors(pickErrors(document, shots)) {
    proposal = proposeFromSurvey(shots, errors, {});
  }
  LayeredFit fit() { return fitProfile(shots, errors, proposal, fitted); }

  std::vector<ShotArrivals> shots;
  std::vector<std::vector<double>> errors;
  SurveyProposal proposal;
  Interpretation fitted;
};

/// A few of the trials of the table in docs/layers.md.
TEST(FittedProfile, isTheGroundOfNoisyPicks) {
  const testing::ConsoleCapture console;
  for (const TrialGround kind : {TrialGround::kTwoLevel, TrialGround::kTwoDipping,
                                 TrialGround::kThreeLevel, TrialGround::kThreeDipping}) {
    std::vector<double> depths;
    std::vector<double> velocities;
    for (std::uint32_t i = 0; i < 6; ++i) {
      const testing::TrialOutcome outcome = testing::LayerTrial(kind, i).propose();
      ASSERT_TRUE(outcome.fitted) << static_cast<int>(kind) << ' ' << i;
      EXPECT_LT(outcome.fittedMisfit, 1.5 * outcome.waveMisfit)
          << static_cast<int>(kind) << ' ' << i;
      depths.push_back(outcome.fittedDepth);
      velocities.push_back(outcome.fittedVelocity);
    }
    EXPECT_LT(medianOf(depths, 1.0), 0.05) << static_cast<int>(kind);
    EXPECT_LT(medianOf(velocities, 1.0), 0.03) << static_cast<int>(kind);
  }
}

/// The line of an end shot with few picks of a refractor leads the reciprocal method astray, the
/// farther from the shot the more.
TEST(FittedProfile, doesNotDriftAlongTheLineAndSaysThatTheOtherDoes) {
  const testing::ConsoleCapture console;
  std::vector<layerStruct> truth;
  TomoDocument document = testing::dippingLine({{500.0, 1500.0}, {3.0}, {0.0}}, 48, 2.0,
                                               {-1.0, 15.0, 31.0, 47.0, 63.0, 79.0, 95.0}, truth);
  // The first shot was recorded by eight geophones behind its cross-over, and each a little early.
  auto& times = document.ttArray.edit()[0].ttMisurati.edit();
  for (std::size_t i = 0; i < times.size(); ++i) {
    const auto first = std::find(truth[0].layer.begin(), truth[0].layer.end(), 2U);
    const auto behind =
        static_cast<double>(i) - static_cast<double>(first - truth[0].layer.begin());
    if (behind >= 8.0) times[i] = kNoTime;
    if (behind >= 0.0 && behind < 8.0) times[i] -= 1e-4 * behind;
  }
  Line line(document);
  ASSERT_EQ(line.proposal.grounds[*line.proposal.chosen].layers, 2U);
  Interpretation built;
  built.ttLayer = line.proposal.marks;
  ASSERT_TRUE(buildProfiles(line.shots, built).built);
  const LayeredFit drifting = fitOfProfile(line.shots, line.errors, built);
  EXPECT_GT(drifting.total.rms, 1e-3);
  const std::string why = whyProfileFitsLess(line.shots, drifting, line.proposal, built).english();
  EXPECT_THAT(why, HasSubstr("the curves of layer 2 follow the lines of shots 1 and 7"));

  const LayeredFit fit = line.fit();
  EXPECT_LT(fit.total.rms, 4e-4);
  EXPECT_TRUE(whyProfileFitsLess(line.shots, fit, line.proposal, line.fitted).empty());
  const auto& refractor = line.fitted.refractData.cData.at(0);
  for (std::size_t j = 0; j < refractor.x.size(); ++j) {
    EXPECT_NEAR(refractor.depth[j], 3.0, 0.25) << refractor.x[j];
    EXPECT_NEAR(refractor.velocity[j], 1500.0, 60.0) << refractor.x[j];
  }
}

/// Of a spread whose shots all stand between its geophones the reciprocal method finds nothing.
TEST(FittedProfile, needsNoShotAtEitherEndOfTheLine) {
  const testing::ConsoleCapture console;
  std::vector<layerStruct> truth;
  Line line(
      testing::dippingLine({{500.0, 2000.0}, {4.0}, {0.02}}, 36, 3.0, {25.5, 52.5, 79.5}, truth));
  Interpretation built;
  built.ttLayer = line.proposal.marks;
  EXPECT_FALSE(buildProfiles(line.shots, built).built);
  ASSERT_GT(line.fit().total.picks, 0U);
  const auto& refractor = line.fitted.refractData.cData.at(0);
  for (std::size_t j = 0; j < refractor.x.size(); ++j) {
    const double truly = 4.0 + refractor.x[j] * std::tan(0.02);
    EXPECT_NEAR(refractor.depth[j], truly, 0.05 * truly) << refractor.x[j];
  }
  const RefractorSupport support = supportOf(line.shots, line.fitted, 2);
  EXPECT_EQ(support.depth.size(), refractor.x.size());
}

TEST(FittedProfile, isKnownAgainByItsPicksAndMarks) {
  const testing::ConsoleCapture console;
  Line line(testing::LayerTrial(TrialGround::kTwoDipping, 0).line());
  const auto misfit = [&line](const Interpretation& interpretation) {
    return fitOfOwnProfile(line.shots, line.errors, interpretation).total;
  };
  const LayeredFit fit = line.fit();
  ASSERT_GT(fit.total.picks, 0U);
  EXPECT_EQ(misfit(line.fitted).rms, fit.total.rms);
  Interpretation marked = line.fitted;
  marked.ttLayer[2].enabled = false;
  EXPECT_EQ(misfit(marked).picks, 0U) << "a shot less";
  line.proposal = proposalOfMarks(line.shots, line.errors, marked.ttLayer);
  EXPECT_LT(line.fit().total.picks, fit.total.picks);
  EXPECT_GT(misfit(line.fitted).picks, 0U) << "the profile of these marks";
  line.shots[4].times[22] += 3e-3;
  EXPECT_EQ(misfit(line.fitted).picks, 0U) << "the picks are others";
}

TEST(FittedProfile, hasNoErrorsOfTheReciprocalMethod) {
  const testing::ConsoleCapture console;
  const TomoDocument document = testing::LayerTrial(TrialGround::kTwoDipping, 0).line();
  Line line(document);
  ASSERT_GT(line.fit().total.picks, 0U);
  const MethodComparison moved =
      compareMethods(layerPicksOf(document, line.fitted, errorRuleOf(document)),
                     {LayerMethod::kReciprocal}, {4, 1, 1});
  EXPECT_FALSE(profileErrors(moved, line.fitted.refractData));
}

TEST(FittedProfile, cannotFitALayerThatHasNoWave) {
  const testing::ConsoleCapture console;
  Line line(testing::LayerTrial(TrialGround::kTwoDipping, 0).line());
  line.proposal.marks[2].layer[20] = 3;
  EXPECT_EQ(line.fit().total.picks, 0U);
}

TEST(FittedProfile, leavesWhatWasThereWhereNothingCanBeFitted) {
  const testing::ConsoleCapture console;
  const testing::LayerTrial trial(TrialGround::kGradient, 0);
  Line line(trial.line());
  line.fitted.refractData.v1 = 321.0;
  EXPECT_EQ(line.fit().total.picks, 0U);
  EXPECT_EQ(line.fitted.refractData.v1, 321.0);
}

}  // namespace
}  // namespace talvesk

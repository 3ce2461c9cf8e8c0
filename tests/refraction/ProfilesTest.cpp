#include "base/Log.h"
#include "model/SurveyLine.h"
#include "refraction/BuildProfiles.h"
#include "refraction/Profile.h"
#include "support/ConsoleCapture.h"
#include "support/RefractionLines.h"
#include "support/TestFolder.h"

#include <algorithm>
#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using refractionDataStructure::computedData;
using refractionDataStructure::Interpretation;
using refractionDataStructure::phantom;
using testing::ConsoleCapture;
using testing::DippingLayers;
using ::testing::HasSubstr;
using ::testing::Not;
using Kind = RefractionWarning::Kind;

std::vector<Kind> kinds(const ProfileOutcome& outcome) {
  std::vector<Kind> result;
  for (const RefractionWarning& warning : outcome.warnings) result.push_back(warning.kind);
  return result;
}

/// The smoothing takes in eight receivers, and the ends are flattened.
constexpr std::size_t kEnds = 5;

void expectRefractor(const computedData& found, const DippingLayers& ground, std::size_t refractor,
                     std::size_t receivers) {
  ASSERT_GE(found.x.size(), receivers);
  ASSERT_EQ(found.depth.size(), found.x.size());
  double worstVelocity = 0.0;
  double worstDepth = 0.0;
  for (std::size_t j = kEnds; j + kEnds < found.x.size(); ++j) {
    const double velocity = ground.velocities[refractor + 1];
    const double depth = ground.depth(refractor, found.x[j]);
    worstVelocity = std::max(worstVelocity, std::fabs(found.velocity[j] / velocity - 1.0));
    worstDepth = std::max(worstDepth, std::fabs(found.depth[j] / depth - 1.0));
  }
  EXPECT_LT(worstVelocity, 0.03);
  EXPECT_LT(worstDepth, 0.05);
}

TEST(Profile, recoversADippingRefractor) {
  const ConsoleCapture console;
  Interpretation interpretation;
  const TomoDocument line =
      testing::standardDippingLine(testing::twoDippingLayers(), interpretation.ttLayer);
  const ProfileOutcome outcome = buildProfiles(shotArrivals(line), interpretation);
  ASSERT_TRUE(outcome.built);
  EXPECT_TRUE(outcome.warnings.empty());
  const auto& results = interpretation.refractData;
  EXPECT_NEAR(results.v1, 500.0, 1e-6);
  ASSERT_EQ(results.cData.size(), 1U);
  expectRefractor(results.cData[0], testing::twoDippingLayers(), 0, 55);
  EXPECT_EQ(results.v2, results.cData[0].velocity);
  EXPECT_THAT(console.out(), HasSubstr(" x    z    z2    tV  TV2   tg    tg2      V       V2\n0 "));
}

TEST(Profile, recoversTwoDippingRefractors) {
  const ConsoleCapture console;
  Interpretation interpretation;
  const TomoDocument line =
      testing::standardDippingLine(testing::threeDippingLayers(), interpretation.ttLayer);
  const ProfileOutcome outcome = buildProfiles(shotArrivals(line), interpretation);
  ASSERT_TRUE(outcome.built);
  EXPECT_TRUE(outcome.warnings.empty());
  const auto& results = interpretation.refractData;
  ASSERT_EQ(results.cData.size(), 2U);
  expectRefractor(results.cData[0], testing::threeDippingLayers(), 0, 55);
  expectRefractor(results.cData[1], testing::threeDippingLayers(), 1, 55);
  for (const char* mark : {"Phantom 3\n", " TAB 3 ", "TAB3 : "}) {
    EXPECT_THAT(console.out(), HasSubstr(mark));
  }
}

/// As on most lines: no refracted arrivals near the shot at the far end.
void endReverseCurve(const TomoDocument& line, double end, Interpretation& interpretation) {
  for (std::size_t shot = 0; shot < line.ttArray.size(); ++shot) {
    const auto& receivers = line.line->goephonesStringSet[0];
    for (std::size_t i = 0; i < receivers.size(); ++i) {
      const bool facesEnd = receivers[i].x < line.ttArray[shot].shotPos2d.x;
      if (facesEnd && receivers[i].x > end) interpretation.ttLayer[shot].layer[i] = 0;
    }
  }
}

TEST(Profile, ofReceiversThatBothCurvesReach) {
  const ConsoleCapture console;
  Interpretation interpretation;
  const TomoDocument line =
      testing::standardDippingLine(testing::twoDippingLayers(), interpretation.ttLayer);
  endReverseCurve(line, 40.0, interpretation);
  ASSERT_TRUE(buildProfiles(shotArrivals(line), interpretation).built);
  const computedData& found = interpretation.refractData.cData[0];
  EXPECT_EQ(found.x.back(), 40.0);
  EXPECT_EQ(found.tV.size(), found.x.size());
  EXPECT_EQ(interpretation.phnt_R[0].points.back().x, 40.0);
  EXPECT_EQ(interpretation.phnt_A[0].points.back().x, 147.5) << "the forward curve stays whole";
}

/// A step in the refractor just behind the last receiver of both: what was picked there is read,
/// not a continuation of what lies before.
TEST(Profile, readsForwardPicksBehindTheReceiversOfBoth) {
  const ConsoleCapture console;
  Interpretation whole;
  TomoDocument line = testing::standardDippingLine(testing::twoDippingLayers(), whole.ttLayer);
  testing::arrive(
      line, whole.ttLayer,
      {[](double x) { return 5e-4 * x; }, [](double x) { return x > 40.0 ? 0.024 : 0.02; }});
  chooseXY(whole, 2, 4.0);
  Interpretation ended = whole;
  endReverseCurve(line, 40.0, ended);
  const auto shots = shotArrivals(line);
  ASSERT_TRUE(buildProfiles(shots, whole).built);
  ASSERT_TRUE(buildProfiles(shots, ended).built);
  const computedData& all = whole.refractData.cData[0];
  const computedData& some = ended.refractData.cData[0];
  ASSERT_EQ(some.x.back(), 40.0);
  // The reciprocal times differ by the lines of the reverse curves, so compare along the line.
  const double level = all.tV[0] - some.tV[0];
  for (std::size_t j = 0; j < some.x.size(); ++j) {
    EXPECT_NEAR(some.tV[j] + level, all.tV[j], 1e-9) << some.x[j];
  }
}

TEST(Profile, keepsTheChosenXY) {
  const ConsoleCapture console;
  Interpretation interpretation;
  const TomoDocument line =
      testing::standardDippingLine(testing::twoDippingLayers(), interpretation.ttLayer);
  const auto shots = shotArrivals(line);
  chooseXY(interpretation, 2, 3.0);
  ASSERT_TRUE(buildProfiles(shots, interpretation).built);
  const computedData& found = interpretation.refractData.cData[0];
  EXPECT_EQ(found.chosenXY, 3.0);
  const std::size_t n = found.x.size();
  EXPECT_TRUE(std::equal(found.tV.begin(), found.tV.end(), found.tVs.begin() + 7 * n));
  EXPECT_TRUE(std::equal(found.tG.begin(), found.tG.end(), found.tGs.begin() + 7 * n));
  expectRefractor(found, testing::twoDippingLayers(), 0, 55);
}

TEST(Profile, withoutAShotAtEachEndLeavesEverythingAsItWas) {
  const ConsoleCapture console;
  Interpretation interpretation;
  TomoDocument line =
      testing::standardDippingLine(testing::twoDippingLayers(), interpretation.ttLayer);
  ASSERT_TRUE(buildProfiles(shotArrivals(line), interpretation).built);
  for (std::size_t shot : {0U, 1U, 2U}) interpretation.ttLayer[shot].enabled = false;
  const auto depth = interpretation.refractData.cData[0].depth;
  const ProfileOutcome outcome = buildProfiles(shotArrivals(line), interpretation);
  EXPECT_FALSE(outcome.built);
  EXPECT_EQ(kinds(outcome), std::vector<Kind>{Kind::kNoShotPair});
  EXPECT_EQ(outcome.warnings[0].text(), "Unable to find nearest shot for first refractor");
  EXPECT_EQ(interpretation.refractData.cData[0].depth, depth);
}

TEST(Profile, showsTheRefractorWhoseLayerAboveIsUnknown) {
  const ConsoleCapture console;
  Interpretation interpretation;
  const TomoDocument line =
      testing::standardDippingLine(testing::threeDippingLayers(), interpretation.ttLayer);
  for (auto& marks : interpretation.ttLayer) {
    std::replace(marks.layer.begin(), marks.layer.end(), 1U, 0U);
  }
  const ProfileOutcome outcome = buildProfiles(shotArrivals(line), interpretation);
  EXPECT_TRUE(outcome.built);
  EXPECT_EQ(kinds(outcome), std::vector<Kind>{Kind::kNoFirstLayer});
  EXPECT_THAT(outcome.warnings[0].text(), HasSubstr("Layer 1"));
  EXPECT_THAT(profileTable(interpretation.refractData), Not(HasSubstr("nan")));
  EXPECT_NEAR(interpretation.refractData.cData[0].velocity[10], 1200.0, 36.0);
  EXPECT_TRUE(profileBoundaries(interpretation.refractData).empty());
}

/// What is wrong with the second refractor leaves the first as it would be without it.
TEST(Profile, losesOnlyTheSecondRefractorToWhatIsWrongWithIt) {
  const ConsoleCapture console;
  struct Case {
    const char* what;
    void (*spoil)(Interpretation&, TomoDocument&);
    Kind expected;
  };
  const auto keepThird = [](Interpretation& all, std::size_t shot, std::size_t most) {
    for (auto& layer : all.ttLayer[shot].layer) {
      if (layer == 3 && most == 0) layer = 0;
      if (layer == 3) --most;
    }
  };
  static const auto keep = keepThird;
  const Case cases[] = {
      {"no shot at the end",
       [](Interpretation& all, TomoDocument&) {
         for (std::size_t shot : {17U, 18U, 19U}) keep(all, shot, 0);
       },
       Kind::kNoShotPairBelow},
      {"one pick at the start",
       [](Interpretation& all, TomoDocument&) { keep(all, testing::kStartShot, 1); },
       Kind::kFewForward},
      {"one pick at the end",
       [](Interpretation& all, TomoDocument&) { keep(all, testing::kEndShot, 1); },
       Kind::kFewReverse}};
  for (const Case& c : cases) {
    Interpretation interpretation;
    TomoDocument line =
        testing::standardDippingLine(testing::threeDippingLayers(), interpretation.ttLayer);
    c.spoil(interpretation, line);
    const ProfileOutcome outcome = buildProfiles(shotArrivals(line), interpretation);
    EXPECT_TRUE(outcome.built) << c.what;
    EXPECT_EQ(kinds(outcome), std::vector<Kind>{c.expected}) << c.what;
    EXPECT_THAT(outcome.warnings[0].text(), HasSubstr("Layer 3")) << c.what;
    EXPECT_EQ(interpretation.refractData.cData.size(), 1U) << c.what;
    EXPECT_EQ(interpretation.phnt_A.size(), 1U) << c.what;
  }
}

TEST(Profile, tellsWhereARefractorIsSlowerThanTheLayerAbove) {
  const ConsoleCapture console;
  Interpretation interpretation;
  TomoDocument line =
      testing::standardDippingLine(testing::twoDippingLayers(), interpretation.ttLayer);
  // Direct waves that seem to be faster than anything below.
  for (TravelTime& record : line.ttArray.edit()) {
    for (std::size_t i = 0; i < record.ttMisurati.size(); ++i) {
      const auto& marks = interpretation.ttLayer[static_cast<std::size_t>(record.traceSetID)];
      if (marks.layer[i] == 1) record.ttMisurati.edit()[i] *= 0.1;
    }
  }
  const ProfileOutcome outcome = buildProfiles(shotArrivals(line), interpretation);
  EXPECT_TRUE(outcome.built);
  ASSERT_EQ(kinds(outcome), std::vector<Kind>{Kind::kSlowRefractor});
  EXPECT_EQ(outcome.warnings[0].count, outcome.warnings[0].total);
}

TEST(Profile, tellsTheLogHowItIsMade) {
  const ConsoleCapture console;
  const testing::TestFolder folder;
  Interpretation interpretation;
  const TomoDocument line =
      testing::standardDippingLine(testing::threeDippingLayers(), interpretation.ttLayer);
  Log log(folder.file("run.log"));
  const RecordedConsole recorded(log);
  ASSERT_TRUE(buildProfiles(shotArrivals(line), interpretation).built);
  const std::string lines = testing::TestFolder::get(log.path());
  for (const char* told :
       {"] ID Time\n", "]  TAB: 0.", "] j xy tY tX tAB tVsJ\n", "] j xy tY tX tAB delta -build\n",
        "] j xy tY tX tAB delta\n", "] Phantom 3\n", "]  TAB 3 \n", "] TAB3 : 0."}) {
    EXPECT_THAT(lines, HasSubstr(told));
  }
  // What is for standard output only.
  for (const char* other : {"The linear fit line", " x    z    z2"}) {
    EXPECT_THAT(lines, Not(HasSubstr(other)));
    EXPECT_THAT(console.out(), HasSubstr(other));
  }
}

TEST(Phantoms, leaveNoShiftAtPicksThatWereAssignedElsewhereSince) {
  const ConsoleCapture console;
  Interpretation interpretation;
  const TomoDocument line =
      testing::standardDippingLine(testing::twoDippingLayers(), interpretation.ttLayer);
  const std::vector<ShotArrivals> shots = shotArrivals(line);
  EXPECT_TRUE(buildPhantoms(shots, interpretation).empty());
  auto& own = interpretation.ttLayer[testing::kStartShot + 2];
  const auto shifted =
      std::find_if(own.trasla.begin(), own.trasla.end(), [](double t) { return t != 0.0; });
  ASSERT_NE(shifted, own.trasla.end());
  const std::ptrdiff_t trace = shifted - own.trasla.begin();
  own.layer[static_cast<std::size_t>(trace)] = 1;
  EXPECT_TRUE(buildPhantoms(shots, interpretation).empty());
  EXPECT_EQ(interpretation.ttLayer[testing::kStartShot + 2].trasla[static_cast<std::size_t>(trace)],
            0.0);
}

TEST(Boundaries, areBrokenWhereADepthIsMissing) {
  refractionDataStructure::processingData results;
  computedData refractor;
  refractor.x = {0, 1, 2, 3, 4};
  refractor.elevation = {10, 10, 10, 10, 10};
  refractor.depth = {1, 2, std::nan(""), 3, 4};
  results.cData.push_back(refractor);
  const auto boundaries = profileBoundaries(results);
  ASSERT_EQ(boundaries.size(), 1U);
  ASSERT_EQ(boundaries[0].lines.size(), 2U);
  EXPECT_EQ(boundaries[0].lines[0].back(), (Point2D{1, 8}));
  EXPECT_EQ(boundaries[0].lines[1].front(), (Point2D{3, 7}));
  EXPECT_EQ(valueAt(refractor, refractor.depth, 3.5), 3.5);
  EXPECT_FALSE(valueAt(refractor, refractor.depth, 4.1));
  EXPECT_FALSE(valueAt(refractor, refractor.depth, -0.1));
}

}  // namespace
}  // namespace talvesk

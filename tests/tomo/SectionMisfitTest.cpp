#include "TestInversion.h"
#include "model/Residuals.h"
#include "model/TomographyOutcome.h"
#include "support/ConsoleCapture.h"
#include "tomo/GridSetup.h"
#include "tomo/RayRecomputation.h"

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::fewIterations;
using testing::twoLayers;

struct Inverted {
  TomoDocument line = twoLayers(1.5);
  TomographyResult result;
};

Inverted run(int iterations) {
  const testing::ConsoleCapture console;
  Inverted run;
  Log log;
  run.result = runInversion(run.line, fewIterations(iterations), log);
  EXPECT_TRUE(run.result.status.ok()) << run.result.status.message();
  return run;
}

/// Misfit of fresh times through what the document holds.
SectionMisfit traced(const TomoDocument& document) {
  const testing::ConsoleCapture console;
  TomoDocument copy = document;
  Log log;
  EXPECT_TRUE(recomputeRays(copy, log).ok());
  return misfitOfTimes(copy);
}

void expectSame(const SectionMisfit& a, const SectionMisfit& b) {
  EXPECT_EQ(a.count, b.count);
  EXPECT_EQ(a.rmse, b.rmse);
  EXPECT_EQ(a.relativeRms, b.relativeRms);
  EXPECT_EQ(a.bias, b.bias);
  EXPECT_EQ(a.maxAbs, b.maxAbs);
  EXPECT_EQ(a.maxShot, b.maxShot);
  EXPECT_EQ(a.maxReceiver, b.maxReceiver);
}

TEST(SectionMisfit, isThatOfFreshRaysThroughWhatIsShown) {
  const Inverted three = run(3);
  EXPECT_TRUE(three.line.result->timesOfSection);
  expectSame(three.result.sectionMisfit, traced(three.line));
  expectSame(sectionMisfitOf(three.line), three.result.sectionMisfit);
  EXPECT_GE(three.result.sectionMisfit.maxAbs, three.result.sectionMisfit.rmse);
  // The solver's own figures stay those of its last pass.
  TomoDocument lastPass = three.line;
  for (std::size_t s = 0; s < lastPass.ttArray.size(); ++s) {
    lastPass.ttArray.edit()[s].ttCalcolati.edit() = three.result.lastPassTimes.at(s);
  }
  EXPECT_EQ(computeMisfit(lastPass).rmse, three.result.misfit.rmse);
  EXPECT_EQ(three.result.history.back().rmse, three.result.misfit.rmse);
  EXPECT_NE(three.result.sectionMisfit.rmse, three.result.misfit.rmse);
}

TEST(SectionMisfit, isKnownOfTheStartingModelAndAfterEveryIteration) {
  const std::vector<SectionMisfit> history = run(3).line.result->lastInversion->sectionHistory;
  ASSERT_EQ(history.size(), 4U);
  expectSame(history[0], traced(twoLayers(1.5)));
  for (int iterations = 1; iterations <= 3; ++iterations) {
    SCOPED_TRACE(iterations);
    expectSame(history[static_cast<std::size_t>(iterations)], run(iterations).result.sectionMisfit);
  }
}

TEST(SectionMisfit, isThatOfTheLastWholeIterationAfterAStop) {
  const testing::ConsoleCapture console;
  TomoDocument line = twoLayers(1.5);
  Log log;
  std::vector<SectionMisfit> before;
  const TomographyResult result = runInversion(
      line, fewIterations(5), log,
      [&](const TomographyProgress& progress) { before.push_back(progress.sectionBefore); },
      [&] { return before.size() == 2; });
  ASSERT_TRUE(result.stopped);
  ASSERT_EQ(line.result->lastInversion->sectionHistory.size(), 3U);
  expectSame(before[1], line.result->lastInversion->sectionHistory[1]);
  expectSame(result.sectionMisfit, traced(line));
}

TEST(SectionMisfit, isNotClaimedOfTimesThatBelongToAnotherSection) {
  Inverted one = run(1);
  const testing::ConsoleCapture console;
  one.line.result.edit().timesOfSection = false;
  EXPECT_EQ(sectionMisfitOf(one.line).count, 0);
  Log log;
  ASSERT_TRUE(recomputeRays(one.line, log).ok());
  EXPECT_GT(sectionMisfitOf(one.line).count, 0);
  ASSERT_TRUE(setUpGrid(one.line, {8.0, 1.0, 6}, log).ok());
  EXPECT_EQ(sectionMisfitOf(one.line).count, 0);
  for (const TravelTime& record : one.line.ttArray) {
    for (const double time : record.ttCalcolati) EXPECT_EQ(time, kNoTime);
  }
}

TEST(SectionMisfit, knowsWhenPicksHaveChangedSinceTheInversion) {
  Inverted one = run(1);
  EXPECT_FALSE(picksChangedSince(one.line));
  std::vector<double>& picks = one.line.ttArray.edit()[2].ttMisurati.edit();
  const double pick = picks[3];
  picks[3] = pick + 1e-6;
  EXPECT_TRUE(picksChangedSince(one.line));
  picks[3] = pick;
  EXPECT_FALSE(picksChangedSince(one.line)) << "as it was before";
  picks[3] = kNoTime;
  EXPECT_TRUE(picksChangedSince(one.line));
  one.line.result.edit().lastInversion->picks = 0;
  EXPECT_FALSE(picksChangedSince(one.line)) << "an earlier version did not note them";
}

}  // namespace
}  // namespace talvesk

#include "TestInversion.h"
#include "model/GroundModel.h"
#include "model/Residuals.h"
#include "model/TomographyOutcome.h"
#include "support/ConsoleCapture.h"
#include "tomo/CoarseToFine.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

struct Inverted {
  TomoDocument line = testing::twoLayers(1.5);
  TomographyResult result;
};

TomographyParameters coarseToFine(int iterations) {
  TomographyParameters p = testing::fewIterations(iterations, 5);
  p.smoothing = 5;
  p.coarseToFine = true;
  return p;
}

Inverted run(const TomographyParameters& p, const std::function<bool()>& cancelled = {}) {
  const testing::ConsoleCapture console;
  Inverted made;
  Log log;
  made.result = runInversion(made.line, p, log, {}, cancelled);
  return made;
}

TEST(CoarseToFine, shrinksTheRadiusInFourStages) {
  const auto radii = [](int radius, int iterations) {
    std::vector<int> all;
    for (int i = 0; i < iterations; ++i) all.push_back(coarseToFineRadius(radius, i, iterations));
    return all;
  };
  EXPECT_EQ(radii(5, 4), (std::vector<int>{5, 3, 2, 1}));
  EXPECT_EQ(radii(5, 10), (std::vector<int>{5, 5, 5, 3, 3, 2, 2, 2, 1, 1}));
  EXPECT_EQ(radii(10, 4), (std::vector<int>{10, 6, 4, 2}));
  EXPECT_EQ(radii(1, 4), (std::vector<int>{1, 1, 1, 1}));
  EXPECT_EQ(radii(7, 1), std::vector<int>{7});
  constexpr int kMost = parameters::kIterations.limits.most;
  EXPECT_EQ(coarseToFineRadius(5, kMost - 1, kMost), 1);
}

TEST(CoarseToFine, keepsTheIterationWhoseSectionFitsBest) {
  const Inverted made = run(coarseToFine(8));
  ASSERT_TRUE(made.result.status.ok()) << made.result.status.message();
  ASSERT_TRUE(made.result.coarseToFine);
  const CoarseToFineResult& all = *made.result.coarseToFine;
  ASSERT_EQ(all.sections.size(), 9U);
  const auto best = std::min_element(
      all.sections.begin() + 1, all.sections.end(),
      [](const SectionMisfit& a, const SectionMisfit& b) { return a.trimmed < b.trimmed; });
  EXPECT_EQ(all.kept, best - all.sections.begin());
  EXPECT_EQ(sectionMisfitOf(made.line).rmse, best->rmse) << "rays through what is shown";
  EXPECT_EQ(made.result.sectionMisfit.rmse, best->rmse);
  const InversionRecord& record = *made.line.result->lastInversion;
  EXPECT_EQ(record.coarseToFine, 8);
  EXPECT_EQ(record.history.size(), static_cast<std::size_t>(all.kept));
  EXPECT_EQ(record.sectionHistory.back().rmse, best->rmse);
  EXPECT_EQ(made.line.result->RMSE_tomography, record.history.back().relativeRms * 100.0);
}

TEST(CoarseToFine, goesBackToAnEarlierIterationWhenLaterOnesAreWorse) {
  TomoDocument line = testing::twoLayers();
  BestIteration best;
  const std::vector<double> misfits = {3.0, 1.0, 2.0, 1.5};
  for (std::size_t i = 0; i < misfits.size(); ++i) {
    SectionMisfit before;
    before.count = 1;
    before.trimmed = i > 0 ? misfits[i - 1] : 0.1;  // the starting model's is never the best
    line.result.edit().sectionHistory.push_back(before);
    line.title = std::to_string(i + 1);
    best.add(line);
  }
  SectionMisfit last;
  last.count = 1;
  last.trimmed = misfits.back();
  best.judge(last);
  EXPECT_EQ(best.number(), 2);
  EXPECT_EQ(best.document().title, "2");
}

TEST(CoarseToFine, letsNoGrossPickDecide) {
  const auto sections = [](bool gross) {
    TomoDocument line = testing::twoLayers(1.5);
    if (gross) {
      for (std::size_t i = 0; i < 3; ++i) line.ttArray.edit()[i].ttMisurati.edit()[5] += 0.5;
    }
    const testing::ConsoleCapture console;
    Log log;
    TomographyParameters p = coarseToFine(1);
    const auto result = runInversion(line, p, log);
    return *result.coarseToFine;
  };
  const SectionMisfit sound = sections(false).sections.front();
  const SectionMisfit wrong = sections(true).sections.front();
  EXPECT_GT(wrong.rmse, 3.0 * sound.rmse);
  EXPECT_NEAR(wrong.trimmed, sound.trimmed, 0.1 * sound.trimmed);
}

TEST(CoarseToFine, equalsAnIterationOfItsRadiusToTheLastBit) {
  const Inverted made = run(coarseToFine(1));
  TomographyParameters p = coarseToFine(1);
  p.coarseToFine = false;
  const Inverted plain = run(p);
  EXPECT_FALSE(plain.result.coarseToFine);
  EXPECT_EQ(plain.line.result->lastInversion->coarseToFine, 0);
  EXPECT_EQ(made.line.model->grid->slownesses(), plain.line.model->grid->slownesses());
  EXPECT_EQ(made.line.result->info_density, plain.line.result->info_density);
  EXPECT_EQ(made.result.lastPassTimes, plain.result.lastPassTimes);
}

TEST(CoarseToFine, keepsTheBestOfWhatWasDoneWhenItIsStopped) {
  int asked = 0;
  const Inverted made = run(coarseToFine(8), [&] { return ++asked == 3; });
  ASSERT_TRUE(made.result.status.ok());
  EXPECT_TRUE(made.result.stopped);
  EXPECT_EQ(made.result.iterationsDone, 3);
  ASSERT_TRUE(made.result.coarseToFine);
  EXPECT_EQ(made.result.coarseToFine->radii, (std::vector<int>{5, 5, 3}));
  EXPECT_LE(made.result.coarseToFine->kept, 3);
  EXPECT_TRUE(made.line.stopRequested);
}

}  // namespace
}  // namespace talvesk

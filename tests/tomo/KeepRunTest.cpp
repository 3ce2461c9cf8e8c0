#include "TestInversion.h"
#include "model/GroundModel.h"
#include "model/KeptRuns.h"
#include "model/Residuals.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"
#include "support/ConsoleCapture.h"
#include "tomo/GridSetup.h"
#include "tomo/KeepRun.h"
#include "tomo/fitted/FittedRun.h"

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::fewIterations;
using testing::twoLayers;

class KeptRuns : public ::testing::Test {
 protected:
  void invert(int iterations = 1) {
    ASSERT_TRUE(runInversion(line, fewIterations(iterations), log).status.ok());
  }
  void fit() { ASSERT_TRUE(runFittedInversion(line, {}, log).run.status.ok()); }

  testing::ConsoleCapture console;
  Log log;
  TomoDocument line = twoLayers(1.5);
};

/// All that exports, reports and figures read of a section.
void expectSameSection(const TomoDocument& a, const TomoDocument& b) {
  EXPECT_EQ(a.model->grid->slownesses(), b.model->grid->slownesses());
  for (std::uint32_t c = 0; c < a.model->grid->cellCount(); ++c) {
    ASSERT_EQ(a.model->grid->draw(c), b.model->grid->draw(c)) << c;
  }
  const TomographyOutcome& x = *a.result;
  const TomographyOutcome& y = *b.result;
  EXPECT_EQ(x.RMSE_tomography, y.RMSE_tomography);
  EXPECT_EQ(x.coorcount, y.coorcount);
  EXPECT_EQ(x.hitCounts, y.hitCounts);
  EXPECT_EQ(x.info_density, y.info_density);
  EXPECT_EQ(x.rays, y.rays);
  EXPECT_EQ(x.coverageLimit, y.coverageLimit);
  EXPECT_EQ(x.excluded.size(), y.excluded.size());
  EXPECT_EQ(x.has_tomographic_info, y.has_tomographic_info);
  EXPECT_EQ(x.timesOfSection, y.timesOfSection);
  EXPECT_EQ(x.lastInversion->history.size(), y.lastInversion->history.size());
  EXPECT_EQ(x.lastInversion->fit.has_value(), y.lastInversion->fit.has_value());
  for (std::size_t i = 0; i < a.ttArray.size(); ++i) {
    EXPECT_EQ(a.ttArray[i].ttCalcolati, b.ttArray[i].ttCalcolati) << i;
  }
}

TEST_F(KeptRuns, becomeTheSectionAgainAsTheyLeftIt) {
  invert(2);
  const TomoDocument smoothed = line;
  fit();
  const TomoDocument fitted = line;
  ASSERT_EQ(line.runs.size(), 2U);
  EXPECT_EQ(shownRun(line), 1U);
  ASSERT_TRUE(useRun(0, 1, line, log).ok());
  EXPECT_EQ(shownRun(line), 0U);
  expectSameSection(line, smoothed);
  EXPECT_EQ(sectionMisfitOf(line).rmse, line.runs[0].misfit().rmse);
  ASSERT_TRUE(useRun(1, 2, line, log).ok());
  expectSameSection(line, fitted);
  EXPECT_EQ(line.runs.size(), 2U) << "nothing was run";
}

TEST_F(KeptRuns, rememberHowTheyWereRun) {
  invert(2);
  fit();
  const KeptRun& smoothed = line.runs[0];
  EXPECT_EQ(smoothed.number, 1U);
  EXPECT_EQ(smoothed.title().english(), "Run 1");
  EXPECT_EQ(smoothed.iterations(), 2U);
  EXPECT_FALSE(smoothed.record.fit);
  EXPECT_GT(smoothed.chi2, 1.0);
  EXPECT_EQ(smoothed.when.size(), std::string("2024-05-17T09:30:00Z").size());
  const KeptRun& fitted = line.runs[1];
  EXPECT_EQ(fitted.chi2, fitted.record.fit->chi2);
  EXPECT_LT(fitted.chi2, smoothed.chi2);
}

TEST_F(KeptRuns, ofAnotherGridBringTheirs) {
  invert();
  const TomoDocument first = line;
  GridSettings finer;
  finer.maxDepth = 8.0;
  finer.cellSize = 0.5;
  ASSERT_TRUE(setUpGrid(line, finer, log).ok());
  EXPECT_FALSE(shownRun(line));
  ASSERT_TRUE(useRun(0, 1, line, log).ok());
  expectSameSection(line, first);
}

TEST_F(KeptRuns, ofAnotherLineAreShownAndNotUsed) {
  invert();
  const std::vector<double> found = line.model->grid->slownesses();
  line.line.edit().goephonesStringSet[0][5].z += 2.0;
  line.clearModelAndResults();
  const RunChanges changes = changesSince(line.runs[0], line);
  EXPECT_TRUE(changes.ground && changes.positions);
  EXPECT_FALSE(changes.picks);
  const Status status = useRun(0, 1, line, log);
  EXPECT_NE(status.message().find("Run 1"), std::string::npos) << status.message();
  EXPECT_EQ(line.model->grid, nullptr) << "a failure leaves the survey as it was";
  ASSERT_TRUE(putRun(KeptRun(line.runs[0]), line).ok());
  EXPECT_EQ(line.model->grid->slownesses(), found);
  EXPECT_EQ(sectionMisfitOf(line).count, 0) << "its times are those of other places";
}

TEST_F(KeptRuns, stayOfTheLineWhereAShotHasComeToIt) {
  invert();
  std::vector<TravelTime>& records = line.ttArray.edit();
  records.push_back(records.front());
  const std::vector<Point2D>& string = line.line->goephonesStringSet[0];
  records.back().shotPos2d = {(string[3].x + string[4].x) / 2, (string[3].z + string[4].z) / 2};
  const RunChanges changes = changesSince(line.runs[0], line);
  EXPECT_TRUE(changes.positions && changes.picks);
  EXPECT_FALSE(changes.ground);
  ASSERT_TRUE(useRun(0, 1, line, log).ok());
  EXPECT_EQ(line.result->rays->size(), 6U * 24U) << "those of the new shot, too";
}

TEST_F(KeptRuns, measureOtherPicksWhenUsed) {
  invert();
  line.ttArray.edit()[1].ttMisurati.edit()[3] += 0.004;
  EXPECT_TRUE(changesSince(line.runs[0], line).picks);
  ASSERT_TRUE(useRun(0, 1, line, log).ok());
  EXPECT_TRUE(picksChangedSince(line));
  EXPECT_NE(sectionMisfitOf(line).rmse, line.runs[0].misfit().rmse);
}

TEST_F(KeptRuns, thatFailAreNoRuns) {
  TomographyParameters none = fewIterations();
  none.externalIterations = 0;
  EXPECT_FALSE(runInversion(line, none, log).status.ok());
  FittedSettings upsideDown;
  upsideDown.fit.minVelocity = 9000.0;
  EXPECT_FALSE(runFittedInversion(line, upsideDown, log).run.status.ok());
  EXPECT_TRUE(line.runs.empty());
  EXPECT_FALSE(useRun(0, 1, line, log).ok());
}

TEST(ListOfRuns, losesTheOldestThatNobodyHasNamed) {
  std::vector<talvesk::KeptRun> runs;
  for (std::size_t i = 0; i < kMostRuns; ++i) EXPECT_TRUE(addRun({}, runs).empty());
  runs[0].name = "best";
  EXPECT_EQ(addRun({}, runs), std::vector<Message>{Message("Run 2")});
  EXPECT_EQ(runs.size(), kMostRuns);
  EXPECT_EQ(runs.front().name, "best");
  EXPECT_EQ(runs.back().number, kMostRuns + 1);
  for (talvesk::KeptRun& run : runs) run.name = "named";
  EXPECT_EQ(addRun({}, runs).size(), 1U);
  EXPECT_EQ(runs.size(), kMostRuns);
}

TEST(ListOfRuns, holdsNoMoreNumbersThanAProjectCan) {
  talvesk::KeptRun large;
  large.slowness = std::vector<double>(kMostRunNumbers / 2, 0.001);
  std::vector<talvesk::KeptRun> runs;
  EXPECT_TRUE(addRun(large, runs).empty());
  EXPECT_TRUE(addRun(large, runs).empty());
  EXPECT_EQ(addRun(large, runs).size(), 1U);
  large.slowness.edit().resize(kMostRunNumbers + 1);
  EXPECT_EQ(addRun(large, runs).size(), 2U) << "the new one stays whatever it holds";
  EXPECT_EQ(runs.size(), 1U);
}

TEST(ListOfRuns, knowsARunByNumberAndByName) {
  std::vector<talvesk::KeptRun> runs(3);
  for (std::uint32_t i = 0; i < 3; ++i) runs[i].number = i + 4;
  runs[0].name = runs[1].name = "smooth";
  runs[2].name = "4";
  EXPECT_EQ(findRun(runs, "4"), 0U);
  EXPECT_EQ(findRun(runs, "smooth"), 1U);
  EXPECT_EQ(findRun(runs, "6"), 2U);
  for (const char* none : {"", "0", "Smooth", "Run 4"}) EXPECT_FALSE(findRun(runs, none)) << none;
}

}  // namespace
}  // namespace talvesk

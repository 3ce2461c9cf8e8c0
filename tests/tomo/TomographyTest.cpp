#include "TestInversion.h"
#include "model/GroundModel.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"
#include "support/ConsoleCapture.h"
#include "tomo/RayRecomputation.h"
#include "tomo/TomographyRun.h"

#include <algorithm>
#include <limits>
#include <sstream>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::fewIterations;
using testing::linesOf;
using testing::twoLayers;

TEST(Inversion, tellsEveryStepInOrder) {
  const testing::ConsoleCapture console;
  TomoDocument line = testing::testLine(6, 2.0, {0.0, 10.0});
  testing::pickTwoLayers(line, 450.0, 1800.0, 3.0);
  testing::putGrid(line, 4.0, 1.0);
  TomographyParameters p = fewIterations(1, 2);
  p.singleThread = true;
  p.smoothingType = SmoothingType::kLinear;
  Log log;
  const TomographyResult result = runInversion(line, p, log);
  ASSERT_TRUE(result.status.ok()) << result.status.message();

  std::ostringstream rmse, error;
  rmse << "[LOG] RMSE: s" << result.misfit.rmse;
  error << "[LOG] MaxError: %" << result.misfit.maxRelativeError * 100.0;
  const std::vector<std::string> expected = {
      "log: Running Tomography :Single thread mode. ",
      "log: Running Tomography - external iteration 0",
      "log: TomoDocument::runTomography",
      "log: TomoDocument::runTomography_fast",
      "log:  Forwarding ... ",
      " [TOTAL N. THREADS] 2 to be run 1 by 1",
      "log:  [TOTAL N. THREADS] 2 to be run 1 by 1",
      "[RUNNIG DIJKSTRA] Traces from 0 to 0",
      "log: [RUNNIG DIJKSTRA] Traces from 0 to 0",
      " --- Creating and running thread 0",
      "log:  --- Creating and running thread 0",
      " --- Updating coorslow and coorcount ",
      "[RUNNIG DIJKSTRA] Traces from 1 to 1",
      "log: [RUNNIG DIJKSTRA] Traces from 1 to 1",
      " --- Creating and running thread 1",
      "log:  --- Creating and running thread 1",
      " --- Updating coorslow and coorcount ",
      "finished iteration at DATE",
      "elapsed time: Ns",
      "[INTERNAL RUN 2][RUNNIG SOLVEART] Traces from 0 to 0",
      "log: [INTERNAL RUN 2][RUNNIG SOLVEART] Traces from 0 to 0",
      "[INTERNAL RUN 2][RUNNIG SOLVEART] Traces from 1 to 1",
      "log: [INTERNAL RUN 2][RUNNIG SOLVEART] Traces from 1 to 1",
      "Linear Smoothing...",
      "log: Running Tomography - external iteration 0 ... COMPLETED. ",
      "log: Updating tomographic profile ... ",
      "log: Updating tomographic profile ... COMPLETED. ",
      "log: Linear RayDensity Smoothing",
      "log: 2",
      "log: Elapsed time: N seconds.",
      rmse.str(),
      error.str(),
  };
  EXPECT_EQ(linesOf(console.out()), expected);
  EXPECT_EQ(console.error(), "");
}

TEST(Inversion, runsShotsInBatchesOfItsThreads) {
  const struct {
    unsigned threads;
    std::vector<std::string> batches;
  } cases[] = {
      {1, {"0 to 0", "1 to 1", "2 to 2", "3 to 3", "4 to 4"}},
      {2, {"0 to 1", "2 to 3", "4 to 4"}},
      {3, {"0 to 2", "3 to 4"}},
      {5, {"0 to 4"}},
      {64, {"0 to 4"}},
  };
  for (const auto& c : cases) {
    const testing::ConsoleCapture console;
    TomoDocument line = twoLayers();
    std::vector<double> slownesses;
    Log log;
    ASSERT_TRUE(line.runTomography_fast(slownesses, c.threads, 1, 2, false, 3, log).ok());
    const std::string n = std::to_string(c.threads);
    const std::vector<std::string> lines = linesOf(console.out());
    EXPECT_EQ(lines[2], " [TOTAL N. THREADS] 5 to be run " + n + " by " + n);
    std::vector<std::string> batches;
    for (const std::string& text : lines) {
      const std::string head = "[RUNNIG DIJKSTRA] Traces from ";
      if (text.compare(0, head.size(), head) == 0) batches.push_back(text.substr(head.size()));
    }
    EXPECT_EQ(batches, c.batches);
  }
}

TEST(Inversion, doesNotDependOnTheNumberOfThreads) {
  const testing::ConsoleCapture console;
  for (int type = 0; type <= 3; ++type) {
    TomoDocument one = twoLayers(1.5);
    std::vector<double> slownesses;
    Log log;
    ASSERT_TRUE(one.runTomography_fast(slownesses, 1, 4, 2, false, type, log).ok());
    for (const unsigned threads : {1U, 2U, 3U, 8U}) {  // 1: the same run twice gives the same
      SCOPED_TRACE(std::to_string(threads) + " threads, smoothing " + std::to_string(type));
      TomoDocument other = twoLayers(1.5);
      std::vector<double> result;
      ASSERT_TRUE(other.runTomography_fast(result, threads, 4, 2, false, type, log).ok());
      EXPECT_EQ(result, slownesses);
      EXPECT_EQ(other.result->coorcount, one.result->coorcount);
      EXPECT_EQ(other.result->hitCounts, one.result->hitCounts);
      EXPECT_EQ(other.result->rays, one.result->rays);
      EXPECT_EQ(other.model->grid->slownesses(), one.model->grid->slownesses());
      for (std::size_t s = 0; s < 5; ++s) {
        EXPECT_EQ(other.ttArray[s].ttCalcolati, one.ttArray[s].ttCalcolati);
      }
    }
  }
}

TEST(Inversion, doesNotDependOnTheNumberOfThreadsOverManyCells) {
  const testing::ConsoleCapture console;
  std::vector<double> expected;
  for (const unsigned threads : {1U, 2U, 3U, 8U}) {
    TomoDocument line = twoLayers(1.5);
    testing::putGrid(line, 40.0, 0.3);
    ASSERT_GT(line.model->grid->cellCount(), 20000u);
    TomographyParameters p = fewIterations(2, 2);
    p.threads = threads;
    Log log;
    ASSERT_TRUE(runInversion(line, p, log).status.ok());
    const std::string n = std::to_string(threads);
    EXPECT_NE(console.out().find(" 5 to be run " + n + " by " + n), std::string::npos);
    std::vector<double> all = line.model->grid->slownesses();
    for (const auto* values : {&line.result->coorcount, &line.result->info_density}) {
      all.insert(all.end(), values->begin(), values->end());
    }
    if (expected.empty()) expected = all;
    EXPECT_EQ(all, expected) << threads << " threads";
  }
}

TEST(Inversion, givesTheSameInBothModes) {
  const testing::ConsoleCapture console;
  Log log;
  TomoDocument single = twoLayers(1.5), multi = twoLayers(1.5);
  TomographyParameters p = fewIterations();
  ASSERT_TRUE(runInversion(multi, p, log).status.ok());
  p.singleThread = true;
  ASSERT_TRUE(runInversion(single, p, log).status.ok());
  EXPECT_EQ(multi.model->grid->slownesses(), single.model->grid->slownesses());
  EXPECT_EQ(multi.result->info_density, single.result->info_density);
  EXPECT_EQ(multi.result->RMSE_tomography, single.result->RMSE_tomography);
}

TEST(Inversion, finishesTheIterationUnderWayWhenItIsStopped) {
  for (const bool byFlag : {true, false}) {
    const testing::ConsoleCapture console;
    TomoDocument line = twoLayers();
    line.stopRequested = true;  // of a run before; this one starts afresh
    Log log;
    const TomographyResult result = runInversion(
        line, fewIterations(5, 2), log,
        [&](const TomographyProgress& state) {
          EXPECT_EQ(state.total, 5);
          EXPECT_EQ(line.result->RMSE_tomography, state.misfit.relativeRms * 100.0);
          if (byFlag && state.completed == 2) line.stopRequested = true;
        },
        [&] { return !byFlag && line.result->has_tomographic_info; });
    ASSERT_TRUE(result.status.ok());
    EXPECT_TRUE(result.stopped);
    EXPECT_EQ(result.iterationsDone, byFlag ? 2 : 1);
    EXPECT_GT(result.misfit.count, 0);
    EXPECT_EQ(line.result->RMSE_tomography, result.misfit.relativeRms * 100.0);
    ASSERT_TRUE(line.result->lastInversion);
    EXPECT_TRUE(line.result->lastInversion->stopped);
    EXPECT_EQ(line.result->lastInversion->externalIterations, 5);
    EXPECT_EQ(line.result->lastInversion->solverIterations, 2);
    ASSERT_EQ(line.result->lastInversion->history.size(), byFlag ? 2u : 1u);
    EXPECT_EQ(line.result->lastInversion->history.back().rmse, result.misfit.rmse);
    const std::vector<std::string> lines = linesOf(console.out());
    const auto stop = std::find(lines.begin(), lines.end(), "log: Stop Request by the user.");
    ASSERT_NE(stop, lines.end());
    EXPECT_EQ(*(stop - 1), "log: Updating tomographic profile ... COMPLETED. ");
    EXPECT_EQ(stop[1].find("log: Elapsed time: "), 0u);
  }
}

TEST(Inversion, countsItsTimeFromWhenItWasAskedFor) {
  const testing::ConsoleCapture console;
  TomoDocument line = twoLayers();
  Log log;
  TomographyParameters parameters = fewIterations(1, 1);
  parameters.asked = std::chrono::steady_clock::now() - std::chrono::hours(1);
  const TomographyResult result = runInversion(line, parameters, log);
  EXPECT_GE(result.elapsedSeconds, 3600.0);
  ASSERT_TRUE(line.result->lastInversion);
  EXPECT_EQ(line.result->lastInversion->elapsedSeconds, result.elapsedSeconds);
  EXPECT_NE(console.out().find("Elapsed time: 36"), std::string::npos);
}

TEST(Inversion, makesOneUpdateFromTheForwardPassForASingleSolverIteration) {
  const testing::ConsoleCapture console;
  TomoDocument line = twoLayers();
  Log log;
  ASSERT_TRUE(runInversion(line, fewIterations(1, 1), log).status.ok());
  EXPECT_EQ(console.out().find("INTERNAL RUN"), std::string::npos);
  for (const std::uint32_t hits : line.result->hitCounts) EXPECT_LE(hits, 1u);
  EXPECT_EQ(*std::max_element(line.result->hitCounts.begin(), line.result->hitCounts.end()), 1u);
}

TEST(Inversion, countsHitsOfTheLastExternalIterationOnly) {
  const testing::ConsoleCapture console;
  TomoDocument line = twoLayers();
  Log log;
  ASSERT_TRUE(runInversion(line, fewIterations(3, 4), log).status.ok());
  EXPECT_EQ(*std::max_element(line.result->hitCounts.begin(), line.result->hitCounts.end()), 4u);
  std::size_t rays = 0;
  for (const TravelTime& record : line.ttArray) rays += record.ttMisurati.size();
  EXPECT_EQ(line.result->rays.size(), rays);
}

TEST(Inversion, drawsEachColumnDownToItsDeepestHit) {
  const testing::ConsoleCapture console;
  TomoDocument line = twoLayers(1.0);
  // Leaves columns without any ray at the right end.
  line.line.edit().goephonesStringSet[0].resize(18);
  line.ttArray.edit().resize(3);
  Log log;
  ASSERT_TRUE(runInversion(line, fewIterations(2, 2), log).status.ok());
  const Grid& grid = *line.model->grid;
  std::vector<Point2D> limit;
  std::uint32_t bare = 0;
  for (std::uint32_t column = 0; column < grid.col(); ++column) {
    std::uint32_t deepest = 0;
    for (std::uint32_t row = 1; row < grid.righe(); ++row) {
      if (line.result->hitCounts[grid.cellIndex(row, column)] > 0) deepest = row;
    }
    if (deepest > 0) limit.push_back(grid.cellCentre(grid.cellIndex(deepest, column)));
    bare += deepest == 0;
    for (std::uint32_t row = 0; row < grid.righe(); ++row) {
      EXPECT_EQ(grid.draw(grid.cellIndex(row, column)), row <= deepest) << row << ", " << column;
    }
  }
  EXPECT_GT(bare, 0u);
  EXPECT_EQ(line.result->coverageLimit, limit);
  ASSERT_TRUE(line.result->coverageSpline.has_value());
  EXPECT_EQ((*line.result->coverageSpline)(limit[3].x), limit[3].z);
}

TEST(Inversion, hasNoCoverageCurveForFewerThanTwoColumns) {
  const testing::ConsoleCapture console;
  TomoDocument line = twoLayers();
  for (TravelTime& record : line.ttArray.edit()) {
    record.ttMisurati.edit().assign(record.ttMisurati.size(), kUnpicked);
  }
  line.result.edit().coverageLimit = {{1.0, 1.0}};
  line.result.edit().RMSE_tomography = 12.5;  // of an inversion before, when there were picks
  Log log;
  const TomographyResult result = runInversion(line, fewIterations(1, 2), log);
  ASSERT_TRUE(result.status.ok());
  EXPECT_TRUE(line.result->coverageLimit.empty());
  EXPECT_FALSE(line.result->coverageSpline.has_value());
  EXPECT_TRUE(line.result->has_tomographic_info);
  // No pick, no misfit.
  EXPECT_EQ(result.misfit.count, 0);
  EXPECT_LT(line.result->RMSE_tomography, 0.0);
  EXPECT_EQ(console.out().find("[LOG] RMSE"), std::string::npos);
}

TEST(Inversion, fitsTwoLayersBetterThanItsStart) {
  const testing::ConsoleCapture console;
  Log log;
  double start = 0.0;
  {
    TomoDocument untouched = twoLayers();
    ASSERT_TRUE(recomputeRays(untouched, log).ok());
    start = computeMisfit(untouched).rmse;
  }
  TomoDocument line = twoLayers();
  TomographyParameters p;
  p.externalIterations = 5;
  p.solverIterations = 10;
  p.smoothing = 2;
  const TomographyResult result = runInversion(line, p, log);
  ASSERT_TRUE(result.status.ok());
  EXPECT_GT(start, 0.01);
  EXPECT_LT(result.misfit.rmse, 0.1 * start);
  EXPECT_EQ(result.history.size(), 5u);
  EXPECT_EQ(result.history.back().rmse, result.misfit.rmse);

  // Under the middle of the line: slow cover, fast ground below.
  const Grid& grid = *line.model->grid;
  const std::uint32_t middle = grid.col() / 2;
  EXPECT_NEAR(grid.velocity(grid.cellIndex(0, middle)), 450.0, 100.0);
  EXPECT_GT(grid.velocity(grid.cellIndex(5, middle)), 1200.0);
  for (std::uint32_t c = 0; c < grid.cellCount(); ++c) {
    EXPECT_GT(line.result->info_density[c], -1.0);
    EXPECT_LE(grid.velocity(c), 3500.0 * (1.0 + 1e-12));
  }
}

TEST(Inversion, namesWhatItLeavesOutOncePerRun) {
  const testing::ConsoleCapture console;
  TomoDocument line = twoLayers();
  line.ttArray.edit()[4].shotPos2d.x = 500.0;
  Log log;
  for (const int runs : {1, 2}) {
    const TomographyResult result = runInversion(line, fewIterations(3, 1), log);
    ASSERT_TRUE(result.status.ok());
    EXPECT_EQ(result.misfit.count, 4 * 24);
    EXPECT_EQ(line.result->excluded.size(), 1u);
    int named = 0;
    for (const std::string& text : linesOf(console.error())) {
      named += text.find("Left out: shot 5 ") != std::string::npos;
    }
    EXPECT_EQ(named, runs);
  }
}

/// What is saved of a section under way must not tell of the run before.
TEST(Inversion, hasNoRecordOfARunUntilItsEnd) {
  const testing::ConsoleCapture console;
  TomoDocument line = twoLayers();
  Log log;
  ASSERT_TRUE(runInversion(line, fewIterations(1, 1), log).status.ok());
  ASSERT_TRUE(line.result->lastInversion);
  int seen = 0;
  const TomographyResult again =
      runInversion(line, fewIterations(2, 1), log, [&](const TomographyProgress&) {
        ++seen;
        EXPECT_FALSE(line.result->lastInversion);
      });
  EXPECT_EQ(seen, 2);
  ASSERT_TRUE(again.status.ok() && line.result->lastInversion);
  EXPECT_EQ(line.result->lastInversion->externalIterations, 2);
}

TEST(Inversion, takesPicksAtTheSourceAsTheyAre) {
  const testing::ConsoleCapture console;
  TomoDocument line = twoLayers();
  line.ttArray.edit()[1].shotPos2d.x = 10.0;             // at a geophone
  line.ttArray.edit()[1].ttMisurati.edit()[5] = 0.0005;  // where the computed time is 0
  Log log;
  ASSERT_TRUE(runInversion(line, fewIterations(2, 2), log).status.ok());
  EXPECT_EQ(line.ttArray[1].ttCalcolati[5], 0.0);
  EXPECT_EQ(line.model->grid->invalidSlowness(), "");
}

}  // namespace
}  // namespace talvesk

#include "model/TomoDocument.h"
#include "support/TestGrids.h"
#include "tomo/Misfit.h"
#include "tomo/Solver.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

struct CellCase {
  const char* name;
  double slowness;
  double coorslow;
  double coorcount;
  VelocityLimits limits;
  double expected;  ///< slowness
  std::uint32_t hits;
};

const VelocityLimits kWide{1.0, 1e6};

const CellCase kCells[] = {
    {"follows the length-weighted mean", 1e-3, 2e-4, 2.0, kWide, 1e-3 - 1e-4, 1},
    {"speeds down as well", 1e-3, -4e-4, 2.0, kWide, 1e-3 + 2e-4, 1},
    {"falls to 0.6 of its velocity at most", 1e-3, -1e-3, 1.0, kWide, 1e-3 * 1.6666666666666667, 1},
    {"rises to 1.4 of its velocity at most", 1e-3, 5e-4, 1.0, kWide, 1e-3 * 0.7142857142857143, 1},
    {"no slowness left is a very fast cell", 1e-3, 1e-3, 1.0, kWide, 1e-3 * 0.7142857142857143, 1},
    {"a negative slowness is refused", 1e-3, 2e-3, 1.0, kWide, 1e-3, 1},
    {"a correction that is no number is refused", 1e-3, kNaN, 1.0, kWide, 1e-3, 1},
    {"a length that is no number is no hit", 1e-3, 1e-5, kNaN, kWide, 1e-3, 0},
    {"nothing to correct still is a hit", 1e-3, 0.0, 3.0, kWide, 1e-3, 1},
    {"no ray, no hit", 1e-3, 0.0, 0.0, kWide, 1e-3, 0},
    {"nothing to correct is not clamped either", 1e-3, 0.0, 3.0, {2000, 3000}, 1e-3, 1},
    {"a refused correction is not clamped either", 1e-3, 2e-3, 1.0, {2000, 3000}, 1e-3, 1},
    {"stays above the minimum", 1 / 320.0, 1 / 320.0 - 1 / 250.0, 1.0, {300, 3000}, 1 / 300.0, 1},
    {"stays below the maximum",
     1 / 2800.0,
     1 / 2800.0 - 1 / 3500.0,
     1.0,
     {300, 3000},
     1 / 3000.0,
     1},
    {"the maximum wins over a higher minimum", 1e-3, 1e-5, 1.0, {3000, 300}, 1 / 300.0, 1},
    {"the maximum wins from below, too", 1 / 200.0, 1e-5, 1.0, {3000, 300}, 1 / 300.0, 1},
    {"limits hold after the steps of 0.6 and 1.4", 1e-3, 9e-4, 1.0, {300, 1200}, 1 / 1200.0, 1},
};

TEST(Solver, correctsEveryCellAtOnce) {
  for (const CellCase& c : kCells) {
    SCOPED_TRACE(c.name);
    auto grid = testing::roughGrid({1, 3, 6, 1.0}, 0.0);
    const double before = grid->slowness(0);
    grid->setSlowness(1, c.slowness);
    std::vector<std::uint32_t> hits = {0, 0, 4};
    WorkerPool alone(1);
    updateSlownesses(*grid, {0.0, c.coorslow, 0.0}, {0.0, c.coorcount, 1.0}, hits, c.limits, alone);
    EXPECT_EQ(grid->slowness(1), c.expected);
    EXPECT_EQ(hits, (std::vector<std::uint32_t>{0, c.hits, 5}));
    EXPECT_EQ(grid->slowness(0), before);
  }
}

TEST(Solver, doesNotDependOnTheNumberOfWorkers) {
  const GridSize size{150, 300, 6, 1.0};
  std::vector<double> coorslow(size.cellCount()), coorcount(size.cellCount());
  for (std::size_t c = 0; c < coorslow.size(); ++c) {
    coorcount[c] = static_cast<double>(c % 7);
    coorslow[c] = 1e-4 * static_cast<double>(c % 11) * coorcount[c];
  }
  std::vector<double> expected;
  for (const unsigned workers : {1U, 2U, 3U, 8U}) {
    WorkerPool pool(workers);
    auto grid = testing::roughGrid(size, 0.0);
    std::vector<std::uint32_t> hits(size.cellCount(), 0);
    updateSlownesses(*grid, coorslow, coorcount, hits, kWide, pool);
    if (expected.empty()) expected = grid->slownesses();
    EXPECT_EQ(grid->slownesses(), expected) << workers;
    for (std::size_t c = 0; c < hits.size(); ++c) ASSERT_EQ(hits[c], c % 7 > 0 ? 1u : 0u) << c;
  }
}

TEST(Solver, refusesArraysOfAnotherGrid) {
  auto grid = testing::roughGrid({1, 3, 6, 1.0}, 0.0);
  std::vector<std::uint32_t> hits(3, 0);
  WorkerPool alone(1);
  EXPECT_THROW(updateSlownesses(*grid, {0, 0}, {0, 0, 0}, hits, kWide, alone), std::out_of_range);
  EXPECT_THROW(updateSlownesses(*grid, {0, 0, 0}, {0, 0}, hits, kWide, alone), std::out_of_range);
}

// --- Misfit

TomoDocument recordOf(std::vector<double> measured, std::vector<double> computed) {
  TomoDocument document;
  document.ttArray.edit().resize(1);
  document.ttArray.edit()[0].ttMisurati.edit() = std::move(measured);
  document.ttArray.edit()[0].ttCalcolati.edit() = std::move(computed);
  return document;
}

TEST(Misfit, countsOnlyPicksThatHaveAComputedTime) {
  const TomoDocument document =
      recordOf({0.1, 0.0, -99.0, kNaN, 0.2, 0.4, 0.5}, {0.11, 0.3, 0.3, 0.3, 0.18, kNoTime});
  const Misfit misfit = computeMisfit(document);
  EXPECT_EQ(misfit.count, 2);
  EXPECT_DOUBLE_EQ(misfit.rmse, std::sqrt((0.01 * 0.01 + 0.02 * 0.02) / 2));
  EXPECT_DOUBLE_EQ(misfit.relativeRms, 0.1);
}

TEST(Misfit, takesOnlyLateTimesForTheLargestError) {
  const struct {
    const char* name;
    std::vector<double> measured, computed;
    double error, relative;
  } cases[] = {
      {"early ones never count", {0.1, 0.1, 0.1}, {0.05, 0.101, 0.09}, 0.001, 0.01},
      {"all early", {0.1, 0.2}, {0.09, 0.1}, 0.0, 0.0},
      {"largest by ratio, not by time", {0.01, 1.0}, {0.02, 1.5}, 0.01, 1.0},
      {"the first of equals", {0.5, 0.25}, {0.75, 0.375}, 0.25, 0.5},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const Misfit misfit = computeMisfit(recordOf(c.measured, c.computed));
    EXPECT_NEAR(misfit.maxError, c.error, 1e-15);
    EXPECT_NEAR(misfit.maxRelativeError, c.relative, 1e-15);
  }
}

TEST(Misfit, isNoneWithoutPicks) {
  const Misfit misfit = computeMisfit(recordOf({0.0, -99.0}, {0.1, 0.1}));
  EXPECT_EQ(misfit.count, 0);
  EXPECT_EQ(misfit.rmse, 0.0);
  EXPECT_EQ(computeMisfit(TomoDocument()).count, 0);
}

}  // namespace
}  // namespace talvesk

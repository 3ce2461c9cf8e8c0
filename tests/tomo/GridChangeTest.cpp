#include "TestInversion.h"
#include "model/GroundModel.h"
#include "model/Residuals.h"
#include "model/TomographyOutcome.h"
#include "support/ConsoleCapture.h"
#include "tomo/ForwardPass.h"
#include "tomo/GridPreview.h"
#include "tomo/GridSetup.h"
#include "tomo/RayRecomputation.h"
#include "tomo/StartingModel.h"

#include <gtest/gtest.h>

namespace talvesk {
namespace {

std::vector<bool> drawn(const Grid& grid) {
  std::vector<bool> flags;
  for (std::uint32_t c = 0; c < grid.cellCount(); ++c) flags.push_back(grid.draw(c));
  return flags;
}

TomoDocument inverted() {
  const testing::ConsoleCapture console;
  TomoDocument line = testing::twoLayers();
  Log log;
  EXPECT_TRUE(runInversion(line, testing::fewIterations(), log).status.ok());
  return line;
}

TEST(GridPreview, countsWhatTheGridWillHave) {
  const testing::ConsoleCapture console;
  for (const GridSettings& settings : {GridSettings{4.6, 1.0, 7}, GridSettings{9.0, 3.0, 6}}) {
    TomoDocument line = testing::testLine(10, 2.0, {-1.5, 9.0}, 1.0);
    const GridPreview preview = previewGrid(line, line.surveyProfile(), settings, 1);
    Log log;
    ASSERT_TRUE(setUpGrid(line, settings, log).ok());
    EXPECT_EQ(preview.size.righe, line.model->grid->righe());
    EXPECT_EQ(preview.size.col, line.model->grid->col());
    EXPECT_EQ(preview.cells, line.model->grid->cellCount());
    EXPECT_EQ(preview.nodes, line.model->grid->nodeCount());
    EXPECT_GT(preview.bytes, 0.0);
    EXPECT_TRUE(preview.status.ok());
  }
}

TEST(GridPreview, findsOutsideWhatTheGridHasNoNodeFor) {
  const testing::ConsoleCapture console;
  for (double cell = 0.5; cell < 12.0; cell += 0.25) {
    TomoDocument line = testing::testLine(24, 2.0, {-1.0, 47.0});
    const SurveyProfile profile = line.surveyProfile();
    Log log;
    ASSERT_TRUE(setUpGrid(line, {10.0, cell, 6}, log).ok());
    int outside = 0;
    for (const double x : profile.x) {
      if (line.model->grid->geometry().topNodeIndex(x + profile.xOffset) == kNoNode) ++outside;
    }
    const GridPreview preview = previewGrid(line, profile, {10.0, cell, 6}, 1);
    EXPECT_EQ(preview.outside, outside) << cell;
    EXPECT_EQ(describe(preview.left, line), describe(leftOut(line, findExcluded(line)), line))
        << cell;
  }
}

/// 134 m of array, which 53 cells of 2.5 m do not fill: the shot at the end has no node.
TomoDocument lineWithAnEndShot() {
  TomoDocument line = testing::testLine(24, 5.5, {-2.75, 31.0, 63.0, 95.0, 129.25});
  testing::pickTwoLayers(line, 450.0, 1800.0, 3.0);
  return line;
}

TEST(GridPreview, countsShotsGeophonesAndPicksThatWouldBeLost) {
  TomoDocument line = lineWithAnEndShot();
  const auto lost = [&](double cell) {
    return previewGrid(line, line.surveyProfile(), {10.0, cell, 6}, 1).left;
  };
  EXPECT_EQ(lost(2.5).shotsBeyond, std::vector<std::size_t>{4});
  EXPECT_EQ(lost(2.5).geophoneCount(), 0U);
  EXPECT_EQ(lost(2.5).picks, 24U);
  EXPECT_EQ(lost(2.5).of, 120U);
  EXPECT_FALSE(lost(2.0).any());
  // 10 columns of 12.5 m and a node reach 127.5 m of 133: the last two geophones of 4 shots, too.
  line.ttArray.edit()[0].ttMisurati.edit()[23] = kNoTime;
  line.ttArray.edit()[1].indexStesa = -1;
  const LeftOut more = lost(12.5);
  EXPECT_EQ(more.shotsWithoutString, std::vector<std::size_t>{1});
  ASSERT_EQ(more.geophones.size(), 1U);
  EXPECT_EQ(more.geophones[0].numbers, (std::vector<std::size_t>{23}));
  EXPECT_EQ(more.of, 119U);
  EXPECT_EQ(more.picks, 24U + 24U + 2U);
}

TEST(GridPreview, offersTheNearestCellSizesThatLoseNone) {
  const testing::ConsoleCapture console;
  TomoDocument line = lineWithAnEndShot();
  const SurveyProfile profile = line.surveyProfile();
  const auto reaches = [&](double cell) {
    testing::putGrid(line, 10.0, cell);
    return findExcluded(line).empty();
  };
  for (const double cell : {2.5, 3.21, 12.5, 60.0}) {
    ASSERT_FALSE(reaches(cell)) << cell;
    const NearestSizes nearest = reachingCellSizes(profile, {10.0, cell, 6});
    ASSERT_TRUE(nearest.smaller && nearest.larger) << cell;
    EXPECT_LT(*nearest.smaller, cell);
    EXPECT_GT(*nearest.larger, cell);
    EXPECT_TRUE(reaches(*nearest.smaller)) << *nearest.smaller;
    EXPECT_TRUE(reaches(*nearest.larger)) << *nearest.larger;
    EXPECT_FALSE(reaches(*nearest.smaller + 0.001)) << "the nearest";
    EXPECT_FALSE(reaches(*nearest.larger - 0.001)) << "the nearest";
  }
  EXPECT_EQ(reachingCellSizes(profile, {10.0, 2.5, 6}).smaller, 2.481);
  EXPECT_FALSE(reachingCellSizes(profile, {10.0, 0.1, 6}).smaller) << "none is smaller";
  EXPECT_FALSE(reachingCellSizes(profile, {10.0, 134.0, 6}).larger)
      << "no cell fits below the line";
}

TEST(GridPreview, saysWhatCannotBeBuilt) {
  const TomoDocument line = testing::testLine(24, 2.0, {0.0});
  const auto status = [&](const GridSettings& settings) {
    return previewGrid(line, line.surveyProfile(), settings, 1).status;
  };
  EXPECT_FALSE(status({10.0, 0.0, 6}).ok());
  EXPECT_FALSE(status({10.0, 60.0, 6}).ok());
  EXPECT_NE(status({20.0, 1e-6, 6}).message().find("nodes"), std::string::npos);
}

TEST(StartingModel, isToldThroughTheLifeOfAGrid) {
  const testing::ConsoleCapture console;
  Log log;
  TomoDocument line = testing::twoLayers();
  EXPECT_EQ(startingModelOf(line), StartingModel::kDefault);
  ASSERT_TRUE(applyLayers(line, {{0, 300, 4, 600}, {4, 600, 12, 2000}}).ok());
  EXPECT_EQ(startingModelOf(line), StartingModel::kLayered);
  ASSERT_TRUE(smoothGrid(line, SmoothingType::kUniform, 2, false, log).ok());
  EXPECT_EQ(startingModelOf(line), StartingModel::kOther);
  for (int run = 0; run < 2; ++run) {  // the second begins with the smoothed result of the first
    ASSERT_TRUE(runInversion(line, testing::fewIterations(1), log).status.ok());
    EXPECT_EQ(startingModelOf(line), StartingModel::kResult);
    ASSERT_TRUE(smoothGrid(line, SmoothingType::kUniform, 2, false, log).ok());
    EXPECT_EQ(startingModelOf(line), StartingModel::kSmoothed);
    TomoDocument copy = line;
    EXPECT_EQ(startingModelOf(copy), StartingModel::kSmoothed);
  }
  ASSERT_TRUE(setUpGrid(line, {12.0, 1.0, 6}, log).ok());
  EXPECT_EQ(startingModelOf(line), StartingModel::kDefault);
  line.model.edit().grid.reset();
  EXPECT_EQ(startingModelOf(line), StartingModel::kNone);
}

TEST(SmoothGrid, changesSlownessesAndTracesWhatIsShown) {
  TomoDocument line = inverted();
  const Grid before = *line.model->grid;
  const double ofLastPass = line.result->RMSE_tomography;
  const std::vector<double> coverage = line.result->coorcount;
  Log log;
  const testing::ConsoleCapture console;
  ASSERT_TRUE(smoothGrid(line, SmoothingType::kRayBased, 3, true, log).ok());
  EXPECT_EQ(line.model->grid->slownesses(),
            smoothSlowness(SmoothingType::kRayBased, before, line.result->hitCounts, 3, 1.0));
  EXPECT_NE(line.model->grid->slownesses(), before.slownesses());
  EXPECT_EQ(drawn(*line.model->grid), drawn(before));
  EXPECT_EQ(&line.model->grid->geometry(), &before.geometry());
  EXPECT_EQ(line.result->coorcount, coverage);
  EXPECT_EQ(line.result->RMSE_tomography, ofLastPass);
  EXPECT_TRUE(line.result->has_tomographic_info && line.result->timesOfSection);
  TomoDocument traced = line;
  ASSERT_TRUE(recomputeRays(traced, log).ok());
  EXPECT_EQ(line.result->rays, traced.result->rays);
  EXPECT_EQ(sectionMisfitOf(line).rmse, misfitOfTimes(traced).rmse);
}

TEST(SmoothGrid, worksWithoutAnInversionAndRefusesWhatMakesNoSense) {
  TomoDocument line = testing::twoLayers();
  Log log;
  const std::vector<double> before = line.model->grid->slownesses();
  EXPECT_FALSE(smoothGrid(line, SmoothingType::kUniform, 0, false, log).ok());
  EXPECT_EQ(line.model->grid->slownesses(), before);
  ASSERT_TRUE(smoothGrid(line, SmoothingType::kRayBased, 2, false, log).ok());
  EXPECT_NE(line.model->grid->slownesses(), before);
  line.model.edit().grid.reset();
  EXPECT_FALSE(smoothGrid(line, SmoothingType::kUniform, 2, false, log).ok());
}

TEST(DocumentCopy, isInvertedWhileTheDocumentStays) {
  const TomoDocument direct = inverted();
  const testing::ConsoleCapture console;
  const TomoDocument line = testing::twoLayers();
  const std::vector<double> atFirst = line.model->grid->slownesses();
  TomoDocument copy = line;
  Log log;
  ASSERT_TRUE(runInversion(copy, testing::fewIterations(), log).status.ok());
  EXPECT_EQ(line.model->grid->slownesses(), atFirst) << "the document waits untouched";
  EXPECT_TRUE(line.ttArray[0].ttCalcolati.empty());
  EXPECT_FALSE(line.result->has_tomographic_info);
  EXPECT_EQ(copy.model->grid->slownesses(), direct.model->grid->slownesses());
  EXPECT_EQ(drawn(*copy.model->grid), drawn(*direct.model->grid));
  EXPECT_EQ(copy.result->rays, direct.result->rays);
  for (std::size_t s = 0; s < line.ttArray.size(); ++s) {
    EXPECT_EQ(copy.ttArray[s].ttCalcolati, direct.ttArray[s].ttCalcolati) << s;
    EXPECT_TRUE(copy.ttArray[s].ttMisurati.isSharedWith(line.ttArray[s].ttMisurati))
        << "an inversion reads the picks";
  }
}

}  // namespace
}  // namespace talvesk

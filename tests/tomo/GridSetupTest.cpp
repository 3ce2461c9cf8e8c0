#include "TestInversion.h"
#include "model/GroundModel.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"
#include "support/ConsoleCapture.h"
#include "tomo/GridSetup.h"

#include <functional>
#include <limits>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

using testing::linesOf;

TEST(GridSetup, buildsTheGridAndSaysSo) {
  TomoDocument line = testing::testLine(10, 2.0, {-1.5, 9.0}, 1.0);
  Log log;
  const testing::ConsoleCapture console;
  ASSERT_TRUE(setUpGrid(line, {4.6, 1.0, 7}, log).ok());
  EXPECT_EQ(linesOf(console.out()),
            (std::vector<std::string>{"log: Setting Grid ... ", "log: Minima spaziatura : 2.000000",
                                      "[LOG] Minima spaziatura 2", "log: Generating the grid ... ",
                                      "log: Generating the grid ... COMPLETED",
                                      "log: Setting Grid ... COMPLETED. ",
                                      "log: Setting info layer ... COMPLETED. "}));
  EXPECT_EQ(console.error(), "");
  ASSERT_NE(line.model->grid, nullptr);
  EXPECT_EQ(line.model->grid->righe(), 5u);
  EXPECT_EQ(line.model->grid->col(), 21u);  // 19.5 m and a metre at each end
  EXPECT_EQ(line.model->grid->nV(), 7u);
  EXPECT_EQ(line.model->xOffset, 2.5);
  EXPECT_EQ(line.result->info_density, std::vector<double>(5 * 21, -1.0));
  EXPECT_EQ(line.model->surface(1.0), line.ttArray[0].shotPos2d.z);
}

TEST(GridSetup, leavesTheDocumentAloneWhenItFails) {
  const struct {
    const char* name;
    std::function<void(TomoDocument&)> change;
    GridSettings settings;
    std::string text;
  } cases[] = {
      {"no strings",
       [](TomoDocument& d) { d.line.edit().goephonesStringSet.clear(); },
       {5, 1, 6},
       "Geophones do not have geometry! \nPlease set the position of geophones\n"},
      {"all in one place",
       [](TomoDocument& d) {
         for (Point2D& p : d.line.edit().goephonesStringSet[0]) p.x = 0.0;
       },
       {5, 1, 6},
       "Geophones do not have geometry! \nPlease set the position of geophones\n"},
      {"a place that is none",
       [](TomoDocument& d) { d.line.edit().goephonesStringSet[0][3].x = kNaN; },
       {5, 1, 6},
       "geometry"},
      {"an elevation that is none",
       [](TomoDocument& d) { d.line.edit().goephonesStringSet[0][3].z = kNaN; },
       {5, 1, 6},
       "geometry"},
      {"a shot beyond the Moon",
       [](TomoDocument& d) { d.ttArray.edit()[0].shotPos2d.x = 1e12; },
       {5, 1, 6},
       "geometry"},
      {"no cell size", [](TomoDocument&) {}, {5, 0, 6}, "cell size"},
      {"a cell size that is none", [](TomoDocument&) {}, {5, kNaN, 6}, "cell size"},
      {"no depth", [](TomoDocument&) {}, {kNaN, 1, 6}, "depth"},
      {"a negative depth", [](TomoDocument&) {}, {-1, 1, 6}, "depth"},
      {"one node", [](TomoDocument&) {}, {5, 1, 1}, "1 nodes per side"},
      {"more searches at once than have room",
       [](TomoDocument&) {},
       {5, 1, 6, 4000000000U},
       " MiB are free"},
      {"cells wider than the line", [](TomoDocument&) {}, {90, 30, 6}, "3 rows and 0 columns"},
      {"too many nodes", [](TomoDocument&) {}, {10, 1e-4, 6}, "100000 rows and 200000 columns"},
      {"more than any number", [](TomoDocument&) {}, {1e300, 1e-300, 6}, "4294967295 rows"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const testing::ConsoleCapture console;
    Log log;
    TomoDocument line = testing::testLine(10, 2.0, {4.0}, 1.0);
    testing::putGrid(line, 6.0, 1.0);
    c.change(line);
    line.result.edit().rays = {{1, 2, 3}};
    line.result.edit().has_tomographic_info = true;
    const Grid* grid = line.model->grid.get();
    const double xOffset = line.model->xOffset;
    const auto surface = line.model->surface.X();

    const Status status = setUpGrid(line, c.settings, log);
    ASSERT_FALSE(status.ok());
    EXPECT_NE(status.message().find(c.text), std::string::npos) << status.message();
    EXPECT_EQ(line.model->grid.get(), grid);
    EXPECT_EQ(line.model->xOffset, xOffset);
    EXPECT_EQ(line.model->surface.X(), surface);
    EXPECT_EQ(line.result->rays.size(), 1u);
    EXPECT_TRUE(line.result->has_tomographic_info);
    EXPECT_EQ(linesOf(console.error()).back(), "log: Setting Grid ... FAILED. ");
  }
}

TEST(GridSetup, buildsAGridWithoutRowsForADepthOfZero) {
  const testing::ConsoleCapture console;
  Log log;
  TomoDocument line = testing::testLine(10, 2.0, {4.0});
  const Status status = setUpGrid(line, {0.0, 1.0, 6}, log);
  ASSERT_TRUE(status.ok()) << status.message();
  EXPECT_EQ(line.model->grid->righe(), 0u);
  EXPECT_EQ(line.model->grid->col(), 20u);
  EXPECT_TRUE(line.result->info_density.empty());
}

TEST(GridSetup, forgetsWhatAnInversionLeftInTheGridBefore) {
  const testing::ConsoleCapture console;
  Log log;
  TomoDocument line = testing::testLine(10, 2.0, {4.0});
  line.result.edit().rays = {{1, 2, 3}};
  line.result.edit().hitCounts = {1};
  line.result.edit().coorcount = {1.0};
  line.result.edit().has_tomographic_info = true;
  line.result.edit().RMSE_tomography = 4.0;
  line.result.edit().coverageLimit = {{1.0, 2.0}, {2.0, 2.0}};
  line.result.edit().coverageSpline.emplace();
  line.result.edit().lastInversion.emplace();
  line.result.edit().excluded = {{0, 1, 2.0}};
  ASSERT_TRUE(setUpGrid(line, {5.0, 1.0, 6}, log).ok());
  EXPECT_TRUE(line.result->rays.empty());
  EXPECT_TRUE(line.result->hitCounts.empty());
  EXPECT_TRUE(line.result->coorcount.empty());
  EXPECT_FALSE(line.result->has_tomographic_info);
  EXPECT_LT(line.result->RMSE_tomography, 0.0);
  EXPECT_TRUE(line.result->coverageLimit.empty());
  EXPECT_FALSE(line.result->coverageSpline.has_value());
  EXPECT_FALSE(line.result->lastInversion.has_value());
  EXPECT_TRUE(line.result->excluded.empty());
}

TEST(GridSetup, goesOnProposingTheFirstCellSize) {
  const testing::ConsoleCapture console;
  Log log;
  TomoDocument line = testing::testLine(13, 2.0, {});
  SurveyProfile profile;
  GridSettings settings = proposeGrid(line, profile, log);
  EXPECT_EQ(settings.cellSize, 0.5);
  EXPECT_EQ(settings.maxDepth, 13.0);  // half of 24 m and two margins
  EXPECT_EQ(settings.nodes, 6u);
  ASSERT_TRUE(setUpGrid(line, {5.0, 1.0, 9}, log).ok());
  EXPECT_EQ(line.proposedCellSizes, (std::vector<double>{0.5, 0.5}));

  for (Point2D& p : line.line.edit().goephonesStringSet[0]) p.x *= 2.0;
  settings = proposeGrid(line, profile, log);
  EXPECT_EQ(profile.proposedCellSize, 1.0);
  EXPECT_EQ(settings.cellSize, 0.5);
  EXPECT_EQ(settings.nodes, 9u);  // as many as the present grid has
  EXPECT_EQ(line.proposedCellSizes, (std::vector<double>{0.5, 0.5, 1.0}));
}

TEST(GridSetup, proposesNoSmallerCellsThanUsersMayChoose) {
  const testing::ConsoleCapture console;
  Log log;
  TomoDocument line = testing::testLine(24, 0.2, {});
  SurveyProfile profile;
  EXPECT_EQ(proposeGrid(line, profile, log).cellSize, 0.1);
  EXPECT_EQ(line.proposedCellSizes, std::vector<double>{0.05});
}

TEST(GridSetup, proposesHalfAMetreWhereNothingIsKnown) {
  const testing::ConsoleCapture console;
  Log log;
  TomoDocument empty;
  SurveyProfile profile;
  EXPECT_EQ(proposeGrid(empty, profile, log).cellSize, 0.5);
  EXPECT_TRUE(empty.proposedCellSizes.empty());
}

}  // namespace
}  // namespace talvesk

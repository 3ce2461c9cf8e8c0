#include "model/GroundModel.h"
#include "support/SectionDocument.h"
#include "view/SectionScene.h"
#include "view/VelocityDifference.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::sectionDocument;

double layered(std::uint32_t row, std::uint32_t) {
  return 300.0 + 100.0 * row;
}

TEST(VelocityDifference, isInPercentOfTheOther) {
  const TomoDocument slow = sectionDocument(4, 10, 2.0, layered);
  const TomoDocument fast = sectionDocument(
      4, 10, 2.0,
      [](std::uint32_t row, std::uint32_t column) { return 1.25 * layered(row, column); });
  for (const double percent : velocityDifference(fast, slow)) EXPECT_NEAR(percent, 25.0, 1e-9);
  for (const double percent : velocityDifference(slow, fast)) EXPECT_NEAR(percent, -20.0, 1e-9);
}

TEST(VelocityDifference, isOfCellsThatBothShow) {
  TomoDocument section = sectionDocument(4, 10, 0.0, layered);
  TomoDocument other = section;
  other.model.edit().editGrid().setDraw(7, false);
  section.model.edit().editGrid().setDraw(3, false);
  const std::vector<double> percent = velocityDifference(section, other);
  for (std::size_t cell = 0; cell < percent.size(); ++cell) {
    EXPECT_EQ(std::isnan(percent[cell]), cell == 3 || cell == 7) << cell;
  }
}

TEST(VelocityDifference, findsThePlaceInAnotherGrid) {
  const TomoDocument coarse = sectionDocument(4, 10, 0.0, layered);
  TomoDocument fine = coarse;
  // Twice as many cells each way, over the upper half of the coarse ones and as wide as they.
  std::vector<double> slownesses;
  for (int row = 0; row < 4; ++row) slownesses.insert(slownesses.end(), 20, 1.0 / 400.0);
  fine.model.edit().grid = std::make_shared<Grid>(
      std::make_shared<GridGeometry>(GridSize{4, 20, 6, 0.5}, fine.model->surface), slownesses);
  const std::vector<double> percent = velocityDifference(fine, coarse);
  EXPECT_NEAR(percent[0], 100.0 * (400.0 / 300.0 - 1.0), 1e-9);
  EXPECT_NEAR(percent[20], percent[0], 1e-9) << "in the same coarse cell";
  EXPECT_NEAR(percent[40], 0.0, 1e-9);
  const std::vector<double> back = velocityDifference(coarse, fine);
  EXPECT_TRUE(std::isnan(back[25])) << "the fine grid does not go so deep";
}

TEST(VelocityDifference, hasARangeThatFewCellsExceed) {
  std::vector<double> percent(99, -7.3);
  percent.push_back(5000.0);
  percent.push_back(std::numeric_limits<double>::quiet_NaN());
  const ValueRange range = differenceRange(percent);
  EXPECT_DOUBLE_EQ(range.min, -range.max);
  EXPECT_GE(range.max, 7.3);
  EXPECT_LT(range.max, 15.0);
  for (const std::vector<double>& flat : {std::vector<double>(), std::vector<double>(9, 0.0)}) {
    EXPECT_GT(differenceRange(flat).span(), 0.0);
  }
}

TEST(VelocityDifference, isShownWithoutTheFiguresOfAnInversion) {
  const TomoDocument document = sectionDocument(4, 10, 0.0, layered);
  SectionSceneOptions options;
  options.values = CellValues{"Difference", "%", velocityDifference(document, document)};
  options.values->values[5] = std::numeric_limits<double>::quiet_NaN();
  SectionScene scene;
  ASSERT_TRUE(buildSectionScene(document, options, scene).ok());
  EXPECT_EQ(scene.dataRange.max, 0.0);
  EXPECT_EQ(scene.mesh.drawn[5], 0);
  EXPECT_EQ(scene.velocities[0], document.model->grid->velocity(0));
  EXPECT_EQ(scene.misfit.count, 0);
}

}  // namespace
}  // namespace talvesk

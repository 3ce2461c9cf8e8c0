#include "model/GroundModel.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"
#include "support/SectionDocument.h"
#include "view/SectionScene.h"
#include "view/SectionTexts.h"

#include <cmath>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;
using testing::sectionDocument;

double layered(std::uint32_t row, std::uint32_t) {
  return 300.0 + 100.0 * row;
}

SectionScene sceneOf(const TomoDocument& document, const SectionSceneOptions& options = {}) {
  SectionScene scene;
  const Status status = buildSectionScene(document, options, scene);
  EXPECT_TRUE(status.ok()) << status.message();
  return scene;
}

TEST(SectionScene, liesInSurveyDistancesAndTrueElevations) {
  const TomoDocument document = sectionDocument(8, 30, 2.0, layered);
  const SectionScene scene = sceneOf(document);
  for (const std::uint32_t column : {0U, 13U, 30U}) {
    const Point2D& top = scene.mesh.corners[scene.mesh.corner(0, column)];
    EXPECT_DOUBLE_EQ(top.x, column + 99.0);
    EXPECT_DOUBLE_EQ(top.z, document.model->surface(column));
  }
  const Point2D& deep = scene.mesh.corners[scene.mesh.corner(8, 0)];
  EXPECT_NEAR(deep.z, document.model->surface(0.0) - 8.0, 1e-9);  // the ends are never smoothed
  EXPECT_EQ(scene.surface.size(), 30U * 5U + 1U);
  EXPECT_EQ(scene.geophones, document.line->goephonesStringSet[0]);
  ASSERT_EQ(scene.shots.size(), 1U);
  EXPECT_EQ(scene.shots[0], document.ttArray[0].shotPos2d);
}

TEST(SectionScene, showsEveryPlaceOfSeveralStringsOnce) {
  TomoDocument document = sectionDocument(4, 20, 0.0, layered);
  document.line.edit().goephonesStringSet.push_back(
      {{119.0, 100.0}, {117.0, 100.0}, {101.0, 100.0}, {102.0, 100.0}});
  document.ttArray.edit().push_back(document.ttArray[0]);
  const SectionScene scene = sceneOf(document);
  ASSERT_EQ(scene.geophones.size(), 13U);  // 100, 102 ... 118 and 101, 117, 119
  for (std::size_t i = 1; i < scene.geophones.size(); ++i) {
    EXPECT_LT(scene.geophones[i - 1].x, scene.geophones[i].x);
  }
  EXPECT_EQ(scene.shots.size(), 1U);
}

TEST(SectionScene, cellsThatAreNotDrawnCountForNothing) {
  TomoDocument document = sectionDocument(8, 20, 0.0, layered);
  for (std::uint32_t cell = 5 * 20; cell < 8 * 20; ++cell)
    document.model.edit().editGrid().setDraw(cell, false);
  SectionSceneOptions options;
  options.equallySpacedContours = 20;
  const SectionScene scene = sceneOf(document, options);
  EXPECT_DOUBLE_EQ(scene.dataRange.max, 700.0);
  EXPECT_LE(scene.range.max, 720.0);
  EXPECT_DOUBLE_EQ(scene.lowerLeft().z, 95.0);
  EXPECT_DOUBLE_EQ(scene.upperRight().x, 119.0);
  ASSERT_FALSE(scene.contours.empty());
  for (const ContourLine& line : scene.contours) {
    for (const Point2D& p : line.points) EXPECT_GE(p.z, 95.0);
  }
}

TEST(SectionScene, takesTheRangeAndTheContourValuesThatItIsGiven) {
  const TomoDocument document = sectionDocument(8, 20, 0.0, layered);
  SectionSceneOptions options;
  options.range = ValueRange{400.0, 800.0};
  options.contourValues = {650.0};
  options.equallySpacedContours = 3;
  const SectionScene scene = sceneOf(document, options);
  EXPECT_EQ(scene.range.min, 400.0);
  EXPECT_EQ(scene.range.max, 800.0);
  EXPECT_THAT(scene.contourLevels, ::testing::ElementsAre(500.0, 600.0, 650.0, 700.0));
}

TEST(SectionScene, saysWhyThereIsNothingToShow) {
  TomoDocument document = sectionDocument(3, 5, 0.0, layered);
  const auto failure = [&document](const SectionSceneOptions& options) {
    SectionScene scene;
    scene.title = "before";
    const Status status = buildSectionScene(document, options, scene);
    EXPECT_EQ(scene.title, "before");
    return status.ok() ? std::string("no failure") : status.message();
  };
  SectionSceneOptions options;
  for (const ValueRange range : {ValueRange{5.0, 5.0}, ValueRange{9.0, 1.0},
                                 ValueRange{0.0, std::nan("")}, ValueRange{0.0, INFINITY}}) {
    options.range = range;
    EXPECT_THAT(failure(options), HasSubstr("range"));
  }
  options.range.reset();
  for (const int contours : {-1, 1001}) {
    options.equallySpacedContours = contours;
    EXPECT_THAT(failure(options), HasSubstr("0 to 1000"));
  }
  options.equallySpacedContours = 0;
  options.quantity = SectionQuantity::kInformationDensity;
  document.result.edit().info_density.assign(15, -1.0);  // no inversion yet
  EXPECT_THAT(failure(options), HasSubstr("Information density"));
  options.quantity = SectionQuantity::kVelocity;
  for (std::uint32_t cell = 0; cell < 15; ++cell)
    document.model.edit().editGrid().setDraw(cell, false);
  EXPECT_THAT(failure(options), HasSubstr("no cell"));
  document.model.edit().grid.reset();
  EXPECT_THAT(failure(options), HasSubstr("no grid"));
}

TEST(SectionScene, raysRunThroughTheNodesOfThisGrid) {
  TomoDocument document = sectionDocument(4, 10, 1.0, layered);
  const GridGeometry& geometry = document.model->grid->geometry();
  document.result.edit().rays = {{0, geometry.sideNode(1, 2, 0), geometry.nodeCount()}, {3}, {}};
  EXPECT_TRUE(sceneOf(document).rays.empty());
  SectionSceneOptions options;
  options.rays = true;
  const SectionScene scene = sceneOf(document, options);
  ASSERT_EQ(scene.rays.size(), 1U);
  ASSERT_EQ(scene.rays[0].size(), 2U);  // the third node belongs to no cell of this grid
  EXPECT_DOUBLE_EQ(scene.rays[0][1].x, 101.0);
  EXPECT_DOUBLE_EQ(scene.rays[0][1].z, -geometry.nodeZ(geometry.sideNode(1, 2, 0)));
}

TEST(SectionScene, raysOfReceiversWithoutAPickAreLeftOut) {
  TomoDocument document = sectionDocument(4, 10, 0.0, layered);
  document.ttArray.edit().push_back(document.ttArray[0]);
  document.result.edit().excluded = {{0, -1, 0.0}};
  std::vector<double>& times = document.ttArray.edit()[1].ttMisurati.edit();
  ASSERT_EQ(times.size(), 5U);
  times[1] = kUnpicked;
  times[4] = kNoTime;
  for (std::uint32_t i = 0; i < 5; ++i) document.result.edit().rays.edit().push_back({0, i + 1});
  SectionSceneOptions options;
  options.rays = true;
  EXPECT_EQ(sceneOf(document, options).rays.size(), 3U);
  document.result.edit().rays.edit().pop_back();
  EXPECT_EQ(sceneOf(document, options).rays.size(), 4U) << "not the rays of these records";
}

TEST(SectionScene, theCoverageCurveRunsThroughTheDeepestCentres) {
  TomoDocument document = sectionDocument(4, 10, 0.0, layered);
  EXPECT_TRUE(sceneOf(document).coverageLimit.empty());
  document.result.edit().coverageSpline.emplace();
  document.result.edit().coverageSpline->build({0.5, 4.5, 9.5},
                                               {-98.5, -96.5, -99.5});  // z downward
  const auto curve = sceneOf(document).coverageLimit;
  ASSERT_GE(curve.size(), 10U);
  EXPECT_DOUBLE_EQ(curve.front().x, 99.5);
  EXPECT_DOUBLE_EQ(curve.front().z, 98.5);
  EXPECT_DOUBLE_EQ(curve.back().x, 108.5);
  EXPECT_DOUBLE_EQ(curve.back().z, 99.5);
}

TEST(SectionScene, gradientAndLaplacianAgreeWithClosedForms) {
  const auto bowl = [](std::uint32_t row, std::uint32_t column) {
    return 1000.0 + 40.0 * row + 3.0 * column * column;
  };
  const TomoDocument document = sectionDocument(6, 9, 0.0, bowl);
  SectionSceneOptions options;
  options.quantity = SectionQuantity::kVerticalGradient;
  for (const double gradient : sceneOf(document, options).cellValues) {
    EXPECT_NEAR(gradient, 40.0, 1e-9);  // one-sided at the top and at the bottom
  }
  options.quantity = SectionQuantity::kLaplacian;
  const SectionScene scene = sceneOf(document, options);
  for (std::uint32_t row = 0; row < 6; ++row) {
    for (std::uint32_t column = 1; column < 8; ++column) {
      EXPECT_NEAR(scene.cellValues[scene.mesh.cell(row, column)], 6.0, 1e-9);
    }
  }
  EXPECT_NEAR(scene.cellValues[scene.mesh.cell(2, 0)], 0.0, 1e-9);
  EXPECT_TRUE(std::isnan(scene.cellValues[scene.mesh.cell(0, 0)]));
}

TEST(NiceRange, endsOnRoundNumbersAroundTheValues) {
  const struct {
    ValueRange values, nice;
  } facts[] = {{{359.9, 2980.0}, {300.0, 3000.0}},
               {{300.0, 3000.0}, {300.0, 3000.0}},
               {{0.0, 1.0}, {0.0, 1.0}},
               {{-0.0123, 0.0309}, {-0.014, 0.032}},
               {{200.0, 3800.0}, {200.0, 3800.0}}};
  for (const auto& fact : facts) {
    const ValueRange nice = niceRange(fact.values);
    EXPECT_NEAR(nice.min, fact.nice.min, 1e-9) << fact.values.min;
    EXPECT_NEAR(nice.max, fact.nice.max, 1e-9) << fact.values.max;
  }
  for (const double single : {0.0, 450.0, -2e-9, 1e12}) {
    const ValueRange nice = niceRange({single, single});
    EXPECT_LT(nice.min, single);
    EXPECT_GT(nice.max, single);
  }
}

TEST(SectionTexts, valuesHaveNoMorePlacesThanTheirStepNeeds) {
  const struct {
    double value, step;
    const char* text;
  } facts[] = {{428.5714, 54.0, "429"}, {1200.0, 100.0, "1200"}, {0.35, 0.05, "0.35"},
               {-0.0001, 1.0, "0"},     {12.345, 0.5, "12.35"},  {2.0, 0.001, "2"}};
  for (const auto& fact : facts) EXPECT_EQ(valueText(fact.value, fact.step), fact.text);
}

}  // namespace
}  // namespace talvesk

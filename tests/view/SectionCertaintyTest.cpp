#include "support/CertainDocument.h"
#include "view/SectionCertainty.h"
#include "view/SectionScene.h"
#include "view/SectionViewSettings.h"

#include <cmath>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::certainDocument;
using ::testing::DoubleNear;
using ::testing::Each;
using ::testing::Field;
using ::testing::SizeIs;

SectionScene sceneOf(const TomoDocument& document, const SectionSceneOptions& options) {
  SectionScene scene;
  const Status status = buildSectionScene(document, options, scene);
  EXPECT_TRUE(status.ok()) << status.message();
  return scene;
}

Certainty ofSpreads(const std::vector<double>& percents) {
  Certainty certainty;
  for (const double percent : percents) {
    certainty.velocities.median.push_back(1000.0);
    certainty.velocities.low.push_back(1000.0 - 10.0 * percent);
    certainty.velocities.high.push_back(1000.0 + 10.0 * percent);
    certainty.touched.push_back(3);
  }
  return certainty;
}

TEST(SectionCertainty, groundFadesWithItsSpreadAndWithoutRays) {
  Certainty certainty = ofSpreads({2.0, 10.0, 25.0, 40.0, 90.0, 2.0});
  certainty.touched.back() = 0;
  const std::vector<double> fading = fadingOf(certainty);
  EXPECT_EQ(fading[0], 0.0);
  EXPECT_EQ(fading[1], 0.0);
  EXPECT_DOUBLE_EQ(fading[2], 0.5 * kMostFading);
  EXPECT_DOUBLE_EQ(fading[3], kMostFading);
  EXPECT_DOUBLE_EQ(fading[4], kMostFading);
  EXPECT_DOUBLE_EQ(fading[5], kMostFading) << "what no ray tells is not sure, however narrow";
}

// Velocities of 0.95 and 1.05 of (350 + 100 z) m/s reach 800 m/s at z = 4.921 and 4.119 m.
TEST(SectionCertainty, aBandLiesBetweenTheDepthsThatTheQuantilesOfVelocityTell) {
  TomoDocument document = certainDocument();
  const Certainty& certainty = *document.result->certainty;
  const GridGeometry& geometry = document.model->grid->geometry();
  const DepthBand band = depthBandOf(certainty, geometry, document.model->xOffset, 800.0);
  ASSERT_THAT(band.shallow, SizeIs(1));
  EXPECT_EQ(band.shallow[0].size(), 38U) << "not where no ray is";
  EXPECT_DOUBLE_EQ(band.shallow[0][0].x, 99.5);
  EXPECT_NEAR(band.shallow[0][3].z, 100.0 - 4.119, 1e-3);
  EXPECT_NEAR(band.shallow[0][30].z, 100.0 - (800.0 / 1.3 - 350.0) / 100.0, 1e-9);
  // Below 30 % less than 1150 m/s, 805, there is nothing that could reach 1000 m/s.
  ASSERT_THAT(depthBandOf(certainty, geometry, 0.0, 1000.0).deep, SizeIs(1));
  EXPECT_EQ(depthBandOf(certainty, geometry, 0.0, 1000.0).deep[0].size(), 20U);
  EXPECT_TRUE(depthBandOf(certainty, geometry, 0.0, 9000.0).empty());
  for (const double nonsense : {std::nan(""), HUGE_VAL}) {
    EXPECT_TRUE(depthBandOf(certainty, geometry, 0.0, nonsense).empty());
  }
}

TEST(SectionCertainty, depthsThatMembersWereAskedForComeFirst) {
  TomoDocument document = certainDocument();
  Certainty& certainty = *document.result.edit().certainty;
  const std::vector<double> depths(40, 3.25);
  certainty.bands.push_back({800.0, {depths, depths, depths}});
  const DepthBand band = depthBandOf(certainty, document.model->grid->geometry(), 0.0, 800.0);
  EXPECT_THAT(band.shallow.at(0), Each(Field(&Point2D::z, DoubleNear(96.75, 1e-9))));
}

TEST(SectionCertainty, velocitiesOfBandsAreNumbersAboveZeroAndNotTooMany) {
  using Velocities = std::optional<std::vector<double>>;
  const struct {
    const char* text;
    Velocities velocities;
  } facts[] = {{"", Velocities(std::vector<double>())},
               {" 1500;800 ", Velocities(std::vector<double>{800.0, 1500.0})},
               {"800, 1500 800.5;", Velocities(std::vector<double>{800.0, 800.5, 1500.0})},
               {"800;800", Velocities(std::vector<double>{800.0})},
               {"800 m/s", std::nullopt},
               {"0", std::nullopt},
               {"-5", std::nullopt},
               {"nan", std::nullopt},
               {"1e999", std::nullopt},
               {"1 2 3 4 5 6", std::nullopt}};
  for (const auto& fact : facts)
    EXPECT_EQ(bandVelocitiesIn(fact.text), fact.velocities) << fact.text;
}

TEST(SectionCertainty, theSpreadHasAScaleFromNoneOnAndAPaletteOfItsOwn) {
  SectionSceneOptions options;
  options.quantity = SectionQuantity::kCertainty;
  const SectionScene scene = sceneOf(certainDocument(), options);
  EXPECT_EQ(scene.range.min, 0.0);
  EXPECT_GE(scene.range.max, 30.0);
  const ColorPaletteList palettes;
  for (const ColorPalette& palette : palettes.palettes()) {
    const ColorTable colors = sectionColors(scene, palette);
    double lightness = 2.0;
    for (int i = 0; i < colors.size(); ++i) {
      const double now = 0.2126 * colors[i].r + 0.7152 * colors[i].g + 0.0722 * colors[i].b;
      EXPECT_LT(now, lightness) << palette.name << i;
      lightness = now;
    }
  }
}

TEST(SectionCertainty, isShownWhereItIsAskedForAndSaysWhetherItIsThatOfTheSection) {
  TomoDocument document = certainDocument();
  SectionSceneOptions options;
  EXPECT_FALSE(sceneOf(document, options).certainty) << "nothing shown comes from it";
  options.fadeUncertain = true;
  options.bandVelocities = {500, 600, 700, 800, 900, 1000, 1100};
  SectionScene scene = sceneOf(document, options);
  ASSERT_TRUE(scene.certainty);
  EXPECT_TRUE(scene.certainty->fits());
  EXPECT_FALSE(scene.certainty->picksChanged);
  EXPECT_THAT(scene.fading, SizeIs(8 * 40));
  EXPECT_THAT(scene.depthBands, SizeIs(kMostDepthBands));

  document.ttArray.edit()[0].ttMisurati.edit()[0] = 0.02;
  for (double& velocity : document.result.edit().certainty->velocities.median) velocity *= 1.2;
  scene = sceneOf(document, options);
  EXPECT_TRUE(scene.certainty->picksChanged);
  EXPECT_FALSE(scene.certainty->fits());
  EXPECT_NEAR(scene.certainty->percentBeyond, 100.0 * 20 / 38, 1e-9) << "the left half";

  options.quantity = SectionQuantity::kVerticalGradient;
  EXPECT_THAT(sceneOf(document, options).fading, SizeIs(0)) << "only velocities fade";
  document.result.edit().certainty.reset();
  EXPECT_FALSE(sceneOf(document, options).certainty);
}

}  // namespace
}  // namespace talvesk

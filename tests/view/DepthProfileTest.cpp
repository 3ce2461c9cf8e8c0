#include "support/CertainDocument.h"
#include "support/SectionDocument.h"
#include "view/DepthProfile.h"
#include "view/FenceFrame.h"
#include "view/FenceScene.h"

#include <cmath>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::sectionDocument;

double layered(std::uint32_t row, std::uint32_t column) {
  return 400.0 + 100.0 * row + column;
}

TEST(DepthProfile, isTheColumnBelowAPlaceDownFromItsSurface) {
  const TomoDocument document = sectionDocument(10, 30, 2.0, layered);
  const DepthProfiles section(document);
  // The grid begins 1 m before the first point, at 99 m.
  EXPECT_DOUBLE_EQ(section.left(), 99.0);
  EXPECT_DOUBLE_EQ(section.right(), 129.0);
  const DepthProfile profile = section.at(112.25);
  ASSERT_EQ(profile.layers.size(), 10U);
  for (std::size_t row = 0; row < profile.layers.size(); ++row) {
    const DepthProfile::Layer& layer = profile.layers[row];
    EXPECT_NEAR(layer.velocity, 400.0 + 100.0 * static_cast<double>(row) + 13.0, 1e-9);
    EXPECT_NEAR(layer.bottom - layer.top, 1.0, 0.2) << "cells of a metre, over hills";
    EXPECT_EQ(layer.top, row > 0 ? profile.layers[row - 1].bottom : 0.0);
    EXPECT_NEAR(layer.gradient, 100.0, 2.0) << "per metre, over hills";
    EXPECT_TRUE(std::isnan(layer.spread)) << "nobody knows how sure it is";
  }
  EXPECT_FALSE(section.hasCertainty());
  EXPECT_GE(section.depth(), profile.layers.back().bottom - 1e-9);
  EXPECT_TRUE(section.at(98.9).layers.empty());
  EXPECT_TRUE(section.at(std::nan("")).layers.empty());
  EXPECT_TRUE(DepthProfiles(TomoDocument()).at(0.0).layers.empty());
}

TEST(DepthProfile, leavesOutWhatIsNotDrawn) {
  TomoDocument document = sectionDocument(4, 10, 0.0, layered);
  document.model.edit().editGrid().setDraw(3 * 10 + 5, false);
  const DepthProfiles section(document);
  EXPECT_EQ(section.at(104.5).layers.size(), 3U);
  EXPECT_EQ(section.at(105.5).layers.size(), 4U);
}

FencePoint northward(double x) {
  return {500000.0, 5000000.0 + x, 0.0};
}

TEST(FenceScene, standsSectionsOnTheirLines) {
  const TomoDocument document = sectionDocument(4, 10, 0.0, layered);
  FenceScene scene;
  ASSERT_TRUE(addFencePanel(document, "A", northward, scene).ok());
  ASSERT_TRUE(addFencePanel(
                  document, "B",
                  [](double x) {
                    return FencePoint{500000.0 + x, 5000050.0, 0.0};
                  },
                  scene)
                  .ok());
  EXPECT_EQ(scene.panels.size(), 2U);
  EXPECT_DOUBLE_EQ(scene.low().north, 5000050.0);
  EXPECT_DOUBLE_EQ(scene.high().north, 5000109.0);
  EXPECT_DOUBLE_EQ(scene.high().east, 500109.0);
  EXPECT_DOUBLE_EQ(scene.high().z, 100.0);
  EXPECT_DOUBLE_EQ(scene.low().z, 96.0);
  EXPECT_FALSE(addFencePanel(TomoDocument(), "none", northward, scene).ok());
  EXPECT_FALSE(addFencePanel(
                   document, "nowhere",
                   [](double) {
                     return FencePoint{std::nan(""), 0.0, 0.0};
                   },
                   scene)
                   .ok());
  EXPECT_EQ(scene.panels.size(), 2U) << "as it was";
}

TEST(FenceCamera, looksTheWayItSays) {
  FenceCamera camera;
  camera.tilt = 0.0;
  camera.exaggeration = 2.0;
  const struct {
    double azimuth;
    FencePoint right;  ///< a metre that way lies to the right
  } kWays[] = {{0.0, {1, 0, 0}}, {90.0, {0, -1, 0}}, {180.0, {-1, 0, 0}}, {270.0, {0, 1, 0}}};
  for (const auto& way : kWays) {
    camera.azimuth = way.azimuth;
    EXPECT_NEAR(camera.project(way.right).right, 1.0, 1e-12) << way.azimuth;
    EXPECT_NEAR(camera.project(way.right).up, 0.0, 1e-12);
    EXPECT_NEAR(camera.project({0, 0, 1}).up, 2.0, 1e-12) << "exaggerated";
  }
  camera.azimuth = 0.0;
  camera.tilt = 90.0;
  EXPECT_NEAR(camera.project({0, 1, 0}).up, 1.0, 1e-12) << "a map: north is up";
  EXPECT_NEAR(camera.project({0, 0, 1}).up, 0.0, 1e-12);
  // What is moved stays under the mouse.
  camera = FenceCamera{200.0, 35.0, 3.0, 0.5, {10, 20, 5}};
  const FencePoint point{14.0, 22.0, 6.0};
  const FenceCamera::Offset before = camera.project(point);
  camera.panBy(17.0, -9.0);
  EXPECT_NEAR(camera.project(point).right - before.right, 17.0, 1e-9);
  EXPECT_NEAR(camera.project(point).up - before.up, -9.0, 1e-9);
}

TEST(FenceCamera, bringsAllIntoThePicture) {
  const TomoDocument document = sectionDocument(4, 10, 0.0, layered);
  FenceScene scene;
  ASSERT_TRUE(addFencePanel(document, "A", northward, scene).ok());
  FenceCamera camera;
  camera.fit(scene, 400.0, 300.0);
  for (const FencePoint& corner : scene.panels[0].corners) {
    EXPECT_LE(std::fabs(camera.project(corner).right), 200.0);
    EXPECT_LE(std::fabs(camera.project(corner).up), 150.0);
  }
  camera.fit(FenceScene(), 400.0, 300.0);
  EXPECT_TRUE(std::isfinite(camera.metresPerPixel)) << "of nothing, too";
}

TEST(FenceFrame, liesBelowTheFenceWithRoundNumbersOnTheNearSides) {
  const TomoDocument document = sectionDocument(4, 10, 0.0, layered);
  FenceScene scene;
  ASSERT_TRUE(addFencePanel(document, "A", northward, scene).ok());
  EXPECT_TRUE(fenceFrame(FenceScene(), FenceCamera()).lines.empty());
  const auto [low, high] = frameBox(scene);
  EXPECT_GT(high.east - low.east, 1.0) << "a line to the north has some width";
  for (const double azimuth : {20.0, 110.0, 200.0, 290.0}) {
    FenceCamera camera;
    camera.azimuth = azimuth;
    camera.fit(scene, 800.0, 600.0);
    const FenceFrame frame = fenceFrame(scene, camera);
    ASSERT_EQ(frame.northing.places.size(), frame.northing.ticks.major.size());
    ASSERT_GE(frame.northing.places.size(), 2U) << azimuth;
    for (std::size_t i = 0; i < frame.northing.places.size(); ++i) {
      EXPECT_EQ(frame.northing.places[i].north, frame.northing.ticks.major[i]);
      EXPECT_EQ(frame.northing.places[i].z, low.z);
    }
    // Who looks sees the numbers below the grid, and elevations left of it.
    const FencePoint centre{0.5 * (low.east + high.east), 0.5 * (low.north + high.north), low.z};
    EXPECT_LT(camera.project(frame.northing.middle).up, camera.project(centre).up) << azimuth;
    EXPECT_LT(camera.project(frame.easting.middle).up, camera.project(centre).up) << azimuth;
    EXPECT_LT(frame.easting.outward.up, 0.0);
    for (const FencePoint& corner : scene.panels[0].corners) {
      EXPECT_LE(camera.project(frame.elevation.middle).right, camera.project(corner).right);
    }
    for (const FenceFrame::Line& line : frame.lines) {
      for (const FencePoint& end : {line.from, line.to}) {
        EXPECT_LE(std::fabs(camera.project(end).right), 400.0);
        EXPECT_LE(std::fabs(camera.project(end).up), 300.0);
      }
    }
  }
  FenceCamera above;
  above.tilt = 90.0;
  above.fit(scene, 800.0, 600.0);
  EXPECT_TRUE(fenceFrame(scene, above).elevation.places.empty()) << "it is a point from there";
}

}  // namespace
}  // namespace talvesk

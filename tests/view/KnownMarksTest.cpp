#include "model/GroundModel.h"
#include "model/KnownGround.h"
#include "support/SectionDocument.h"
#include "view/SectionScene.h"
#include "view/SectionViewSettings.h"

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::sectionDocument;

double layered(std::uint32_t row, std::uint32_t) {
  return 300.0 + 100.0 * row;
}

TEST(KnownMarks, lieWithTheCellsThatTheyHold) {
  TomoDocument document = sectionDocument(8, 30, 2.0, layered);
  KnownGround& known = document.known.edit();
  known.boreholes = {{"B1", 112.0, 1.5, {{0, 3, 400}, {3, 12, 900}}},
                     {"far", 400.0, 0, {{0, 3, 400}}}};
  known.depths = {{"P1", 112.0, 3.0, 0.5, 0, 800}};
  known.bodies = {{"W", 3000.0, {{110, 0}, {114, 0}, {114, 3}}}};
  const KnownMarks marks = knownMarks(document);
  SectionScene scene;
  ASSERT_TRUE(buildSectionScene(document, SectionSceneOptions(), scene).ok());
  // Corners of the cells: column 13 stands at 112 m.
  const auto elevation = [&](std::uint32_t row) {
    return scene.mesh.corners[scene.mesh.corner(row, 13)].z;
  };
  ASSERT_EQ(scene.mesh.corners[scene.mesh.corner(0, 13)].x, 112.0);
  ASSERT_EQ(marks.boreholes.size(), 1U) << "what stands beyond the grid is not drawn";
  const KnownMarks::Borehole& hole = marks.boreholes[0];
  EXPECT_EQ(hole.offset, 1.5);
  ASSERT_EQ(hole.layers.size(), 2U);
  EXPECT_NEAR(hole.layers[0].top, elevation(0), 1e-9);
  EXPECT_NEAR(hole.layers[0].bottom, elevation(3), 1e-9);
  EXPECT_NEAR(hole.layers[1].bottom, elevation(8) - 4.0, 1e-9) << "below the grid, too";
  EXPECT_NEAR(marks.depths[0].at.z, elevation(3), 1e-9);
  EXPECT_EQ(marks.depths[0].error, 0.5);
  ASSERT_EQ(marks.bodies.size(), 1U);
  EXPECT_EQ(marks.bodies[0].outline.front().x, 110.0);
}

TEST(KnownMarks, goWithTheSwitchOfTheView) {
  TomoDocument document = sectionDocument(8, 30, 2.0, layered);
  document.known.edit().depths = {{"P1", 112.0, 3.0}};
  SectionViewSettings view;
  SectionScene scene;
  ASSERT_TRUE(buildSectionScene(document, view, ColorPaletteList().current(), {}, scene).ok());
  EXPECT_FALSE(scene.known.empty());
  view.known = false;
  ASSERT_TRUE(buildSectionScene(document, view, ColorPaletteList().current(), {}, scene).ok());
  EXPECT_TRUE(scene.known.empty());
}

}  // namespace
}  // namespace talvesk

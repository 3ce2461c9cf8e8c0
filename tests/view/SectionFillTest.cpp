#include "model/GroundModel.h"
#include "support/SectionDocument.h"
#include "view/ContourBands.h"
#include "view/RefractorLines.h"
#include "view/SectionProbe.h"
#include "view/SectionScene.h"
#include "view/SectionViewSettings.h"
#include "view/SimplifiedLine.h"

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::ElementsAre;
using testing::sectionDocument;
using ::testing::SizeIs;

double layered(std::uint32_t row, std::uint32_t) {
  return 300.0 + 100.0 * row;
}

double bumpy(std::uint32_t row, std::uint32_t column) {
  return 600.0 + 90.0 * row + 150.0 * ((column * 7 + row * 3) % 5);
}

SectionScene sceneOf(const TomoDocument& document, const SectionViewSettings& settings,
                     const ColorPalette& palette = ColorPaletteList().current()) {
  SectionScene scene;
  const Status status = buildSectionScene(document, settings, palette, {}, scene);
  EXPECT_TRUE(status.ok()) << status.message();
  return scene;
}

double areaOf(const std::vector<Point2D>& polygon) {
  double area = 0.0;
  for (std::size_t i = 0; i < polygon.size(); ++i) {
    const Point2D& a = polygon[i];
    const Point2D& b = polygon[(i + 1) % polygon.size()];
    area += 0.5 * (a.x * b.z - b.x * a.z);
  }
  return std::abs(area);
}

/// Square metres of every band.
std::vector<double> bandAreas(const SectionMesh& mesh, const ContourBands& bands, std::size_t n) {
  std::vector<double> areas(n, 0.0);
  for (std::uint32_t row = 0; row < mesh.rows; ++row) {
    for (std::uint32_t column = 0; column < mesh.columns; ++column) {
      const int band = bands.cellBand[mesh.cell(row, column)];
      if (band < 0) continue;
      areas[static_cast<std::size_t>(band)] += areaOf(
          {mesh.corners[mesh.corner(row, column)], mesh.corners[mesh.corner(row, column + 1)],
           mesh.corners[mesh.corner(row + 1, column + 1)],
           mesh.corners[mesh.corner(row + 1, column)]});
    }
  }
  for (const ContourBands::Piece& piece : bands.pieces) {
    const auto first = bands.points.begin() + static_cast<std::ptrdiff_t>(piece.firstPoint);
    areas[static_cast<std::size_t>(piece.band)] +=
        areaOf({first, first + static_cast<std::ptrdiff_t>(piece.pointCount)});
  }
  return areas;
}

SectionMesh squares(std::uint32_t rows, std::uint32_t columns) {
  SectionMesh mesh;
  mesh.rows = rows;
  mesh.columns = columns;
  for (std::uint32_t line = 0; line <= rows; ++line) {
    for (std::uint32_t column = 0; column <= columns; ++column) {
      mesh.corners.push_back({1.0 * column, -1.0 * line});
    }
  }
  mesh.drawn.assign(std::size_t{rows} * columns, 1);
  return mesh;
}

TEST(ContourBands, shareTheGroundOutBetweenThem) {
  const struct {
    std::vector<double> corners;  ///< of one cell, row by row
    std::vector<double> levels;
    std::vector<double> areas;
  } facts[] = {
      {{0, 0, 4, 4}, {}, {1.0}},
      {{0, 0, 4, 4}, {1}, {0.25, 0.75}},
      {{0, 0, 4, 4}, {1, 2, 3.5}, {0.25, 0.25, 0.375, 0.125}},
      {{0, 0, 4, 4}, {-1, 5}, {0.0, 1.0, 0.0}},
      {{2, 2, 2, 2}, {2}, {0.0, 1.0}},      // on a level is above it
      {{0, 4, 4, 0}, {2}, {0.5, 0.5}},      // a saddle whose middle lies on the level
      {{0, 4, 4, 0}, {1}, {0.125, 0.875}},  // its low corners are apart
  };
  const SectionMesh cell = squares(1, 1);
  for (const auto& fact : facts) {
    const ContourBands bands = contourBands(cell, fact.corners, fact.levels);
    const std::vector<double> areas = bandAreas(cell, bands, fact.areas.size());
    for (std::size_t i = 0; i < areas.size(); ++i) {
      EXPECT_NEAR(areas[i], fact.areas[i], 1e-12)
          << ::testing::PrintToString(fact.corners) << " band " << i;
    }
  }
}

TEST(ContourBands, leaveOutWhatIsNotDrawnOrHasNoValue) {
  SectionMesh mesh = squares(1, 3);
  mesh.drawn[1] = 0;
  const double none = std::numeric_limits<double>::quiet_NaN();
  const ContourBands bands = contourBands(mesh, {0, 0, 0, none, 4, 4, 4, 4}, {1.0});
  EXPECT_THAT(bands.cellBand,
              ElementsAre(ContourBands::kCut, ContourBands::kBlank, ContourBands::kBlank));
}

TEST(ContourBands, coverEveryDrawnCellOfABumpySectionOnce) {
  const TomoDocument document = sectionDocument(12, 30, 2.0, bumpy);
  SectionViewSettings settings;
  settings.contours.filled = true;
  settings.contours.numberOfValues = 9;
  const SectionScene scene = sceneOf(document, settings);
  ASSERT_EQ(scene.fill, SectionFill::kBands);
  EXPECT_TRUE(scene.contours.empty());  // no lines were asked for
  double area = 0.0;
  for (const double band : bandAreas(scene.mesh, scene.bands, 10)) area += band;
  double whole = 0.0;
  for (std::uint32_t column = 0; column < 30; ++column) {
    const auto& corners = scene.mesh.corners;
    whole +=
        0.5 *
        (corners[scene.mesh.corner(0, column)].z + corners[scene.mesh.corner(0, column + 1)].z -
         corners[scene.mesh.corner(12, column)].z - corners[scene.mesh.corner(12, column + 1)].z);
  }
  EXPECT_NEAR(area, whole, 1e-6 * whole);
}

TEST(SectionColors, ofBandsAreTheGradientsAtTheirMiddles) {
  const TomoDocument document = sectionDocument(12, 20, 0.0, layered);
  SectionViewSettings settings;
  settings.contours.filled = true;
  settings.contours.customized = true;
  settings.contours.customValues = {100.0, 500.0, 1000.0, 9000.0};  // the ends are out of range
  ColorPalette palette = *ColorPaletteList().find("Black to White");
  palette.min_db = 0.0;
  palette.max_db = 2000.0;
  palette.n_colors = 2;
  const SectionScene scene = sceneOf(document, settings, palette);
  const ColorTable colors = sectionColors(scene, palette);
  ASSERT_EQ(colors.size(), 4);
  EXPECT_NEAR(colors[0].r, 0.025, 1e-12);
  EXPECT_NEAR(colors[2].r, 0.375, 1e-12);
  EXPECT_EQ(colors.indexOf(99.0), 0);
  EXPECT_EQ(colors.indexOf(500.0), 2);
  EXPECT_EQ(colors.indexOf(5000.0), 3);
  EXPECT_EQ(colors.classRange(1).min, 100.0);
  EXPECT_EQ(colors.classRange(3).max, 2000.0);
}

TEST(SectionOptions, followTheSettings) {
  using Quantity = SectionQuantity;
  const struct {
    const char* name;
    Quantity quantity;
    bool profile, smooth, filled, onProfile, onGradient;
    SectionFill fill;
    int levels;
    bool lines;
  } facts[] = {
      {"cells", Quantity::kVelocity, true, false, false, false, true, SectionFill::kCells, 0,
       false},
      {"smooth", Quantity::kVelocity, true, true, false, true, false, SectionFill::kSmooth, 10,
       true},
      {"bands", Quantity::kVelocity, true, true, true, false, false, SectionFill::kBands, 10,
       false},
      {"both", Quantity::kVelocity, true, false, true, true, false, SectionFill::kBands, 10, true},
      {"gradient", Quantity::kVerticalGradient, true, false, true, true, true, SectionFill::kCells,
       10, true},
      {"bare gradient", Quantity::kVerticalGradient, true, false, false, true, false,
       SectionFill::kCells, 0, false},
      {"hidden", Quantity::kVelocity, false, true, true, true, true, SectionFill::kNone, 0, false},
  };
  const TomoDocument document = sectionDocument(20, 20, 0.0, bumpy);
  for (const auto& fact : facts) {
    SectionViewSettings settings;
    settings.quantity = fact.quantity;
    settings.profile = fact.profile;
    settings.smooth = fact.smooth;
    settings.contours.filled = fact.filled;
    settings.contours.onProfile = fact.onProfile;
    settings.contours.onVerticalGradient = fact.onGradient;
    const SectionScene scene = sceneOf(document, settings);
    EXPECT_EQ(scene.fill, fact.fill) << fact.name;
    EXPECT_THAT(scene.contourLevels, SizeIs(fact.levels)) << fact.name;
    EXPECT_EQ(!scene.contours.empty(), fact.lines) << fact.name;
  }
}

TEST(SectionOptions, customContoursKeepWithinTheScaleOfThePalette) {
  SectionViewSettings settings;
  settings.contours.customized = true;
  settings.contours.onProfile = true;
  settings.contours.customValues = {400.0, 500.0, 900.0, 950.0};
  ColorPalette palette;
  palette.min_db = 450.0;
  palette.max_db = 900.0;
  const SectionScene scene = sceneOf(sectionDocument(8, 20, 0.0, layered), settings, palette);
  EXPECT_THAT(scene.contourLevels, ::testing::ElementsAre(500.0, 900.0));
}

TEST(SectionOptions, takeTheScaleOfThePaletteForVelocitiesUnlessItIsNone) {
  const TomoDocument document = sectionDocument(8, 20, 0.0, layered);
  const double none = std::numeric_limits<double>::quiet_NaN();
  const struct {
    double min, max, from, to;
  } facts[] = {{100.0, 900.0, 100.0, 900.0},
               {900.0, 100.0, 300.0, 1000.0},
               {500.0, 500.0, 300.0, 1000.0},
               {none, 900.0, 300.0, 1000.0},
               {-INFINITY, 900.0, 300.0, 1000.0}};
  SectionViewSettings settings;
  for (const auto& fact : facts) {
    ColorPalette palette;
    palette.min_db = fact.min;
    palette.max_db = fact.max;
    const SectionScene scene = sceneOf(document, settings, palette);
    EXPECT_NEAR(scene.range.min, fact.from, 1e-9) << fact.min;
    EXPECT_NEAR(scene.range.max, fact.to, 1e-9) << fact.min;
  }
  settings.quantity = SectionQuantity::kVerticalGradient;
  EXPECT_LT(sceneOf(document, settings).range.max, 250.0);
}

TEST(SectionScene, aCellWithoutAValueIsNotDrawn) {
  const TomoDocument document = sectionDocument(4, 6, 0.0, layered);
  SectionViewSettings settings;
  settings.quantity = SectionQuantity::kLaplacian;
  const SectionScene scene = sceneOf(document, settings);
  EXPECT_FALSE(scene.mesh.isDrawn(0, 0));
  EXPECT_TRUE(scene.mesh.isDrawn(0, 1));
}

TEST(SectionReading, tellsWhatLiesUnderAPosition) {
  TomoDocument document = sectionDocument(8, 30, 2.0, bumpy);
  document.model.edit().editGrid().setDraw(document.model.edit().grid->cellIndex(5, 12), false);
  SectionViewSettings settings;
  settings.quantity = SectionQuantity::kVerticalGradient;
  const SectionScene scene = sceneOf(document, settings);
  for (const std::uint32_t row : {0U, 3U, 5U, 7U}) {
    const std::uint32_t cell = document.model->grid->cellIndex(row, 12);
    const Point2D centre = document.model->grid->cellCentre(cell);
    const Point2D position{centre.x - document.model->xOffset, -centre.z};
    const SectionReading reading = readSection(scene, position);
    ASSERT_TRUE(reading.depth);
    EXPECT_NEAR(*reading.depth, document.model->surface(centre.x) - position.z, 1e-9);
    ASSERT_EQ(reading.velocity.has_value(), row != 5U);
    if (!reading.velocity) continue;
    EXPECT_DOUBLE_EQ(*reading.velocity, document.model->grid->velocity(cell));
    EXPECT_DOUBLE_EQ(*reading.value, scene.cellValues[cell]);
  }
}

TEST(SectionReading, knowsNothingBeyondTheSection) {
  const TomoDocument document = sectionDocument(8, 30, 0.0, bumpy);
  const SectionScene scene = sceneOf(document, {});
  const struct {
    Point2D position;
    bool depth;
  } facts[] = {{{98.9, 95.0}, false}, {{129.1, 95.0}, false}, {{110.0, 100.5}, true},
               {{110.0, 91.9}, true}, {{NAN, 95.0}, false},   {{110.0, NAN}, false}};
  for (const auto& fact : facts) {
    const SectionReading reading = readSection(scene, fact.position);
    EXPECT_EQ(reading.depth.has_value(), fact.depth) << fact.position.x << " " << fact.position.z;
    EXPECT_FALSE(reading.velocity);
  }
  EXPECT_TRUE(readSection(scene, {129.0, 95.5}).velocity);  // the very end belongs to it
  EXPECT_FALSE(readSection({}, {0.0, 0.0}).depth);
}

TEST(RefractorLines, lieBelowTheSurfaceWhereADepthIsKnown) {
  refractionDataStructure::Interpretation records;
  records.refractData.cData.resize(3);
  records.refractData.cData[0].x = {0.0, 2.0, 4.0, 6.0, 8.0, 10.0, 12.0};
  records.refractData.cData[0].elevation.assign(7, 100.0);
  records.refractData.cData[0].depth = {3.0, 4.0, NAN, 5.0, NAN, 6.0, 7.0};
  records.refractData.cData[1].x = {0.0, 2.0};
  records.refractData.cData[1].elevation = {100.0, 101.0};
  records.refractData.cData[1].depth = {9.0};  // a single point is no line
  const auto lines = refractorLines(records);
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_THAT(lines[0].pieces, ElementsAre(ElementsAre(Point2D{0.0, 97.0}, Point2D{2.0, 96.0}),
                                           ElementsAre(Point2D{10.0, 94.0}, Point2D{12.0, 93.0})))
      << "nothing spans a gap, and a single point is no line";
}

TEST(SectionScene, showsTheLayeredProfileBeforeThereIsAGrid) {
  TomoDocument document = sectionDocument(4, 10, 0.0, layered);
  document.model.edit().grid.reset();
  const SectionLine refractor{"Refractor 1", {{{101.0, 80.0}, {140.0, 82.0}}}};
  SectionViewSettings settings;
  SectionScene scene;
  const auto build = [&] {
    return buildSectionScene(document, settings, ColorPaletteList().current(), {refractor}, scene);
  };
  EXPECT_FALSE(build().ok()) << "not asked for";
  settings.refraction = true;
  ASSERT_TRUE(build().ok());
  EXPECT_EQ(scene.fill, SectionFill::kNone);
  EXPECT_EQ(scene.lowerLeft().z, 80.0);
  EXPECT_EQ(scene.upperRight().x, 140.0);
  EXPECT_FALSE(readSection(scene, {110.0, 90.0}).velocity);
}

TEST(SimplifiedLine, leavesOutOnlyWhatLiesWithinTheTolerance) {
  const struct {
    std::vector<Point2D> line;
    std::vector<Point2D> kept;
  } facts[] = {
      {{}, {}},
      {{{0, 0}, {1, 0}}, {{0, 0}, {1, 0}}},
      {{{0, 0}, {1, 0.04}, {2, 0}, {3, -0.04}, {4, 0}}, {{0, 0}, {4, 0}}},
      {{{0, 0}, {1, 0}, {2, 1}, {3, 2}}, {{0, 0}, {1, 0}, {3, 2}}},
      {{{0, 0}, {5, 0}, {0, 0}}, {{0, 0}, {5, 0}, {0, 0}}},  // there and back
  };
  for (const auto& fact : facts) EXPECT_EQ(simplifiedLine(fact.line, 0.05), fact.kept);
}

}  // namespace
}  // namespace talvesk

#include "support/TestSurveys.h"
#include "tomo/LayeredProfile.h"
#include "tomo/RefractorReading.h"

#include <cmath>
#include <limits>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using refractionDataStructure::computedData;
using refractionDataStructure::processingData;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
using ::testing::Property;

constexpr double kUnknown = std::numeric_limits<double>::quiet_NaN();

auto says(const std::string& text) {
  return Contains(Property(&Message::english, HasSubstr(text)));
}

/// Receivers each 2 m from 2 to 20 m; depths and velocities that change along the line.
processingData profileOf(const std::vector<std::pair<double, double>>& depthsAndSlopes) {
  processingData results;
  results.v1 = 400.0;
  for (const auto& [depth, slope] : depthsAndSlopes) {
    computedData refractor;
    const double velocity = results.cData.empty() ? 1200.0 : 3000.0;
    for (double x = 2.0; x <= 20.0; x += 2.0) {
      refractor.x.push_back(x);
      refractor.elevation.push_back(100.0);
      refractor.depth.push_back(depth + slope * x);
      refractor.velocity.push_back(velocity + 10.0 * x);
    }
    results.cData.push_back(refractor);
  }
  return results;
}

/// Geophones each 2 m from 0 to 22 m above cells of 0.25 m.
TomoDocument lineWithGrid(double relief = 0.0) {
  TomoDocument line = testing::testLine(12, 2.0, {0.0, 22.0}, relief);
  testing::putGrid(line, 12.0, 0.25, 6);
  return line;
}

double velocityAt(const TomoDocument& line, double x, double depth) {
  const Grid& grid = *line.model->grid;
  const auto column = static_cast<std::uint32_t>((x + line.model->xOffset) / grid.aLato());
  return grid.velocity(grid.cellIndex(static_cast<std::uint32_t>(depth / grid.aLato()), column));
}

TEST(LayeredProfile, fillsTheCellsOfItsLayers) {
  TomoDocument line = lineWithGrid();
  std::vector<Message> notes;
  ASSERT_TRUE(startFromProfile(line, profileOf({{3.0, 0.1}, {7.0, 0.0}}), 0.0, notes).ok());
  struct Case {
    double x, depth, velocity;
  };
  // Columns are as wide as a cell, so a velocity along the line may be off by that of half a one.
  const Case cases[] = {{11.1, 0.1, 400.0},  {11.1, 3.9, 400.0},   {11.1, 4.3, 1311.0},
                        {11.1, 6.9, 1311.0}, {11.1, 7.1, 3111.0},  {11.1, 11.9, 3111.0},
                        {0.1, 3.1, 400.0},   {0.1, 3.4, 1220.0},   {22.0, 4.8, 400.0},
                        {22.0, 5.2, 1400.0}, {22.0, 11.0, 3200.0}, {5.1, 3.3, 400.0}};
  for (const Case& c : cases) {
    EXPECT_NEAR(velocityAt(line, c.x, c.depth), c.velocity, 2.6) << c.x << ' ' << c.depth;
  }
  EXPECT_THAT(notes, says("Layer 2 is known from 2 m to 20 m"));
  EXPECT_THAT(notes, says("Layer 3 is known from 2 m to 20 m"));
  EXPECT_EQ(notes.size(), 2U);
  EXPECT_EQ(line.result->info_density, std::vector<double>(line.model->grid->cellCount(), -1.0));
}

TEST(LayeredProfile, gradesItsJumpsOverAThickness) {
  TomoDocument line = lineWithGrid();
  std::vector<Message> notes;
  ASSERT_TRUE(startFromProfile(line, profileOf({{5.0, 0.0}}), 2.0, notes).ok());
  const double below = 1200.0 + 111.25;
  EXPECT_NEAR(velocityAt(line, 11.1, 3.9), 400.0, 1e-6);
  EXPECT_NEAR(velocityAt(line, 11.1, 4.6), 400.0 + (below - 400.0) * 0.3125, 1.0);
  EXPECT_NEAR(velocityAt(line, 11.1, 6.1), below, 1.0);
}

TEST(LayeredProfile, tellsWhatItFillsAndLeavesOut) {
  processingData gaps = profileOf({{3.0, 0.0}, {7.0, 0.0}});
  gaps.cData[0].depth[4] = kUnknown;
  gaps.cData[0].velocity[0] = kUnknown;
  gaps.cData[0].velocity[1] = -5.0;
  gaps.cData[0].depth[2] = -0.5;
  processingData crossing = profileOf({{5.0, 0.0}, {8.0, -0.3}});
  processingData bottomless = profileOf({{3.0, 0.0}, {7.0, 0.0}});
  bottomless.cData[1].depth.assign(10, kUnknown);
  processingData fitted = profileOf({{3.0, 0.0}});
  fitted.first = {{0.0, 10.0}, {300.0, 500.0}, 0.1, 3.0};
  struct Case {
    const char* what;
    processingData profile;
    std::vector<const char*> notes;
  };
  const Case cases[] = {
      {"gaps",
       gaps,
       {"Layer 2 has no depth at 1 of 10", "Layer 2 has no velocity at 2 of 10",
        "negative depth at 1 of 10"}},
      {"crossing", crossing, {"Layer 3 begins above layer 2 at 5 of 10"}},
      {"a layer without depths", bottomless, {"ground ends with layer 2"}},
      {"a first layer that changes", fitted, {"here it is its mean, 400 m/s, everywhere"}},
      {"a shallow grid", profileOf({{3.0, 0.0}, {13.0, 0.0}}), {"ends above layer 3 in 96 of 96"}},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    TomoDocument line = lineWithGrid();
    std::vector<Message> notes;
    ASSERT_TRUE(startFromProfile(line, c.profile, 0.0, notes).ok());
    for (const char* note : c.notes) EXPECT_THAT(notes, says(note));
    EXPECT_TRUE(line.model->grid->invalidSlowness().empty());
  }
}

TEST(LayeredProfile, leavesTheDocumentWhereThereIsNoGround) {
  processingData noVelocity = profileOf({{3.0, 0.0}});
  noVelocity.v1 = kUnknown;
  processingData noDepth = profileOf({{3.0, 0.0}});
  noDepth.cData[0].depth.clear();
  struct Case {
    processingData profile;
    const char* reason;
  };
  const Case cases[] = {{{}, "build the profiles"},
                        {noVelocity, "first layer of the layered profile has no velocity"},
                        {noDepth, "no depth or no velocity at any receiver"}};
  for (const Case& c : cases) {
    TomoDocument line = lineWithGrid();
    const auto before = line.model->grid;
    std::vector<Message> notes;
    EXPECT_THAT(startFromProfile(line, c.profile, 0.0, notes).message(), HasSubstr(c.reason));
    EXPECT_EQ(line.model->grid, before);
  }
}

TEST(RefractorReading, findsTheLayersAgainThatFilledTheGrid) {
  const processingData profile = profileOf({{3.0, 0.1}, {7.0, 0.0}});
  struct Case {
    const char* what;
    std::size_t refractor;
    RefractorSign sign;
    double thickness, relief, tolerance;
  };
  const Case cases[] = {
      {"sharp, velocity", 0, {900.0}, 0.0, 0.0, 0.26},
      {"sharp, gradient", 0, {}, 0.0, 0.0, 0.26},
      {"sharp, second", 1, {2200.0}, 0.0, 0.0, 0.26},
      {"sharp, second by gradient", 1, {}, 0.0, 0.0, 0.26},
      {"graded, middle velocity", 0, {850.0}, 2.0, 0.0, 0.15},
      {"hills", 0, {900.0}, 0.0, 1.5, 0.3},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    TomoDocument line = lineWithGrid(c.relief);
    std::vector<Message> notes;
    ASSERT_TRUE(startFromProfile(line, profile, c.thickness, notes).ok());
    LayerComparison comparison;
    ASSERT_TRUE(compareRefractor(line, profile, c.refractor, c.sign, comparison).ok());
    EXPECT_EQ(comparison.points.size(), 12U);
    EXPECT_EQ(comparison.count, 10U) << "the profile ends within the line";
    EXPECT_EQ(comparison.columns.size(), line.model->grid->col());
    for (const ComparedDepth& point : comparison.points) {
      ASSERT_TRUE(point.section.has_value()) << point.x;
      if (!point.layers) continue;
      EXPECT_NEAR(*point.section, *point.layers, c.tolerance) << point.x;
    }
    EXPECT_LE(std::fabs(comparison.mean), comparison.rms + 1e-12);
    EXPECT_LT(comparison.rms, c.tolerance);
  }
}

TEST(RefractorReading, addsUpTheDifferencesOfKnownDepths) {
  TomoDocument line = lineWithGrid();
  std::vector<Message> notes;
  ASSERT_TRUE(startFromProfile(line, profileOf({{5.0, 0.0}}), 0.0, notes).ok());
  processingData other = profileOf({{4.0, 0.0}});
  other.cData[0].depth[3] = kUnknown;  // and so nothing on both sides of it
  LayerComparison comparison;
  ASSERT_TRUE(compareRefractor(line, other, 0, {800.0}, comparison).ok());
  EXPECT_EQ(comparison.count, 9U);
  EXPECT_NEAR(comparison.mean, 1.0, 0.13);
  EXPECT_NEAR(comparison.rms, 1.0, 0.13);
  EXPECT_THAT(compareRefractor(line, other, 1, {}, comparison).message(), HasSubstr("layer 3"));
}

TEST(RefractorReading, hasNoDepthWhereTheSectionHasNone) {
  TomoDocument line = lineWithGrid();
  std::vector<Message> notes;
  ASSERT_TRUE(startFromProfile(line, profileOf({{5.0, 0.0}}), 0.0, notes).ok());
  EXPECT_FALSE(refractorDepth(line, 11.0, {5000.0})) << "never reached";
  EXPECT_FALSE(refractorDepth(line, 11.0, {300.0})) << "reached from the first cell on";
  EXPECT_FALSE(refractorDepth(line, -40.0, {800.0})) << "beside the grid";
  EXPECT_FALSE(refractorDepth(line, 11.0, {}, {7.0, 9.0})) << "no growth there";
  ASSERT_TRUE(refractorDepth(line, 11.0, {800.0}));
  Grid& grid = line.model.edit().editGrid();
  for (std::uint32_t cell = grid.cellIndex(18, 0); cell < grid.cellCount(); ++cell) {
    grid.setDraw(cell, false);
  }
  EXPECT_FALSE(refractorDepth(line, 11.0, {800.0})) << "below what is drawn";
}

}  // namespace
}  // namespace talvesk

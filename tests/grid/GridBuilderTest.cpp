#include "grid/GridBuilder.h"
#include "support/ConsoleCapture.h"

#include <limits>
#include <stdexcept>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

Splines::LinearSpline level() {
  Splines::LinearSpline spline;
  spline.build({0.0, 100.0}, {10.0, 10.0});
  return spline;
}

TEST(GridBuilder, truncatesColumnsButRoundsRows) {
  const struct {
    double arrayLength, maxDepth, cellSize;
    std::uint32_t col, righe;
  } cases[] = {
      {10.3, 4.6, 1.0, 10, 5},    {10.9, 4.4, 1.0, 10, 4}, {10.0, 4.5, 1.0, 10, 5},
      {96.0, 48.0, 0.5, 192, 96}, {0.9, 0.4, 1.0, 0, 0},   {10.0, 0.0, 1.0, 10, 0},
      {kNaN, kNaN, 1.0, 0, 0},    {-5.0, -5.0, 1.0, 0, 0},
  };
  for (const auto& c : cases) {
    const GridSize size = gridSizeFor(c.arrayLength, c.maxDepth, c.cellSize, 7);
    EXPECT_EQ(size.col, c.col) << c.arrayLength;
    EXPECT_EQ(size.righe, c.righe) << c.maxDepth;
    EXPECT_EQ(size.nV, 7u);
    EXPECT_EQ(size.aLato, c.cellSize);
  }
}

TEST(GridBuilder, givesRowsTheDefaultVelocityAtTheirTop) {
  const struct {
    double depth, velocity;
  } cases[] = {{0.0, 200.0},   {1.5, 335.0},   {2.9999, 469.991}, {3.0, 1150.0},
               {10.0, 1500.0}, {20.0, 2000.0}, {20.5, 3012.5},    {40.0, 3500.0}};
  for (const auto& c : cases) EXPECT_DOUBLE_EQ(defaultVelocity(c.depth), c.velocity) << c.depth;

  const auto grid = buildDefaultGrid({22, 3, 6, 1.0}, level());
  ASSERT_NE(grid, nullptr);
  for (std::uint32_t row = 0; row < 22; ++row) {
    for (std::uint32_t column = 0; column < 3; ++column) {
      EXPECT_EQ(grid->slowness(grid->cellIndex(row, column)), 1.0 / defaultVelocity(row));
    }
  }
}

TEST(GridBuilder, buildsFromValuesAndFromAFunctionOfDepth) {
  const auto given = buildGridFromValues({2, 2, 6, 1.0}, {0.1, 0.2, 0.3, 0.4}, level());
  ASSERT_NE(given, nullptr);
  EXPECT_EQ(given->slownesses(), (std::vector<double>{0.1, 0.2, 0.3, 0.4}));
  const auto computed = buildGridFromVelocity(
      {3, 1, 6, 2.0}, [](double z) { return 100.0 + z; }, level());
  ASSERT_NE(computed, nullptr);
  EXPECT_EQ(computed->slownesses(), (std::vector<double>{1.0 / 100.0, 1.0 / 102.0, 1.0 / 104.0}));
}

TEST(GridBuilder, tellsTheErrorStreamWhatABuilderThrew) {
  const testing::ConsoleCapture console;
  EXPECT_EQ(buildGridFromValues({2, 2, 6, 1.0}, {0.1}, level()), nullptr);
  EXPECT_EQ(console.error(), "1 slownesses for 4 cells : Error creating the grid \n");
  EXPECT_EQ(buildGridFromVelocity(
                {2, 2, 6, 1.0}, [](double) -> double { throw 1; }, level()),
            nullptr);
  EXPECT_NE(console.error().find("Unknown exception : Error creating the grid \n"),
            std::string::npos);
  EXPECT_EQ(console.out(), "");
}

TEST(GridBuilder, refusesWhatCannotBeNumberedOrHeldWithTheNumbers) {
  const std::uint32_t most = std::numeric_limits<std::uint32_t>::max();
  const struct {
    const char* name;
    GridSize size;
    std::vector<std::string> texts;  // none: the size is accepted
  } cases[] = {
      {"ordinary", {96, 192, 6, 0.5}, {}},
      {"no rows", {0, 192, 6, 0.5}, {}},
      {"no columns", {96, 0, 6, 0.5}, {"96 rows and 0 columns"}},
      {"more nodes than numbers",
       {20000, 40000, 6, 0.01},
       {"20000 rows and 40000 columns with 6 nodes", "7200", "2147483646"}},
      {"beyond 64 bits", {most, most, 100, 1.0}, {"4294967295 rows", "2147483646"}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const Status status = checkGridSize(c.size, 2);
    EXPECT_EQ(status.ok(), c.texts.empty()) << status.message();
    for (const std::string& text : c.texts) {
      EXPECT_NE(status.message().find(text), std::string::npos) << status.message();
    }
  }
}

TEST(GridBuilder, refusesMoreMemoryThanIsFreeWithTheNumbers) {
  // Nodes can just be numbered, but a million searches at once have no room anywhere.
  const GridSize size{10000, 20000, 6, 0.1};
  const Status status = checkGridSize(size, 1000000);
  ASSERT_FALSE(status.ok());
  EXPECT_NE(status.message().find("10000 rows and 20000 columns"), std::string::npos);
  EXPECT_NE(status.message().find(" MiB, but only "), std::string::npos) << status.message();
  EXPECT_EQ(status.message().find("e+"), std::string::npos) << status.message();
}

TEST(GridBuilder, estimatesNoLessThanTheGeometryTakes) {
  const GridSize size{50, 100, 6, 1.0};
  const GridGeometry geometry(size, level());
  EXPECT_GE(estimatedGridBytes(size, 0), 0.95 * static_cast<double>(geometry.bytes()));
  EXPECT_GT(estimatedGridBytes(size, 2), estimatedGridBytes(size, 1));
}

}  // namespace
}  // namespace talvesk

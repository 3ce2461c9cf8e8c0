#include "view/ContourLines.h"

#include <cmath>
#include <functional>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using ::testing::ElementsAre;

/// Unit cells under a surface of waves, all drawn; row 0 on top.
SectionMesh meshOf(std::uint32_t rows, std::uint32_t columns, double relief = 0.0) {
  SectionMesh mesh;
  mesh.rows = rows;
  mesh.columns = columns;
  mesh.drawn.assign(std::size_t{rows} * columns, 1);
  for (std::uint32_t line = 0; line <= rows; ++line) {
    for (std::uint32_t column = 0; column <= columns; ++column) {
      mesh.corners.push_back({1.0 * column, relief * std::sin(0.7 * column) - 1.0 * line});
    }
  }
  return mesh;
}

std::vector<double> field(const SectionMesh& mesh, const std::function<double(Point2D)>& value) {
  std::vector<double> values;
  for (const Point2D& p : mesh.corners) values.push_back(value(p));
  return values;
}

double length(const ContourLine& line) {
  double sum = 0.0;
  for (std::size_t i = 1; i < line.points.size(); ++i) {
    sum += std::hypot(line.points[i].x - line.points[i - 1].x,
                      line.points[i].z - line.points[i - 1].z);
  }
  return sum;
}

TEST(ContourLines, aLinearFieldHasAStraightLineFromEdgeToEdge) {
  const SectionMesh mesh = meshOf(6, 10);
  // Through (4, 0) and (1, -6) and all between.
  const auto lines =
      contourLines(mesh, field(mesh, [](Point2D p) { return 2.0 * p.x - p.z; }), {8.0});
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_FALSE(lines[0].closed);
  EXPECT_EQ(lines[0].value, 8.0);
  for (const Point2D& p : lines[0].points) EXPECT_NEAR(2.0 * p.x - p.z, 8.0, 1e-12);
  EXPECT_NEAR(length(lines[0]), std::hypot(3.0, 6.0), 1e-12);
}

TEST(ContourLines, followsAFieldOverDrapedCells) {
  const SectionMesh mesh = meshOf(6, 40, 0.8);
  const auto lines = contourLines(mesh, field(mesh, [](Point2D p) { return p.z; }), {-3.0});
  ASSERT_EQ(lines.size(), 1U);
  for (const Point2D& p : lines[0].points) EXPECT_NEAR(p.z, -3.0, 1e-12);
  EXPECT_NEAR(length(lines[0]), 40.0, 1e-12);
}

TEST(ContourLines, closesAroundAPeak) {
  const SectionMesh mesh = meshOf(20, 20);
  const auto lines = contourLines(
      mesh, field(mesh, [](Point2D p) { return -std::hypot(p.x - 10.0, p.z + 10.0); }), {-6.0});
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_TRUE(lines[0].closed);
  EXPECT_NEAR(length(lines[0]), 2.0 * 3.14159265 * 6.0, 1.5);
  EXPECT_NE(lines[0].points.front(), lines[0].points.back());
}

TEST(ContourLines, theMeanDecidesWhereASaddleLineTurns) {
  const SectionMesh mesh = meshOf(1, 1);
  // Above at the upper left and the lower right corner; the lines cut off the other two, or these.
  for (const bool middleAbove : {true, false}) {
    const double low = middleAbove ? 0.4 : 0.0;
    const double high = middleAbove ? 2.0 : 1.1;
    const auto lines = contourLines(mesh, {high, low, low, high}, {1.0});
    ASSERT_EQ(lines.size(), 2U);
    for (const ContourLine& line : lines) {
      const Point2D middle{(line.points[0].x + line.points[1].x) / 2.0,
                           (line.points[0].z + line.points[1].z) / 2.0};
      const bool nearHighCorner = (middle.x < 0.5) == (middle.z > -0.5);
      EXPECT_EQ(nearHighCorner, !middleAbove);
    }
  }
}

TEST(ContourLines, meetsCornersThatLieOnTheLevelOnce) {
  const SectionMesh mesh = meshOf(4, 4);
  const auto lines = contourLines(mesh, field(mesh, [](Point2D p) { return p.z; }), {-2.0});
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].points.size(), 5U);
  const auto level = contourLines(mesh, std::vector<double>(25, -2.0), {-2.0});
  EXPECT_TRUE(level.empty());  // a plateau has no line through it
}

TEST(ContourLines, stopsWhereCellsAreNotDrawnOrHaveNoValue) {
  SectionMesh mesh = meshOf(2, 9);
  const auto values = field(mesh, [](Point2D p) { return p.z; });
  mesh.drawn[mesh.cell(1, 4)] = 0;
  auto lines = contourLines(mesh, values, {-1.5});
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_DOUBLE_EQ(length(lines[0]) + length(lines[1]), 8.0);

  mesh.drawn[mesh.cell(1, 4)] = 1;
  auto broken = values;
  broken[mesh.corner(2, 4)] = std::nan("");
  lines = contourLines(mesh, broken, {-1.5, std::nan("")});
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_DOUBLE_EQ(length(lines[0]) + length(lines[1]), 7.0);
}

TEST(CornerMeans, countsDrawnCellsOnly) {
  SectionMesh mesh = meshOf(2, 2);
  mesh.drawn[mesh.cell(1, 1)] = 0;
  const auto means = cornerMeans(mesh, {1.0, 2.0, 3.0, 1000.0});
  EXPECT_EQ(means[mesh.corner(0, 0)], 1.0);
  EXPECT_EQ(means[mesh.corner(0, 1)], 1.5);
  EXPECT_EQ(means[mesh.corner(1, 1)], 2.0);
  EXPECT_EQ(means[mesh.corner(1, 2)], 2.0);
  EXPECT_TRUE(std::isnan(means[mesh.corner(2, 2)]));
}

TEST(EquallySpacedValues, divideTheRangeIntoEqualParts) {
  EXPECT_THAT(equallySpacedValues({300.0, 2100.0}, 5),
              ElementsAre(600.0, 900.0, 1200.0, 1500.0, 1800.0));
  EXPECT_TRUE(equallySpacedValues({300.0, 2100.0}, 0).empty());
  EXPECT_TRUE(equallySpacedValues({300.0, 2100.0}, -2).empty());
  EXPECT_TRUE(equallySpacedValues({300.0, 300.0}, 3).empty());
}

}  // namespace
}  // namespace talvesk

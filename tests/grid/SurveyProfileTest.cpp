#include "grid/SurveyProfile.h"

#include <limits>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using Strings = std::vector<std::vector<Point2D>>;

TEST(SurveyProfile, collectsEveryPositionOnceInOrder) {
  const Strings strings = {{{4.0, 14.0}, {2.0, 12.0}, {2.0, 99.0}, {0.0, 10.0}},
                           {{4.0, 98.0}, {9.0, 19.0}}};
  const SurveyProfile p = measureSurvey(strings, {{-3.0, 7.0}, {2.0, 97.0}, {6.5, 16.5}});
  EXPECT_EQ(p.x, (std::vector<double>{-3.0, 0.0, 2.0, 4.0, 6.5, 9.0}));
  EXPECT_EQ(p.elevation, (std::vector<double>{7.0, 10.0, 12.0, 14.0, 16.5, 19.0}));
  EXPECT_EQ(p.minX, -3.0);
  EXPECT_EQ(p.maxX, 9.0);
  EXPECT_EQ(p.xOffset, 4.0);       // the leftmost point sits at 1 m
  EXPECT_EQ(p.arrayLength, 14.0);  // a metre more at each end
}

TEST(SurveyProfile, takesTheElevationThatItMetFirst) {
  std::vector<Point2D> string, shots;
  for (int i = 0; i < 50; ++i) {
    string.push_back({2.0 * i, 10.0});
    shots.push_back({98.0 - 2.0 * i, 20.0});
  }
  EXPECT_EQ(measureSurvey({string}, shots).elevation, std::vector<double>(50, 10.0));
  EXPECT_EQ(measureSurvey({shots, string}, {}).elevation, std::vector<double>(50, 20.0));
}

TEST(SurveyProfile, measuresTheSmallestSpacingInsideAString) {
  const struct {
    const char* name;
    Strings strings;
    std::vector<Point2D> shots;
    double spacing, cellSize;
  } cases[] = {
      {"smallest of all strings", {{{0, 0}, {5, 0}}, {{0, 0}, {3, 0}, {7, 0}}}, {}, 3.0, 0.75},
      {"not between strings", {{{0, 0}, {5, 0}}, {{5.1, 0}, {10.1, 0}}}, {}, 5.0, 1.25},
      {"not to shots", {{{0, 0}, {5, 0}}}, {{0.1, 0}}, 5.0, 1.25},
      {"neighbours in the list, not on the line", {{{0, 0}, {9, 0}, {2, 0}}}, {}, 7.0, 1.75},
      {"backwards", {{{10, 0}, {8, 0}, {5, 0}}}, {}, 2.0, 0.5},
      {"a place taken twice does not count", {{{1, 0}, {1, 0}, {4, 0}}}, {}, 3.0, 0.75},
      {"to the centimetre", {{{0, 0}, {1.5, 0}}}, {}, 1.5, 0.38},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const SurveyProfile p = measureSurvey(c.strings, c.shots);
    EXPECT_DOUBLE_EQ(p.minSpacing, c.spacing);
    EXPECT_DOUBLE_EQ(p.proposedCellSize, c.cellSize);
    EXPECT_TRUE(p.hasGeometry());
  }
}

TEST(SurveyProfile, hasNoGeometryWithoutTwoPlaces) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const Strings none[] = {
      {}, {{}}, {{{0, 0}}}, {{{1, 0}, {1, 5}}}, {{{1, 0}}, {{2, 0}}}, {{{nan, 0}, {nan, 0}}}};
  for (const Strings& strings : none) {
    EXPECT_FALSE(measureSurvey(strings, {{0, 0}, {10, 0}}).hasGeometry());
  }
}

TEST(SurveyProfile, runsTheSurfaceThroughEveryPointInGridCoordinates) {
  const SurveyProfile p = measureSurvey({{{10.0, 5.0}, {20.0, 7.0}}}, {{14.0, 9.0}});
  const Splines::LinearSpline surface = p.surface();
  const double table[][2] = {{1.0, 5.0},  {3.0, 7.0}, {5.0, 9.0},
                             {11.0, 7.0}, {0.0, 5.0}, {12.0, 7.0}};
  for (const auto& [x, elevation] : table) EXPECT_DOUBLE_EQ(surface(x), elevation) << x;
}

}  // namespace
}  // namespace talvesk

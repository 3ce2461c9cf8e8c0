#include "grid/VelocityLayers.h"
#include "support/ConsoleCapture.h"
#include "support/TestGrids.h"

#include <limits>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using testing::ConsoleCapture;
using ::testing::HasSubstr;
using ::testing::SizeIs;

bool operator==(const VelocityLayer& a, const VelocityLayer& b) {
  return a.initialDepth == b.initialDepth && a.initialVelocity == b.initialVelocity &&
         a.finalDepth == b.finalDepth && a.finalVelocity == b.finalVelocity;
}

TEST(VelocityLayers, splitTheLastAtItsMiddle) {
  std::vector<VelocityLayer> layers = {defaultLayer(30.0)};
  EXPECT_TRUE((layers[0] == VelocityLayer{0.0, 300.0, 30.0, 2500.0}));
  splitLastLayer(layers);
  ASSERT_THAT(layers, SizeIs(2));
  EXPECT_TRUE((layers[0] == VelocityLayer{0.0, 300.0, 15.0, 1400.0}));
  EXPECT_TRUE((layers[1] == VelocityLayer{15.0, 1400.0, 30.0, 2500.0}));
  splitLastLayer(layers);
  ASSERT_THAT(layers, SizeIs(3));
  EXPECT_TRUE((layers[1] == VelocityLayer{15.0, 1400.0, 22.5, 1950.0}));
  EXPECT_TRUE((layers[2] == VelocityLayer{22.5, 1950.0, 30.0, 2500.0}));
}

TEST(VelocityLayers, truncateTheHalvedVelocitySum) {
  std::vector<VelocityLayer> layers = {{0.0, 300.0, 10.0, 501.0}};
  splitLastLayer(layers);
  EXPECT_EQ(layers.front().finalVelocity, 400.0);
  std::vector<VelocityLayer> none;
  splitLastLayer(none);
  EXPECT_TRUE(none.empty());
}

TEST(VelocityLayers, areTakenOnlyWhenTheyHaveThickness) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const auto accepted = acceptedLayers({{5.0, 1.0, 5.0, 1.0},
                                        {0.0, 2.0, 5.0, 2.0},
                                        {-1.0, 3.0, 5.0, 3.0},
                                        {6.0, 4.0, 5.0, 4.0},
                                        {nan, 5.0, 5.0, 5.0},
                                        {5.0, 6.0, 9.0, 6.0}});
  ASSERT_THAT(accepted, SizeIs(2));
  EXPECT_EQ(accepted[0].initialVelocity, 2.0);
  EXPECT_EQ(accepted[1].initialVelocity, 6.0);
}

TEST(VelocityLayers, giveThreePointsEachToTheSpline) {
  const auto spline = layerSpline({{0.0, 300.0, 10.0, 900.0}, {10.0, 1200.0, 30.0, 2000.0}});
  EXPECT_THAT(spline.X(), ::testing::ElementsAre(0.0, 5.0, 10.0 - 0.01, 10.0, 20.0, 30.0 - 0.01));
  EXPECT_THAT(spline.Y(), ::testing::ElementsAre(300.0, 600.0, 900.0, 1200.0, 1600.0, 2000.0));
  EXPECT_THROW((void)layerSpline({}), std::runtime_error);
}

TEST(LayeredGrid, takesTheSplinesVelocityAtTheTopOfEveryRow) {
  const ConsoleCapture console;
  const auto current = testing::roughGrid({8, 12, 3, 2.5}, 3.0);
  const auto surface = testing::hills(30.0, 3.0);
  const std::vector<VelocityLayer> layers = {{0.0, 400.0, 8.0, 900.0}, {8.0, 900.0, 15.0, 1300.0}};
  std::unique_ptr<Grid> grid;
  ASSERT_TRUE(buildLayeredGrid(*current, layers, surface, grid).ok());
  ASSERT_NE(grid, nullptr);
  EXPECT_EQ(grid->righe(), 8U);
  EXPECT_EQ(grid->col(), 12U);
  EXPECT_EQ(grid->nV(), 3U);
  EXPECT_EQ(grid->aLato(), 2.5);
  const auto spline = layerSpline(layers);
  for (std::uint32_t row = 0; row < 8; ++row) {  // the last rows lie below the layers
    for (const std::uint32_t column : {0U, 11U}) {
      EXPECT_EQ(grid->slowness(grid->cellIndex(row, column)), 1.0 / spline(row * 2.5)) << row;
    }
  }
  EXPECT_NEAR(grid->velocity(grid->cellIndex(0, 5)), 400.0, 1e-9);
}

struct Impossible {
  std::vector<VelocityLayer> layers;
  const char* message;
};

class ImpossibleLayers : public ::testing::TestWithParam<Impossible> {};

TEST_P(ImpossibleLayers, leaveTheGridAndSayWhy) {
  const ConsoleCapture console;
  const auto current = testing::roughGrid({8, 12, 3, 2.5}, 3.0);
  const auto surface = testing::hills(30.0, 3.0);
  auto grid = testing::roughGrid({1, 2, 3, 1.0}, 0.0);
  const Grid* before = grid.get();
  const Status status = buildLayeredGrid(*current, GetParam().layers, surface, grid);
  EXPECT_FALSE(status.ok());
  EXPECT_THAT(status.message(), HasSubstr(GetParam().message));
  EXPECT_EQ(grid.get(), before);
}

const double kInfinity = std::numeric_limits<double>::infinity();

INSTANTIATE_TEST_SUITE_P(
    Lists, ImpossibleLayers,
    ::testing::Values(
        Impossible{{}, "No layer is left"},                                              //
        Impossible{{{5.0, 300.0, 5.0, 400.0}}, "No layer is left"},                      //
        Impossible{{{0.0, 2000.0, 5.0, 500.0}}, "m/s at a depth of 7.5 m"},              // falls on
        Impossible{{{0.0, 0.0, 20.0, 900.0}}, "a velocity of 0 m/s at a depth of 0 m"},  //
        Impossible{{{0.0, 300.0, 10.0, 500.0}, {4.0, 500.0, 20.0, 900.0}}, "without overlap"},
        Impossible{{{0.0, 300.0, 0.015, 500.0}}, "more than 0.02 m thick"},
        Impossible{{{0.0, 300.0, kInfinity, 500.0}}, "no velocity"}));

}  // namespace
}  // namespace talvesk

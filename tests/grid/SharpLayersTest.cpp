#include "grid/SharpLayers.h"
#include "support/TestGrids.h"

#include <limits>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using ::testing::HasSubstr;

const std::vector<VelocityLayer> kJump = {{0.0, 400.0, 4.0, 400.0}, {4.0, 2400.0, 20.0, 2400.0}};

TEST(SharpLayers, haveTheirOwnVelocitiesAndGradeTheirJumps) {
  constexpr double kNoEnd = std::numeric_limits<double>::infinity();
  const std::vector<VelocityLayer> thin = {
      {0.0, 400.0, 4.0, 400.0}, {4.0, 1000.0, 5.0, 1000.0}, {5.0, 3000.0, kNoEnd, 3000.0}};
  const std::vector<VelocityLayer> growing = {{1.0, 300.0, 3.0, 500.0}, {5.0, 900.0, 9.0, 1300.0}};
  struct Case {
    const char* what;
    std::vector<VelocityLayer> layers;
    double thickness, depth, velocity;
  };
  const Case cases[] = {
      {"above a sharp jump", kJump, 0.0, 3.999, 400.0},
      {"below it", kJump, 0.0, 4.0, 2400.0},
      {"below the last layer", kJump, 0.0, 90.0, 2400.0},
      {"begin of a graded jump", kJump, 2.0, 3.0, 400.0},
      {"its middle", kJump, 2.0, 4.0, 1400.0},
      {"three quarters down", kJump, 2.0, 4.5, 1900.0},
      {"its end", kJump, 2.0, 5.0, 2400.0},
      {"grading keeps within the first layer", kJump, 30.0, 0.0, 400.0},
      {"and keeps the middle where it was", kJump, 30.0, 4.0, 1400.0},
      {"a thin layer is shared by both jumps", thin, 8.0, 4.5, 1000.0},
      {"its upper jump", thin, 8.0, 4.0, 700.0},
      {"its lower jump", thin, 8.0, 5.0, 2000.0},
      {"above the first layer", growing, 0.0, 0.2, 300.0},
      {"within a layer that grows", growing, 0.0, 2.0, 400.0},
      {"between layers that do not meet", growing, 0.0, 4.0, 500.0},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.what);
    EXPECT_NEAR(velocityInLayers(c.layers, c.depth, c.thickness), c.velocity, 1e-9);
  }
}

TEST(SharpLayers, carryJumpsThatTheSplineCannot) {
  const std::unique_ptr<Grid> current = testing::roughGrid({20, 4, 3, 1.0}, 0.0);
  const std::vector<VelocityLayer> layers = {{0.0, 300.0, 1.0, 300.0}, {1.0, 6000.0, 20.0, 6000.0}};
  ASSERT_FALSE(checkLayers(current->geometry().size(), layers).ok());
  std::unique_ptr<Grid> grid;
  ASSERT_TRUE(buildSharpGrid(*current, layers, 0.0, grid).ok());
  for (std::uint32_t cell = 0; cell < grid->cellCount(); ++cell) {
    EXPECT_DOUBLE_EQ(grid->velocity(cell), cell < 4 ? 300.0 : 6000.0) << cell;
  }
  EXPECT_EQ(grid->sharedGeometry(), current->sharedGeometry());
}

TEST(SharpLayers, areRefusedWithTheReason) {
  struct Case {
    std::vector<VelocityLayer> layers;
    const char* reason;
  };
  const Case cases[] = {{{}, "No layer is left"},
                        {{{0.0, 0.0, 4.0, 500.0}}, "velocity of 0 m/s"},
                        {{{0.0, 300.0, 4.0, 300.0}, {3.0, 900.0, 9.0, 900.0}}, "begins at 3 m"}};
  for (const Case& c : cases) {
    EXPECT_THAT(checkSharpLayers(c.layers).message(), HasSubstr(c.reason));
    EXPECT_TRUE(sampleSharpLayers(c.layers, 10.0, 0.0, 5).depths.empty());
  }
}

}  // namespace
}  // namespace talvesk

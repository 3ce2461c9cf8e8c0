#include "TestRefraction.h"
#include "tomo/fitted/GroundColumn.h"

#include <cmath>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

TEST(GroundColumn, takesTheTimeOfItsVelocities) {
  const GroundColumn column = {
      {2.0, 500, 500}, {6.0, 500, 1300}, {6.0, 900, 900}, {9.0, 2000, 2000}};
  const double growing = std::log(1300.0 / 500.0) / 200.0;
  struct Case {
    double depth, time;
  };
  for (const Case& c : {Case{0, 0}, Case{-1, 0}, Case{1, 0.002}, Case{2, 0.004},
                        Case{4, 0.004 + std::log(900.0 / 500.0) / 200.0}, Case{6, 0.004 + growing},
                        Case{8, 0.005 + growing}, Case{29, 0.0155 + growing}}) {
    EXPECT_NEAR(verticalTime(column, c.depth), c.time, 1e-12) << c.depth;
  }
}

TEST(GroundColumn, keepsTheDepthOfAnInterfaceThatCutsACell) {
  const auto grid = testing::lineGrid();
  const auto at = [](double x) {
    return GroundColumn{{x < 48 ? 3.2 : 60.0, 500, 500}, {99, 2000, 2000}};
  };
  const std::vector<double> cells = cellSlownesses(*grid, at, {});
  const auto down = [&](std::uint32_t column) {
    double time = 0.0;
    for (std::uint32_t row = 0; row < grid->righe(); ++row)
      time += 0.5 * cells[row * grid->col() + column];
    return time;
  };
  EXPECT_NEAR(down(20), 3.2 / 500 + 36.8 / 2000, 1e-9);
  EXPECT_NEAR(down(150), 40.0 / 500, 1e-9);
}

TEST(GroundColumn, staysWithinTheBounds) {
  const auto grid = testing::lineGrid();
  const auto at = [](double) { return GroundColumn{{5.0, 20, 20}, {9.0, 30000, 30000}}; };
  const std::vector<double> cells = cellSlownesses(*grid, at, {100, 4000});
  EXPECT_EQ(cells.front(), 1.0 / 100);
  EXPECT_EQ(cells.back(), 1.0 / 4000);
}

}  // namespace
}  // namespace talvesk

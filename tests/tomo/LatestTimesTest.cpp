#include "support/TestGrids.h"
#include "tomo/RayBounds.h"
#include "tomo/ShortestPaths.h"

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using Nodes = std::vector<std::uint32_t>;

struct Case {
  const char* name;
  GridSize size;
  double relief;
  double roughness;
};

const Case kCases[] = {
    {"rough hills", {30, 60, 6, 1.0}, 3.0, 0.5},
    {"level ground full of ties", {20, 40, 6, 1.0}, 0.0, 0.0},
    {"steps that binary cannot hold", {20, 40, 6, 0.3}, 0.0, 0.0},
    {"steep ground", {20, 40, 6, 1.0}, 60.0, 0.5},
    {"a surface that leaps by kilometres", {20, 40, 6, 1.0}, 1e7, 0.5},
    {"very rough ground", {25, 50, 8, 1.0}, 2.0, 1.9},
    {"ten nodes per side", {12, 30, 10, 2.0}, 4.0, 0.3},
    {"three nodes per side", {20, 40, 3, 1.0}, 2.0, 0.4},
    {"no side nodes", {20, 40, 2, 1.0}, 2.0, 0.4},
    {"one row", {1, 40, 6, 1.0}, 4.0, 0.3},
    {"one column", {20, 1, 6, 1.0}, 4.0, 0.3},
};

void expectSameRay(const Ray& a, const Ray& b) {
  EXPECT_EQ(a.nodes, b.nodes);
  ASSERT_EQ(a.steps.size(), b.steps.size());
  for (std::size_t i = 0; i < a.steps.size(); ++i) {
    EXPECT_EQ(a.steps[i].target, b.steps[i].target);
    EXPECT_EQ(a.steps[i].cell, b.steps[i].cell);
    EXPECT_EQ(a.steps[i].time, b.steps[i].time);
    EXPECT_EQ(a.steps[i].length, b.steps[i].length);
  }
}

/// Every seventh node of the surface, the ends among them.
Nodes receiversOf(const Grid& grid) {
  Nodes nodes;
  const std::uint32_t last = grid.geometry().lineNodeCount() - 1;
  for (std::uint32_t node = 0; node < last; node += 7) nodes.push_back(node);
  nodes.push_back(last);
  return nodes;
}

/// \return the rays, from a search of all nodes
std::vector<Nodes> expectSameRays(const Grid& grid, std::uint32_t source, const RayBounds& bounds) {
  const Nodes receivers = receiversOf(grid);
  std::vector<WantedRay> wanted;
  for (std::size_t i = 0; i < receivers.size(); ++i) {
    wanted.push_back({receivers[i], bounds.atMost(source, receivers[i], i)});
  }
  ShortestPaths whole, bounded;
  whole.search(grid, source);
  bounded.search(grid, source, wanted, bounds.latest());
  std::vector<Nodes> rays;
  for (std::size_t i = 0; i < receivers.size(); ++i) {
    SCOPED_TRACE("receiver " + std::to_string(receivers[i]));
    EXPECT_LE(whole.distance(receivers[i]), wanted[i].atMost * (1.0 + 1e-12));
    EXPECT_EQ(whole.distance(receivers[i]), bounded.distance(receivers[i]));
    const Ray ray = whole.ray(receivers[i]);
    expectSameRay(bounded.ray(receivers[i]), ray);
    rays.push_back(ray.nodes);
  }
  return rays;
}

TEST(LatestTimes, leaveRaysAsTheyAreToTheLastBit) {
  for (const Case& c : kCases) {
    const auto before = testing::roughGrid(c.size, c.relief, c.roughness, 5);
    const auto after = testing::roughGrid(c.size, c.relief, c.roughness, 6);
    const std::uint32_t last = before->geometry().lineNodeCount() - 1;
    for (const std::uint32_t source : {0U, 1U, last / 3, last / 2, last}) {
      SCOPED_TRACE(std::string(c.name) + ", source " + std::to_string(source));
      const std::vector<Nodes> none;
      const std::vector<Nodes> rays = expectSameRays(*before, source, {*before, none});
      // The rays through one model bound those through the next, and through the same.
      expectSameRays(*after, source, {*after, rays});
      expectSameRays(*before, source, {*before, rays});
    }
  }
}

TEST(LatestTimes, leaveRaysAcrossExtremeContrasts) {
  const auto grid = testing::roughGrid({20, 40, 6, 1.0}, 3.0, 0.5);
  for (std::uint32_t cell = 0; cell < grid->cellCount(); ++cell) {
    if (cell % 7 == 3) grid->setSlowness(cell, 1e60);
    if (cell % 11 == 5) grid->setSlowness(cell, 1e-60);
  }
  const std::vector<Nodes> none;
  const std::vector<Nodes> rays = expectSameRays(*grid, 50, {*grid, none});
  expectSameRays(*grid, 50, {*grid, rays});
}

TEST(LatestTimes, passOverNodesThatNoRayNeeds) {
  const auto grid = testing::roughGrid({40, 60, 6, 1.0}, 1.0, 0.1);
  const std::vector<Nodes> none;
  const RayBounds bounds(*grid, none);
  const std::uint32_t receiver = grid->geometry().lineNodeCount() / 2 + 40;
  const std::uint32_t source = grid->geometry().lineNodeCount() / 2;
  std::vector<double> latest;
  bounds.latest().find({{receiver, bounds.atMost(source, receiver, 0)}}, latest);
  ShortestPaths whole;
  whole.search(*grid, source);
  std::uint32_t useful = 0;
  for (std::uint32_t cell = 0; cell < grid->cellCount(); ++cell) {
    const std::uint32_t corner =
        grid->geometry().lineNode(cell / grid->col(), cell % grid->col() * (grid->nV() - 1));
    if (whole.distance(corner) < latest[cell]) ++useful;
  }
  EXPECT_GT(useful, 0U);
  EXPECT_LT(useful, grid->cellCount() / 4);
}

TEST(RayBounds, takeNothingForAWayThatIsNone) {
  const auto grid = testing::roughGrid({10, 20, 6, 1.0}, 2.0, 0.3);
  const std::uint32_t last = grid->geometry().lineNodeCount() - 1;
  ShortestPaths paths;
  paths.search(*grid, 0);
  const Nodes ray = paths.ray(last).nodes;
  Nodes jumped = ray;
  jumped.erase(jumped.begin() + 1, jumped.end() - 1);
  Nodes along = {0};  // nodes of one side of a cell have no edge between them
  for (std::uint32_t node = 1; node <= last; ++node) along.push_back(node);
  Nodes beyond = ray;
  beyond[1] = grid->nodeCount();
  const std::vector<Nodes> earlier = {ray, jumped, along, beyond, {}, {last, 0}, {0}};
  const RayBounds bounds(*grid, earlier);
  const double level = bounds.atMost(0, last, earlier.size());
  EXPECT_NEAR(bounds.atMost(0, last, 0), paths.distance(last), 1e-15);
  EXPECT_GT(level, paths.distance(last));
  for (std::size_t i = 1; i < earlier.size(); ++i) EXPECT_EQ(bounds.atMost(0, last, i), level) << i;
}

}  // namespace
}  // namespace talvesk

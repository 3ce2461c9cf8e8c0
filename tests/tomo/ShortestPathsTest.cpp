#include "grid/GridBuilder.h"
#include "support/ReferenceSearch.h"
#include "support/TestGrids.h"
#include "tomo/SearchField.h"
#include "tomo/ShortestPaths.h"

#include <gtest/gtest.h>

namespace talvesk {
namespace {

/// Every distance, predecessor and predecessor edge, to the last bit.
void expectSameAsReference(const Grid& grid, std::uint32_t source) {
  const reference::Graph graph(grid);
  const reference::Paths expected = reference::search(graph, source);
  ShortestPaths paths;
  paths.search(grid, source);
  int wrong = 0;
  for (std::uint32_t n = 0; n < grid.nodeCount() && wrong < 5; ++n) {
    GridEdge edge;
    const std::uint32_t predecessor = paths.predecessor(n, edge);
    const GridEdge& wanted = expected.predecessorEdge[n];
    const bool same = paths.distance(n) == expected.distance[n] &&
                      predecessor == expected.predecessor[n] && edge.target == wanted.target &&
                      edge.cell == wanted.cell && edge.time == wanted.time &&
                      edge.length == wanted.length;
    if (same) continue;
    ++wrong;
    ADD_FAILURE() << "node " << n << ": " << paths.distance(n) << " from " << predecessor
                  << " through cell " << edge.cell << ", reference " << expected.distance[n]
                  << " from " << expected.predecessor[n] << " through cell " << wanted.cell;
  }
}

struct Case {
  const char* name;
  GridSize size;
  double relief;
  double roughness;
  std::vector<std::uint32_t> sources;
};

TEST(ShortestPaths, equalTheReferenceToTheLastBit) {
  const std::vector<Case> cases = {
      {"rough hills", {12, 20, 6, 1.0}, 3.0, 0.5, {0, 7, 50, 100}},
      {"level ground full of ties", {10, 15, 6, 1.0}, 0.0, 0.0, {0, 31, 75}},
      {"level ground, steps that binary cannot hold", {10, 15, 6, 0.3}, 0.0, 0.0, {0, 31, 75}},
      {"ten nodes per side", {6, 9, 10, 0.5}, 2.0, 0.3, {0, 40}},
      {"seven nodes per side", {7, 9, 7, 2.0}, 5.0, 1.2, {3, 54}},
      {"eight nodes per side", {7, 9, 8, 1.0}, 3.0, 0.5, {0, 30, 31}},
      {"fifteen nodes per side", {4, 5, 15, 1.0}, 2.0, 0.4, {0, 33}},
      {"more nodes than a word has bits", {3, 4, 41, 1.0}, 2.0, 0.4, {0, 37, 160}},
      {"more nodes than two words have bits", {2, 2, 71, 1.0}, 2.0, 0.4, {35}},
      {"fewer nodes than a vector", {8, 9, 3, 1.0}, 2.0, 0.4, {0, 11}},
      {"no side nodes at all", {8, 9, 2, 1.0}, 2.0, 0.4, {0, 5}},
      {"one cell", {1, 1, 6, 1.0}, 1.0, 0.0, {0, 3, 5}},
      {"one column", {9, 1, 6, 1.0}, 4.0, 0.3, {2}},
      {"one row", {1, 30, 6, 1.0}, 4.0, 0.3, {0, 77}},
      {"steep ground", {10, 20, 6, 1.0}, 60.0, 0.5, {0, 50, 100}},
  };
  for (const Case& c : cases) {
    const auto grid = testing::roughGrid(c.size, c.relief, c.roughness);
    for (const std::uint32_t source : c.sources) {
      SCOPED_TRACE(std::string(c.name) + ", source " + std::to_string(source));
      expectSameAsReference(*grid, source);
    }
  }
}

/// The distances by search id that one of the kernels finds, whatever this processor would choose.
std::vector<double> distancesBy(void (*kernel)(SearchField&, std::uint32_t), const Grid& grid,
                                std::uint32_t level) {
  const GridGeometry& g = grid.geometry();
  SearchField f{};
  f.rows = g.righe();
  f.cols = g.col();
  f.nV = g.nV();
  f.lineNodes = g.lineNodeCount();
  f.h = g.aLato();
  f.lineX = g.lineXData();
  f.lineZ = g.lineZData();
  f.step = g.sideStepData();
  f.slowness = grid.slownesses().data();
  std::vector<double> distance(f.ids(), std::numeric_limits<double>::infinity());
  std::vector<std::uint64_t> queued(std::size_t{3} * f.points(), SearchField::kNotQueued);
  std::vector<std::uint32_t> improved(std::size_t{2} * f.points() * f.words(), 0);
  BucketRing ring;
  f.distance = distance.data();
  f.queued = queued.data();
  f.improved = improved.data();
  f.bucketsPerSecond = 1.0 / 0.002;
  f.ring = &ring;
  ring.reset(4096);
  kernel(f, f.levelId(f.point(1, 3)) + level);
  return distance;
}

TEST(ShortestPaths, areTheSameOnEveryProcessor) {
  for (const std::uint32_t nodes : {6U, 7U, 8U, 10U, 15U, 40U}) {
    const auto grid = testing::roughGrid({6, 9, nodes, 1.0}, 3.0, 0.7);
    const std::vector<double> plain = distancesBy(searchScalar, *grid, nodes - 3);
    EXPECT_EQ(distancesBy(searchBaseline, *grid, nodes - 3), plain) << nodes;
  }
}

TEST(ShortestPaths, equalTheReferenceFromInsideTheGround) {
  const auto grid = testing::roughGrid({8, 8, 6, 1.0}, 3.0, 0.5);
  for (const std::uint32_t source : {60u, 155u, grid->nodeCount() - 1}) {
    expectSameAsReference(*grid, source);
  }
}

// Notches in the surface are filled by the smoothing: below them the next line rises by one node
// step, and the lowest side node falls exactly onto the corner below it.
TEST(ShortestPaths, equalTheReferenceOverEdgesOfNoLength) {
  Splines::LinearSpline notches;
  std::vector<double> x, z;
  for (int i = 0; i <= 60; ++i) {
    x.push_back(i);
    z.push_back(i % 5 == 0 ? 0.0 : 1.0);
  }
  notches.build(x, z);
  const auto geometry = std::make_shared<GridGeometry>(GridSize{6, 12, 6, 5.0}, notches);
  int coincident = 0;
  for (std::uint32_t v = 1; v < 12; ++v) {
    coincident += geometry->sideZ(0, v, 3) == geometry->lineZ(1, v * 5);
  }
  ASSERT_EQ(coincident, 11);

  for (const double contrast : {0.0, 0.5}) {
    std::vector<double> slowness(geometry->cellCount(), 1.0 / 1024.0);
    for (std::size_t c = 0; c < slowness.size(); c += 3) slowness[c] *= 1.0 + contrast;
    const Grid grid(geometry, slowness);
    for (const std::uint32_t source : {0u, 25u, 27u, 60u, geometry->sideNode(0, 5, 3),
                                       geometry->lineNode(1, 25), geometry->lineNode(4, 13)}) {
      SCOPED_TRACE("contrast " + std::to_string(contrast) + ", source " + std::to_string(source));
      expectSameAsReference(grid, source);
    }
  }
}

TEST(ShortestPaths, equalTheReferenceAcrossExtremeContrasts) {
  auto grid = testing::roughGrid({10, 12, 6, 1.0}, 2.0, 0.0);
  for (std::uint32_t c = 0; c < grid->cellCount(); ++c) {
    grid->setSlowness(c, c % 3 == 0 ? 1e-9 : (c % 3 == 1 ? 1.0 : 1e-3));
  }
  expectSameAsReference(*grid, 0);
  expectSameAsReference(*grid, 30);
}

TEST(ShortestPaths, takeTheMemoryThatWasEstimatedForAnyNumberOfNodes) {
  for (const std::uint32_t nodes : {2U, 3U, 4U, 6U, 10U, 40U}) {
    SCOPED_TRACE(nodes);
    const GridSize size{50, 100, nodes, 1.0};
    const auto grid = testing::roughGrid(size, 0.0);
    ShortestPaths paths;
    paths.search(*grid, grid->geometry().lineNodeCount() / 3);
    const double estimated = estimatedGridBytes(size, 1) - estimatedGridBytes(size, 0);
    EXPECT_GE(estimated, 0.95 * static_cast<double>(paths.bytes()));
  }
}

TEST(ShortestPaths, aReceiverAtTheSourceIsARayOfOneNode) {
  const auto grid = testing::roughGrid({3, 3, 6, 1.0}, 1.0);
  ShortestPaths paths;
  paths.search(*grid, 4);
  const Ray ray = paths.ray(4);
  EXPECT_EQ(ray.nodes, std::vector<std::uint32_t>{4});
  EXPECT_TRUE(ray.steps.empty());
  EXPECT_THROW(paths.search(*grid, kNoNode), std::out_of_range);
  EXPECT_THROW(paths.ray(kNoNode), std::out_of_range);
}

// The closed form of a constant gradient: t = 2/k asinh(k x / (2 sqrt(v0 v(0)))) along the surface.
TEST(ShortestPaths, tracedTogetherAreTheSameRays) {
  const struct {
    const char* name;
    GridSize size;
    double relief, roughness;
  } cases[] = {{"rough hills", {20, 40, 6, 1.0}, 3.0, 0.5},
               {"level ground full of ties", {10, 30, 6, 1.0}, 0.0, 0.0},
               {"no side nodes at all", {8, 30, 2, 1.0}, 2.0, 0.4}};
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const auto grid = testing::roughGrid(c.size, c.relief, c.roughness);
    const std::uint32_t last = grid->geometry().lineNodeCount() - 1;
    // Out of order, with one twice, one without a node, and the source.
    std::vector<std::uint32_t> receivers = {7, last, 12, kNoNode, 7, 0, last - 1};
    for (std::uint32_t node = 1; node < last; node += 3) receivers.push_back(node);
    ShortestPaths paths;
    RayTree tree;
    for (const std::uint32_t source : {12U, 0U}) {
      paths.search(*grid, source);
      for (int times = 0; times < 2; ++times) paths.trace(receivers, tree);
      std::vector<double> lengths;
      tree.sumAlong([&](std::uint32_t step) { return tree.lengths[step]; }, lengths);
      std::vector<RayTree::Run> runs;
      std::size_t steps = 0;
      for (std::size_t i = 0; i < receivers.size(); ++i) {
        if (receivers[i] == kNoNode) {
          EXPECT_TRUE(tree.nodesOf(i, runs).empty());
          continue;
        }
        const Ray ray = paths.ray(receivers[i]);
        EXPECT_EQ(tree.nodesOf(i, runs), ray.nodes) << receivers[i];
        std::vector<std::uint32_t> cells, expected;
        for (const RayTree::Run& run : runs) {
          cells.insert(cells.end(), &tree.cells[run.first], tree.cells.data() + run.end);
        }
        double length = 0.0;
        for (const GridEdge& step : ray.steps) {
          expected.push_back(step.cell);
          length += step.length;
        }
        EXPECT_EQ(cells, expected) << receivers[i];
        EXPECT_EQ(tree.sumOf(i, lengths), length) << receivers[i];
        steps += ray.steps.size();
      }
      EXPECT_LT(tree.cells.size(), steps) << "what rays share stands once";
    }
    EXPECT_THROW(paths.trace({grid->nodeCount()}, tree), std::out_of_range);
  }
}

TEST(ShortestPaths, stayWithinTwoPercentOfAGradientsClosedForm) {
  const GridSize size{60, 200, 10, 0.5};
  const auto surface = testing::hills(100.0, 0.0);
  const double v0 = 500.0, k = 40.0;
  std::vector<double> slowness;
  for (std::uint32_t iz = 0; iz < size.righe; ++iz) {
    slowness.insert(slowness.end(), size.col, 1.0 / (v0 + k * (iz + 0.5) * size.aLato));
  }
  Grid grid(std::make_shared<GridGeometry>(size, surface), slowness);
  ShortestPaths paths;
  paths.search(grid, grid.geometry().topNodeIndex(5.0));
  for (const double offset : {10.0, 20.0, 40.0, 60.0}) {
    const double exact = 2.0 / k * std::asinh(k * offset / (2.0 * v0));
    const double time = paths.distance(grid.geometry().topNodeIndex(5.0 + offset));
    EXPECT_NEAR(time / exact, 1.0, 0.02) << offset << " m";
  }
}

}  // namespace
}  // namespace talvesk

#include "grid/Grid.h"
#include "grid/GridGeometry.h"
#include "support/CommaLocale.h"
#include "support/TestGrids.h"

#include <cmath>
#include <limits>
#include <map>
#include <set>
#include <stdexcept>
#include <utility>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

/// The profile smoothed `times` times, entry by entry.
std::vector<double> smoothedBy(std::vector<double> profile, std::uint32_t times) {
  for (std::uint32_t pass = 0; pass < times && profile.size() > 8; ++pass) {
    const std::vector<double> in = profile;
    for (std::size_t c = 4; c <= in.size() - 5; ++c) {
      double mean = 0.0;
      for (int k = -4; k <= 4; ++k) {
        if (k != 0) mean += 0.125 * in[c + k];
      }
      profile[c] = mean;
    }
  }
  return profile;
}

struct SizeCase {
  const char* name;
  GridSize size;
};

const SizeCase kSizes[] = {
    {"the fewest nodes that users choose", {4, 5, 6, 1.0}},
    {"many nodes", {3, 2, 15, 0.5}},
    {"no side nodes", {3, 4, 2, 2.0}},
    {"one side node", {3, 4, 3, 2.0}},
    {"one column", {5, 1, 6, 0.3}},
    {"one row", {1, 6, 7, 0.3}},
};

TEST(GridGeometry, numbersNodesBlockByBlock) {
  for (const SizeCase& c : kSizes) {
    SCOPED_TRACE(c.name);
    const auto grid = testing::roughGrid(c.size, 2.0);
    const std::uint32_t nx = c.size.col, nz = c.size.righe, n = c.size.nV;
    const std::uint32_t block = nx * (n - 1) + 1 + (nx + 1) * (n - 2);
    EXPECT_EQ(grid->nodeCount(), (nz + 1) * (nx * (n - 1) + 1) + nz * (n - 2) * (nx + 1));
    EXPECT_EQ(c.size.nodesAsNumber(), grid->nodeCount());
    for (std::uint32_t iz = 0; iz < nz; ++iz) {
      for (std::uint32_t ix = 0; ix < nx; ++ix) {
        const GridCell cell = grid->cell(iz * nx + ix);
        ASSERT_EQ(cell.top.size(), n);
        ASSERT_EQ(cell.bottom.size(), n);
        ASSERT_EQ(cell.left.size(), n - 2);
        ASSERT_EQ(cell.right.size(), n - 2);
        for (std::uint32_t k = 0; k < n; ++k) {
          EXPECT_EQ(cell.top[k], iz * block + ix * (n - 1) + k);
          EXPECT_EQ(cell.bottom[k], (iz + 1) * block + ix * (n - 1) + k);
        }
        for (std::uint32_t j = 0; j + 2 < n; ++j) {
          EXPECT_EQ(cell.left[j], iz * block + nx * (n - 1) + 1 + j * (nx + 1) + ix);
          EXPECT_EQ(cell.right[j], cell.left[j] + 1);
        }
      }
    }
  }
}

TEST(GridGeometry, neighbouringCellsShareTheNodesOfTheirCommonSide) {
  for (const SizeCase& c : kSizes) {
    SCOPED_TRACE(c.name);
    const auto grid = testing::roughGrid(c.size, 2.0);
    for (std::uint32_t cell = 0; cell < grid->cellCount(); ++cell) {
      const GridCell here = grid->cell(cell);
      if ((cell + 1) % c.size.col != 0) {
        const GridCell right = grid->cell(cell + 1);
        EXPECT_EQ(here.right, right.left);
        EXPECT_EQ(here.top.back(), right.top.front());
        EXPECT_EQ(here.bottom.back(), right.bottom.front());
      }
      if (cell + c.size.col < grid->cellCount()) {
        EXPECT_EQ(here.bottom, grid->cell(cell + c.size.col).top);
      }
    }
  }
}

TEST(GridGeometry, hangsNodesOnTheSmoothedLines) {
  for (const SizeCase& c : kSizes) {
    SCOPED_TRACE(c.name);
    const auto surface = testing::hills(c.size.col * c.size.aLato, 3.0);
    const GridGeometry g(c.size, surface);
    const std::uint32_t steps = c.size.nV - 1;
    const double h = c.size.aLato, d = h / steps;
    std::vector<double> profile;
    for (std::uint32_t i = 0; i <= c.size.col * steps; ++i)
      profile.push_back(surface(i * h / steps));
    EXPECT_EQ(g.surfaceProfile(), profile);

    for (std::uint32_t iz = 0; iz <= c.size.righe; ++iz) {
      const std::vector<double> line = smoothedBy(profile, iz);
      for (std::uint32_t i = 0; i < line.size(); ++i) {
        EXPECT_NEAR(g.nodeX(g.lineNode(iz, i)), i * d, 1e-12);
        EXPECT_NEAR(g.nodeZ(g.lineNode(iz, i)), iz * h - line[i], 1e-11);
      }
      if (iz == c.size.righe) continue;
      for (std::uint32_t v = 0; v <= c.size.col; ++v) {
        for (std::uint32_t j = 0; j + 2 < c.size.nV; ++j) {
          EXPECT_NEAR(g.nodeX(g.sideNode(iz, v, j)), v * h, 1e-12);
          // Straight down from the upper corner, whatever the elevation of the lower one.
          EXPECT_NEAR(g.nodeZ(g.sideNode(iz, v, j)), iz * h - line[v * steps] + (j + 1) * d, 1e-11);
        }
      }
    }
  }
}

TEST(GridGeometry, placesCentresBetweenOppositeCorners) {
  const auto grid = testing::roughGrid({3, 4, 6, 2.0}, 5.0);
  for (std::uint32_t c = 0; c < grid->cellCount(); ++c) {
    const GridCell cell = grid->cell(c);
    const GridNode topLeft = grid->node(cell.top.front());
    const GridNode topRight = grid->node(cell.top.back());
    const GridNode bottomRight = grid->node(cell.bottom.back());
    EXPECT_EQ(grid->cellCentre(c).x, (topLeft.x + topRight.x) / 2.0);
    EXPECT_EQ(grid->cellCentre(c).z, (topLeft.z + bottomRight.z) / 2.0);
  }
}

TEST(GridGeometry, keepsLevelGroundLevelAtEveryDepth) {
  Splines::LinearSpline level;
  level.build({0.0, 100.0}, {50.0, 50.0});
  const GridGeometry g({6, 20, 6, 2.0}, level);
  for (std::uint32_t line = 0; line <= 6; ++line) {
    for (std::uint32_t i = 0; i < g.lineNodeCount(); ++i) {
      ASSERT_NEAR(g.lineZ(line, i), line * 2.0 - 50.0, 1e-12);
    }
  }
}

TEST(GridGeometry, smoothsAllButFourEntriesAtEachEnd) {
  // Powers of two, so that every mean tells which entries went into it.
  std::vector<double> in;
  for (int i = 0; i < 20; ++i) in.push_back(std::ldexp(1.0, i));
  std::vector<double> out;
  for (const std::size_t length : {0, 1, 3, 4, 8, 9, 10, 20}) {
    SCOPED_TRACE(length);
    const std::vector<double> part(in.begin(), in.begin() + static_cast<std::ptrdiff_t>(length));
    smoothProfile(part, out);
    ASSERT_EQ(out.size(), length);
    for (std::size_t c = 0; c < length; ++c) {
      double wanted = part[c];
      if (c >= 4 && c + 5 <= length) {
        wanted = -part[c];
        for (std::size_t k = c - 4; k <= c + 4; ++k) wanted += part[k];
        wanted /= 8.0;
      }
      EXPECT_EQ(out[c], wanted) << "entry " << c;
    }
  }
}

TEST(GridGeometry, findsTheTopNodeAtOrLeftOfAPosition) {
  Splines::LinearSpline level;
  level.build({0.0, 100.0}, {0.0, 0.0});
  const GridGeometry g({2, 10, 6, 1.0}, level);  // 51 nodes, 0.2 m apart
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinity = std::numeric_limits<double>::infinity();
  const struct {
    double x;
    std::uint32_t node;
  } cases[] = {
      {0.0, 0},        {0.19, 0},        {0.21, 1},           {1.0, 5},          {1.39, 6},
      {9.99, 49},      {10.0, 50},       {10.1, 50},          {10.21, kNoNode},  {11.0, kNoNode},
      {-1.0, kNoNode}, {1e300, kNoNode}, {infinity, kNoNode}, {-1e300, kNoNode}, {nan, kNoNode},
  };
  for (const auto& c : cases) EXPECT_EQ(g.topNodeIndex(c.x), c.node) << "x = " << c.x;
}

TEST(GridGeometry, refusesSizesThatMakeNoGrid) {
  Splines::LinearSpline level;
  level.build({0.0, 100.0}, {0.0, 0.0});
  const std::uint32_t most = std::numeric_limits<std::uint32_t>::max();
  const GridSize sizes[] = {
      {2, 2, 0, 1.0},
      {2, 2, 1, 1.0},
      {2, 2, 6, 0.0},
      {2, 2, 6, -1.0},
      {2, 2, 6, std::numeric_limits<double>::quiet_NaN()},
      {2, 2, 6, std::numeric_limits<double>::infinity()},
      {most, most, 6, 1.0},
      {most, most, most, 1.0},
      {65535, 65537, 6, 1.0},
      {(1U << 30) - 1, 1U << 30, 17, 1.0},  // a product that wraps around to little
  };
  for (const GridSize& size : sizes) {
    EXPECT_THROW(GridGeometry(size, level), std::invalid_argument)
        << size.righe << " x " << size.col << ", " << size.nV << " nodes, " << size.aLato << " m";
  }
}

TEST(GridGeometry, standsWithoutRows) {
  Splines::LinearSpline level;
  level.build({0.0, 100.0}, {3.0, 3.0});
  const Grid grid(std::make_shared<GridGeometry>(GridSize{0, 10, 6, 1.0}, level), {});
  EXPECT_EQ(grid.cellCount(), 0u);
  EXPECT_EQ(grid.nodeCount(), 51u);
  EXPECT_EQ(grid.node(50).z, -3.0);
  EXPECT_TRUE(grid.node(50).edges.empty());
}

// --- Edges

using EdgeList = std::vector<std::pair<std::uint32_t, std::uint32_t>>;  ///< target and cell

/// The edges of every node, by going through the pairs of sides of every cell.
std::map<std::uint32_t, EdgeList> edgesCellByCell(const Grid& grid) {
  std::map<std::uint32_t, EdgeList> edges;
  for (std::uint32_t index = 0; index < grid.cellCount(); ++index) {
    const GridCell cell = grid.cell(index);
    const auto &t = cell.top, &l = cell.left, &r = cell.right, &b = cell.bottom;
    const auto join = [&](const auto& from, const auto& to) {
      for (const std::uint32_t a : from) {
        for (const std::uint32_t target : to) edges[a].push_back({target, index});
      }
    };
    const auto both = [&](const auto& one, const auto& other) {
      join(one, other);
      join(other, one);
    };
    both(t, l);
    both(t, r);
    both(t, b);
    both(b, l);
    both(r, l);
    both(r, b);
    both(l, b);
  }
  return edges;
}

TEST(Grid, joinsSidesInTheOrderThatDecidesBetweenEqualPaths) {
  for (const SizeCase& c : kSizes) {
    SCOPED_TRACE(c.name);
    const auto grid = testing::roughGrid(c.size, 2.0);
    const auto expected = edgesCellByCell(*grid);
    std::size_t total = 0;
    for (std::uint32_t n = 0; n < grid->nodeCount(); ++n) {
      const GridNode node = grid->node(n);
      EdgeList edges;
      for (const GridEdge& e : node.edges) {
        edges.push_back({e.target, e.cell});
        const GridNode target = grid->node(e.target);
        ASSERT_DOUBLE_EQ(e.length, std::hypot(target.x - node.x, target.z - node.z));
        ASSERT_EQ(e.time, e.length * grid->slowness(e.cell));
      }
      ASSERT_EQ(edges, expected.count(n) ? expected.at(n) : EdgeList{}) << "node " << n;
      total += edges.size();
    }
    const std::size_t n = c.size.nV;
    EXPECT_EQ(total, grid->cellCount() * (14 * n * n - 28 * n + 8));
  }
}

TEST(Grid, doublesTheEdgesBetweenLeftAndBottomOnly) {
  const auto grid = testing::roughGrid({1, 1, 6, 1.0}, 0.0);
  const GridCell cell = grid->cell(0);
  const std::set<std::uint32_t> left(cell.left.begin(), cell.left.end());
  const std::set<std::uint32_t> bottom(cell.bottom.begin(), cell.bottom.end());
  std::map<std::pair<std::uint32_t, std::uint32_t>, int> counts;
  std::size_t total = 0;
  for (std::uint32_t n = 0; n < grid->nodeCount(); ++n) {
    for (const GridEdge& e : grid->node(n).edges) ++counts[{n, e.target}], ++total;
  }
  EXPECT_EQ(total, 344u);
  for (const auto& [ends, count] : counts) {
    const auto [a, b] = ends;
    const bool leftBottom =
        (left.count(a) && bottom.count(b)) || (left.count(b) && bottom.count(a));
    EXPECT_EQ(count, leftBottom ? 2 : 1) << a << " to " << b;
  }
}

TEST(Grid, drawsEveryCellAtFirstAndRefusesOtherLengths) {
  const auto grid = testing::roughGrid({3, 4, 6, 1.0}, 1.0);
  for (std::uint32_t c = 0; c < grid->cellCount(); ++c) EXPECT_TRUE(grid->draw(c));
  EXPECT_THROW(Grid(grid->sharedGeometry(), std::vector<double>(11, 1.0)), std::invalid_argument);
  EXPECT_THROW(grid->cell(12), std::out_of_range);
  EXPECT_THROW(grid->node(grid->nodeCount()), std::out_of_range);
}

TEST(Grid, namesTheFirstCellWithoutAVelocity) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double infinity = std::numeric_limits<double>::infinity();
  auto grid = testing::roughGrid({3, 4, 6, 1.0}, 1.0);
  EXPECT_EQ(grid->invalidSlowness(), "");
  // The last two are finite, but no ground: their squares are none.
  for (const double bad : {0.0, -0.001, nan, infinity, 1e200, 1e-200}) {
    grid->setSlowness(7, bad);
    EXPECT_NE(grid->invalidSlowness().english().find("cell 7 "), std::string::npos) << bad;
  }
  const testing::CommaNumbers comma;
  grid->setSlowness(7, -0.125);
  EXPECT_NE(grid->invalidSlowness().english().find("(slowness -0.125 s/m)"), std::string::npos);
}

}  // namespace
}  // namespace talvesk

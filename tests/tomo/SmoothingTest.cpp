#include "support/ConsoleCapture.h"
#include "support/TestGrids.h"
#include "tomo/Smoothing.h"

#include <cmath>
#include <limits>
#include <random>
#include <sstream>
#include <stdexcept>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

// The operators written down straight from their formulas, cell by cell and slowly.
namespace plain {

constexpr double kLargest = 1.7976931348623157e308;

double distance(const Grid& grid, std::uint32_t a, std::uint32_t b) {
  const Point2D p = grid.cellCentre(a), q = grid.cellCentre(b);
  return std::sqrt((p.x - q.x) * (p.x - q.x) + (p.z - q.z) * (p.z - q.z));
}

std::vector<double> windowed(SmoothingType type, const Grid& grid, const std::vector<double>& in,
                             int radius, double ratio) {
  const int rows = static_cast<int>(grid.righe()), cols = static_cast<int>(grid.col());
  const int reachZ = static_cast<int>(std::floor(radius * ratio));
  const double sigma = radius / 1.4;
  std::vector<double> out;
  for (int iz = 0; iz < rows; ++iz) {
    for (int ix = 0; ix < cols; ++ix) {
      const auto cell = static_cast<std::uint32_t>(iz * cols + ix);
      double sum = 0.0, weights = 0.0;
      for (int r = iz - reachZ; r <= iz + reachZ; ++r) {
        for (int c = ix - radius; c <= ix + radius; ++c) {
          if (r < 0 || r >= rows || c < 0 || c >= cols) continue;
          const auto other = static_cast<std::uint32_t>(r * cols + c);
          const double d = distance(grid, cell, other);
          double w = 1.0;
          if (type == SmoothingType::kLinear && d != 0.0) w = 1.0 / d;
          if (type == SmoothingType::kGaussian) {
            w = std::exp(-(d * d) / (2.0 * sigma * sigma)) * 1.0 / (6.283 * sigma * sigma);
          }
          sum += w * in[other];
          weights += w;
        }
      }
      out.push_back(weights > 0.0 ? sum / weights : 0.0);
    }
  }
  return out;
}

std::vector<double> filled(const Grid& grid, const std::vector<std::uint32_t>& hits, int radius,
                           bool density) {
  std::vector<double> out;
  const double h = grid.aLato();
  for (std::uint32_t cell = 0; cell < grid.cellCount(); ++cell) {
    out.push_back(density ? hits[cell] : grid.slowness(cell));
    if (hits[cell] > 0) continue;
    const double own = grid.slowness(cell) == 0.0 ? kLargest : 1.0 / grid.slowness(cell);
    double sum = 0.0, weights = 0.0;
    bool any = false;
    for (std::uint32_t other = 0; other < grid.cellCount(); ++other) {
      if (hits[other] == 0) continue;
      const Point2D p = grid.cellCentre(cell), q = grid.cellCentre(other);
      const double squared = (p.x - q.x) * (p.x - q.x) + (p.z - q.z) * (p.z - q.z);
      if (!(squared < 2.0 * (radius * h) * (radius * h))) continue;
      any = true;
      const double s = grid.slowness(other);
      const double value = density ? hits[other] : (s == 0.0 ? kLargest : 1.0 / s);
      const double w = std::exp(squared / (-2.0 * (std::log(own) * std::log(own))));
      sum += w * value;
      weights += w;
    }
    if (any) out.back() = 1.0 / (sum / weights);
  }
  return out;
}

std::vector<double> smooth(SmoothingType type, const Grid& grid,
                           const std::vector<std::uint32_t>& hits, int radius, double ratio,
                           bool density) {
  if (type == SmoothingType::kRayBased) {
    return windowed(SmoothingType::kUniform, grid, filled(grid, hits, radius, density), radius,
                    ratio);
  }
  const std::vector<double> counts(hits.begin(), hits.end());
  return windowed(type, grid, density ? counts : grid.slownesses(), radius, ratio);
}

}  // namespace plain

/// A cliff of `drop` metres in the middle of the line.
std::unique_ptr<Grid> cliff(const GridSize& size, double drop) {
  Splines::LinearSpline surface;
  const double middle = size.col * size.aLato / 2.0;
  surface.build({0.0, middle - 0.01, middle + 0.01, 2.0 * middle}, {drop, drop, 0.0, 0.0});
  auto rough = testing::roughGrid(size, 0.0, 0.8);
  return std::make_unique<Grid>(std::make_shared<GridGeometry>(size, surface), rough->slownesses());
}

/// A cleft at every corner of the cells. It is smoothed away in the line below, so that the centres
/// of the first row lie under those of many others.
std::unique_ptr<Grid> clefts(const GridSize& size, double depth) {
  std::vector<double> x, elevation;
  for (std::uint32_t v = 0; v <= size.col; ++v) {
    const double corner = v * size.aLato;
    x.insert(x.end(), {corner - 0.05, corner, corner + 0.05});
    elevation.insert(elevation.end(), {0.0, -depth, 0.0});
  }
  Splines::LinearSpline surface;
  surface.build(x, elevation);
  auto rough = testing::roughGrid(size, 0.0, 0.8);
  return std::make_unique<Grid>(std::make_shared<GridGeometry>(size, surface), rough->slownesses());
}

std::vector<std::uint32_t> someHits(const Grid& grid, double share) {
  std::mt19937 random(3);
  std::vector<std::uint32_t> hits;
  for (std::uint32_t c = 0; c < grid.cellCount(); ++c) {
    const bool hit = static_cast<double>(random()) / 4294967296.0 < share;
    hits.push_back(hit ? 1 + static_cast<std::uint32_t>(random() % 9) : 0);
  }
  return hits;
}

std::vector<double> smoothed(SmoothingType type, const Grid& grid,
                             const std::vector<std::uint32_t>& hits, int radius, double ratio,
                             bool density) {
  Log log;
  return density ? smoothRayDensity(type, grid, hits, radius, ratio, log)
                 : smoothSlowness(type, grid, hits, radius, ratio);
}

struct NamedGrid {
  const char* name;
  std::unique_ptr<Grid> grid;
};

std::vector<NamedGrid> grids() {
  std::vector<NamedGrid> all;
  all.push_back({"level ground", testing::roughGrid({9, 14, 6, 0.7}, 0.0, 0.8)});
  all.push_back({"hills", testing::roughGrid({12, 15, 6, 1.0}, 8.0, 0.8)});
  all.push_back({"a cliff", cliff({14, 20, 6, 1.0}, 60.0)});
  all.push_back({"clefts", clefts({36, 16, 6, 1.0}, 50.0)});
  all.push_back({"a pit of one column", testing::roughGrid({15, 1, 6, 1.0}, 5.0, 0.8)});
  all.push_back({"one row", testing::roughGrid({1, 15, 6, 1.0}, 5.0, 0.8)});
  return all;
}

bool centresGrowWithTheRow(const Grid& grid) {
  for (std::uint32_t c = grid.col(); c < grid.cellCount(); ++c) {
    if (grid.cellCentre(c).z <= grid.cellCentre(c - grid.col()).z) return false;
  }
  return true;
}

TEST(Smoothing, equalsTheFormulasOnEveryGround) {
  const testing::ConsoleCapture console;
  ASSERT_FALSE(centresGrowWithTheRow(*cliff({14, 20, 6, 1.0}, 60.0)));
  ASSERT_FALSE(centresGrowWithTheRow(*clefts({36, 16, 6, 1.0}, 50.0)));
  for (const NamedGrid& g : grids()) {
    for (const double share : {0.0, 0.1, 0.6, 1.0}) {
      const auto hits = someHits(*g.grid, share);
      for (const int radius : {1, 2, 5, 40}) {
        for (const double ratio : {1.0, 0.7}) {
          for (const bool density : {false, true}) {
            for (const SmoothingType type : {SmoothingType::kUniform, SmoothingType::kLinear,
                                             SmoothingType::kGaussian, SmoothingType::kRayBased}) {
              SCOPED_TRACE(std::string(g.name) + ", " + std::to_string(share) + " covered, type " +
                           std::to_string(static_cast<int>(type)) + (density ? " of hits" : "") +
                           ", radius " + std::to_string(radius) + ", ratio " +
                           std::to_string(ratio));
              const auto out = smoothed(type, *g.grid, hits, radius, ratio, density);
              const auto expected = plain::smooth(type, *g.grid, hits, radius, ratio, density);
              ASSERT_EQ(out.size(), expected.size());
              const bool sums = type == SmoothingType::kUniform || type == SmoothingType::kRayBased;
              for (std::size_t c = 0; c < out.size(); ++c) {
                // Plain sums in cell order: no rounding may differ.
                const double margin = sums ? 0.0 : 1e-12 * std::fabs(expected[c]);
                ASSERT_NEAR(out[c], expected[c], margin) << "cell " << c;
              }
            }
          }
        }
      }
    }
  }
}

TEST(Smoothing, hasAWindowFlatterThanWideUnlessSymmetric) {
  const testing::ConsoleCapture console;
  const struct {
    int radius;
    bool symmetric;
    std::uint32_t row, column;
    int cells;  ///< over which a single hit in the middle is spread, seen from row and column
  } cases[] = {
      {1, false, 5, 5, 3},  {1, true, 5, 5, 9},   {1, true, 0, 0, 4},
      {2, false, 5, 5, 15}, {3, false, 5, 5, 35}, {10, false, 5, 5, 121},
  };
  const auto grid = testing::roughGrid({11, 11, 6, 1.0}, 0.0);
  for (const auto& c : cases) {
    std::vector<std::uint32_t> hits(121, 0);
    hits[c.row * 11 + c.column] = 1;
    const auto out =
        smoothed(SmoothingType::kUniform, *grid, hits, c.radius, verticalRatio(c.symmetric), true);
    EXPECT_DOUBLE_EQ(out[c.row * 11 + c.column], 1.0 / c.cells) << "radius " << c.radius;
  }
}

TEST(Smoothing, leavesAConstantFieldConstant) {
  const testing::ConsoleCapture console;
  auto grid = testing::roughGrid({10, 12, 6, 1.0}, 6.0);
  for (std::uint32_t c = 0; c < grid->cellCount(); ++c) grid->setSlowness(c, 1.0 / 700.0);
  const auto hits = someHits(*grid, 0.3);
  for (int type = 0; type <= 3; ++type) {
    for (const double s : smoothed(smoothingTypeOf(type), *grid, hits, 3, 0.7, false)) {
      ASSERT_NEAR(s, 1.0 / 700.0, 1e-15) << "type " << type;
    }
  }
}

TEST(Smoothing, knowsNoDensityWithoutAnyRay) {
  const testing::ConsoleCapture console;
  const auto grid = testing::roughGrid({5, 6, 6, 1.0}, 2.0);
  for (int type = 0; type <= 3; ++type) {
    const auto out =
        smoothed(smoothingTypeOf(type), *grid, std::vector<std::uint32_t>(30, 0), 2, 0.7, true);
    EXPECT_EQ(out, std::vector<double>(30, 0.0)) << "type " << type;
  }
}

TEST(Smoothing, fillsOnlyWithinTheCircleAroundTheWindow) {
  // One covered cell at the left end; windows of one row keep the stages apart.
  auto grid = testing::roughGrid({1, 12, 6, 1.0}, 0.0);
  for (std::uint32_t c = 0; c < 12; ++c) grid->setSlowness(c, 1.0 / 500.0);
  grid->setSlowness(0, 1.0 / 2000.0);
  std::vector<std::uint32_t> hits(12, 0);
  hits[0] = 1;
  const auto filled = plain::filled(*grid, hits, 5, false);
  EXPECT_NEAR(filled[7], 1.0 / 2000.0, 1e-15);  // 7 m, nearer than sqrt(2) * 5
  EXPECT_EQ(filled[8], 1.0 / 500.0);
  const auto out = smoothSlowness(SmoothingType::kRayBased, *grid, hits, 5, 0.0);
  EXPECT_EQ(out, plain::windowed(SmoothingType::kUniform, *grid, filled, 5, 0.0));
}

TEST(Smoothing, doesNotDependOnTheNumberOfWorkers) {
  const testing::ConsoleCapture console;
  // Rays above a bent line, with gaps; nothing near the ground below and at one end.
  const auto grid = testing::roughGrid({70, 110, 6, 1.0}, 6.0, 0.5);
  std::vector<std::uint32_t> hits = someHits(*grid, 0.6);
  for (std::uint32_t c = 0; c < hits.size(); ++c) {
    const std::uint32_t row = c / 110, column = c % 110;
    if (row > 12 + column / 10 || column > 90) hits[c] = 0;
  }
  Log log;
  for (const bool density : {false, true}) {
    EXPECT_EQ(smoothed(SmoothingType::kRayBased, *grid, hits, 4, 0.7, density),
              plain::windowed(SmoothingType::kUniform, *grid,
                              plain::filled(*grid, hits, 4, density), 4, 0.7));
    for (int number = 0; number <= 3; ++number) {
      const SmoothingType type = smoothingTypeOf(number);
      const std::vector<double> expected = smoothed(type, *grid, hits, 4, 0.7, density);
      for (const unsigned workers : {2U, 3U, 8U}) {
        WorkerPool pool(workers);
        EXPECT_EQ(density ? smoothRayDensity(type, *grid, hits, 4, 0.7, log, pool)
                          : smoothSlowness(type, *grid, hits, 4, 0.7, pool),
                  expected)
            << "type " << number << ", " << workers << " workers";
      }
    }
  }
}

TEST(Smoothing, staysFiniteWhereACellsOwnVelocityLeavesNoWidth) {
  // The logarithm of 1 m/s is 0; of infinite velocity there is only the largest number.
  for (const double slowness : {1.0, 0.0}) {
    auto grid = testing::roughGrid({3, 5, 6, 1.0}, 1.0);
    std::vector<std::uint32_t> hits(15, 0);
    hits[7] = 2;
    grid->setSlowness(8, slowness);
    for (const double s : smoothSlowness(SmoothingType::kRayBased, *grid, hits, 2, 1.0)) {
      EXPECT_TRUE(std::isfinite(s)) << slowness;
    }
  }
}

TEST(Smoothing, takesAnyOtherTypeForUniform) {
  const struct {
    int number;
    SmoothingType type;
  } cases[] = {{0, SmoothingType::kUniform},  {1, SmoothingType::kLinear},
               {2, SmoothingType::kGaussian}, {3, SmoothingType::kRayBased},
               {4, SmoothingType::kUniform},  {-1, SmoothingType::kUniform},
               {99, SmoothingType::kUniform}};
  for (const auto& c : cases) EXPECT_EQ(smoothingTypeOf(c.number), c.type) << c.number;
}

TEST(Smoothing, refusesHitsOfAnotherGrid) {
  const auto grid = testing::roughGrid({3, 5, 6, 1.0}, 1.0);
  Log log;
  for (int type = 0; type <= 3; ++type) {
    const std::vector<std::uint32_t> hits(14, 1);
    EXPECT_THROW(smoothSlowness(smoothingTypeOf(type), *grid, hits, 2, 1.0), std::out_of_range);
    EXPECT_THROW(smoothRayDensity(smoothingTypeOf(type), *grid, hits, 2, 1.0, log),
                 std::out_of_range);
  }
}

TEST(Smoothing, saysWhatItDoes) {
  const struct {
    SmoothingType type;
    const char *slowness, *density;  ///< on the console; in the log, without time stamps
  } cases[] = {
      {SmoothingType::kUniform, "Uniform Smoothing...\n", "Uniform RayDensity Smoothing\n4\n"},
      {SmoothingType::kLinear, "Linear Smoothing...\n", "Linear RayDensity Smoothing\n4\n"},
      {SmoothingType::kGaussian, "Gaussian Smoothing...\n", "Gaussian RayDensity Smoothing\n4\n"},
      {SmoothingType::kRayBased, "", ""},
  };
  const auto grid = testing::roughGrid({3, 5, 6, 1.0}, 1.0);
  const std::vector<std::uint32_t> hits(15, 1);
  for (const auto& c : cases) {
    {
      const testing::ConsoleCapture console;
      smoothSlowness(c.type, *grid, hits, 4, 1.0);
      EXPECT_EQ(console.out(), c.slowness);
    }
    const testing::ConsoleCapture console;
    Log log;
    smoothRayDensity(c.type, *grid, hits, 4, 1.0, log);
    std::string text;
    std::istringstream lines(console.out());
    for (std::string line; std::getline(lines, line);) {
      text += line.substr(line.find("] ") + 2) + '\n';
    }
    EXPECT_EQ(text, c.density);
  }
}

}  // namespace
}  // namespace talvesk

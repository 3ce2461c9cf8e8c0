#include "support/LayeredGround.h"
#include "support/TestGrids.h"
#include "tomo/ShortestPaths.h"
#include "tomo/fitted/FineTracer.h"
#include "tomo/fitted/GridTracer.h"

#include <algorithm>
#include <random>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

FitData oneShot(double source, std::vector<double> receivers) {
  FitData data;
  data.picks.resize(receivers.size());
  data.shots.push_back({0, source, std::move(receivers), 0});
  return data;
}

TracedRays traced(RayTracer&& tracer, const std::vector<double>& slownesses) {
  TracedRays rays;
  EXPECT_TRUE(tracer.trace(slownesses, rays, {}));
  return rays;
}

void expectSame(const TracedRays& a, const TracedRays& b) {
  EXPECT_EQ(a.times, b.times);
  EXPECT_EQ(a.rays.first, b.rays.first);
  EXPECT_EQ(a.rays.cells, b.rays.cells);
  EXPECT_EQ(a.rays.lengths, b.rays.lengths);
}

struct Ground {
  const char* name;
  double slope;
  std::function<double(double)> velocity;
};

const std::vector<Ground>& grounds() {
  static const std::vector<Ground> all = {
      {"uniform", 0.0, [](double) { return 500.0; }},
      {"uniform under a slope", 0.5, [](double) { return 500.0; }},
      {"two layers", 0.0, [](double z) { return z < 5.0 ? 500.0 : 2000.0; }},
      {"two layers under a slope", 0.5, [](double z) { return z < 5.0 ? 500.0 : 2000.0; }},
      {"three layers", 0.0, [](double z) { return z < 3.0    ? 400.0
                                                  : z < 10.0 ? 1200.0
                                                             : 3000.0; }},
      {"three layers under a slope", -0.3,
       [](double z) { return z < 3.0    ? 400.0
                             : z < 10.0 ? 1200.0
                                        : 3000.0; }},
      {"a slow layer inside", 0.0,
       [](double z) { return z < 3.0   ? 800.0
                             : z < 6.0 ? 500.0
                                       : 2500.0; }},
      {"gradient", 0.0, [](double z) { return 400.0 + 30.0 * z; }},
      {"gradient under a slope", 0.5, [](double z) { return 400.0 + 30.0 * z; }},
      {"steep gradient", 0.0, [](double z) { return 300.0 + 100.0 * z; }},
  };
  return all;
}

// Rays end at the true minimum, or just above it where they hang on to a slower way.
TEST(FineTracer, staysWithinItsToleranceOfClosedForms) {
  const FitData data = testing::lineOfShots();
  for (const Ground& g : grounds()) {
    for (const double cellSize : {0.5, 1.0}) {
      SCOPED_TRACE(std::string(g.name) + ", cells of " + std::to_string(cellSize));
      const testing::LayeredGround ground(cellSize, 6, g.slope, g.velocity);
      const TracedRays rays = traced(FineTracer(*ground.geometry, data, 2), ground.slownesses);
      std::size_t pick = 0;
      for (const FitShot& shot : data.shots) {
        for (const double receiver : shot.receivers) {
          const double exact = ground.arrival(shot.source, receiver);
          const double late = rays.times[pick++] - exact;
          EXPECT_GE(late, -1e-9 * exact) << shot.source << " to " << receiver;
          EXPECT_LE(late, std::max(5e-5, 3e-3 * exact)) << shot.source << " to " << receiver;
        }
      }
    }
  }
}

// On level ground both are true paths. The grid's own search never runs along a side, which makes
// it late by up to a per cent where fast cells lie between slow ones, even with forty nodes a side.
TEST(FineTracer, isAsFastAsAMuchFinerSearchOnRoughGround) {
  for (const double roughness : {0.6, 1.2}) {
    for (const std::uint32_t seed : {1u, 2u, 3u}) {
      const auto rough = testing::roughGrid({16, 40, 41, 1.0}, 0.0, roughness, seed);
      const GridGeometry coarse({16, 40, 6, 1.0}, testing::hills(40.0, 0.0));
      const FitData data = oneShot(3.5, {6.5, 10.0, 17.025, 25.0, 31.5, 37.0});
      const TracedRays ours = traced(FineTracer(coarse, data, 1), rough->slownesses());
      ShortestPaths paths;
      paths.search(*rough, rough->geometry().topNodeIndex(3.5 + 1e-6));
      for (std::size_t i = 0; i < data.picks.size(); ++i) {
        const double x = data.shots[0].receivers[i];
        const double time = paths.distance(rough->geometry().topNodeIndex(x + 1e-6));
        EXPECT_LE(ours.times[i], time + std::max(5e-5, 3e-3 * time)) << seed << ", " << x;
        EXPECT_GE(ours.times[i], 0.985 * time) << seed << ", " << x;
      }
    }
  }
}

TEST(FineTracer, putsShotsAndReceiversWhereTheyAre) {
  const testing::LayeredGround ground(1.0, 6, 0.25, [](double) { return 400.0; });
  const double end = ground.geometry->lineX(ground.geometry->lineNodeCount() - 1);
  const std::vector<double> at = {0.0, 0.037, 7.0, 7.0 + 1e-12, 7.061, 7.5, 53.123, end};
  for (const double source : at) {
    const TracedRays rays =
        traced(FineTracer(*ground.geometry, oneShot(source, at), 1), ground.slownesses);
    for (std::size_t i = 0; i < at.size(); ++i) {
      const double exact = std::fabs(at[i] - source) / ground.cosine / 400.0;
      EXPECT_NEAR(rays.times[i], exact, 1e-6 * exact + 1e-14) << source << " to " << at[i];
    }
  }
  for (const double beside : {-0.1, end + 0.3}) {
    EXPECT_THROW(FineTracer(*ground.geometry, oneShot(1.0, {beside}), 1), std::out_of_range);
    EXPECT_THROW(GridTracer(ground.geometry, oneShot(beside, {1.0}), 1), std::out_of_range);
  }
}

// Times there and back differ by what rays hang on to at most, whatever the relief.
TEST(FineTracer, agreesBothWaysUnderSteepRelief) {
  for (const double relief : {1.0, 3.0, 6.0}) {
    const auto rough = testing::roughGrid({20, 60, 6, 1.0}, relief, 0.8);
    const std::vector<double> at = {0.5, 8.2, 21.0, 33.3, 59.9};
    for (const double a : at) {
      const TracedRays out =
          traced(FineTracer(rough->geometry(), oneShot(a, at), 1), rough->slownesses());
      for (std::size_t i = 0; i < at.size(); ++i) {
        const TracedRays back =
            traced(FineTracer(rough->geometry(), oneShot(at[i], {a}), 1), rough->slownesses());
        EXPECT_NEAR(out.times[i], back.times[0], std::max(1e-4, 6e-3 * out.times[i]))
            << relief << ": " << a << " to " << at[i];
      }
    }
  }
}

TEST(RayTracers, givesTimesThatAreTheProductOfRaysAndSlownesses) {
  const auto rough = testing::roughGrid({30, 98, 6, 1.0}, 3.0, 0.6);
  const FitData data = testing::lineOfShots(3);
  const auto geometry = rough->sharedGeometry();
  for (const TracedRays& rays : {traced(FineTracer(*geometry, data, 1), rough->slownesses()),
                                 traced(GridTracer(geometry, data, 1), rough->slownesses())}) {
    ASSERT_EQ(rays.rays.rays(), data.picks.size());
    ASSERT_EQ(rays.times.size(), data.picks.size());
    for (std::size_t i = 0; i < rays.times.size(); ++i) {
      double time = 0.0;
      for (std::size_t k = rays.rays.first[i]; k < rays.rays.first[i + 1]; ++k) {
        EXPECT_GT(rays.rays.lengths[k], 0.0);
        EXPECT_TRUE(k == rays.rays.first[i] || rays.rays.cells[k - 1] < rays.rays.cells[k]);
        time += rays.rays.lengths[k] * rough->slowness(rays.rays.cells[k]);
      }
      EXPECT_DOUBLE_EQ(rays.times[i], time);
    }
  }
}

TEST(RayTracers, giveTheSameBitsWithAnyNumberOfThreads) {
  const auto rough = testing::roughGrid({30, 98, 6, 1.0}, 3.0, 0.6);
  const FitData data = testing::lineOfShots(5, 24);
  const auto geometry = rough->sharedGeometry();
  const TracedRays fine = traced(FineTracer(*geometry, data, 1), rough->slownesses());
  const TracedRays grid = traced(GridTracer(geometry, data, 1), rough->slownesses());
  for (const unsigned threads : {0u, 2u, 3u, 16u}) {
    FineTracer again(*geometry, data, threads);
    TracedRays rays;
    for (int pass = 0; pass < 2; ++pass) {  // nothing is left behind by the first
      ASSERT_TRUE(again.trace(rough->slownesses(), rays, {}));
      expectSame(rays, fine);
    }
    expectSame(traced(GridTracer(geometry, data, threads), rough->slownesses()), grid);
  }
}

TEST(RayTracers, stopBetweenShots) {
  const testing::LayeredGround ground(1.0, 6, 0.0, [](double z) { return 400.0 + 30.0 * z; });
  const FitData data = testing::lineOfShots();
  for (const unsigned threads : {1u, 2u}) {
    FineTracer fine(*ground.geometry, data, threads);
    GridTracer grid(ground.geometry, data, threads);
    for (RayTracer* tracer : {static_cast<RayTracer*>(&fine), static_cast<RayTracer*>(&grid)}) {
      TracedRays rays;
      int asked = 0;
      EXPECT_FALSE(tracer->trace(ground.slownesses, rays, [&asked] { return ++asked < 3; }));
      EXPECT_EQ(asked, 3);
      EXPECT_TRUE(tracer->trace(ground.slownesses, rays, [] { return true; }));
      EXPECT_THROW(tracer->trace({1.0}, rays, {}), std::invalid_argument);
    }
  }
}

TEST(GridTracer, hasTheTimesOfTheGridsOwnSearch) {
  const auto rough = testing::roughGrid({12, 30, 6, 1.0}, 3.0, 0.5);
  const std::vector<double> at = {0.3, 4.0, 11.17, 29.9};
  const TracedRays rays =
      traced(GridTracer(rough->sharedGeometry(), oneShot(4.71, at), 1), rough->slownesses());
  ShortestPaths paths;
  paths.search(*rough, rough->geometry().topNodeIndex(4.71));
  for (std::size_t i = 0; i < at.size(); ++i) {
    const double time = paths.distance(rough->geometry().topNodeIndex(at[i]));
    EXPECT_NEAR(rays.times[i], time, 1e-12 * time);
  }
}

}  // namespace
}  // namespace talvesk

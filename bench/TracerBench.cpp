// All rays of a line of 48 geophones and 9 shots, with two workers: rays that no node binds beside
// those of the grid's own search. The argument is the cell size in centimetres.
#include "support/LayeredGround.h"
#include "tomo/fitted/FineTracer.h"
#include "tomo/fitted/GridTracer.h"

#include <benchmark/benchmark.h>

namespace talvesk {
namespace {

testing::LayeredGround groundOf(const benchmark::State& state) {
  return {static_cast<double>(state.range(0)) / 100.0, 6, 0.0,
          [](double z) { return 400.0 + 30.0 * z; }};
}

void run(benchmark::State& state, RayTracer& tracer, const testing::LayeredGround& ground) {
  TracedRays rays;
  for (auto _ : state) {
    tracer.trace(ground.slownesses, rays, {});
    benchmark::DoNotOptimize(rays.times.data());
  }
}

void fineTracer(benchmark::State& state) {
  const testing::LayeredGround ground = groundOf(state);
  FineTracer tracer(*ground.geometry, testing::lineOfShots(), 2);
  run(state, tracer, ground);
}

void gridTracer(benchmark::State& state) {
  const testing::LayeredGround ground = groundOf(state);
  GridTracer tracer(ground.geometry, testing::lineOfShots(), 2);
  run(state, tracer, ground);
}

}  // namespace

BENCHMARK(fineTracer)->Unit(benchmark::kMillisecond)->UseRealTime()->Arg(100)->Arg(50);
BENCHMARK(gridTracer)->Unit(benchmark::kMillisecond)->UseRealTime()->Arg(100)->Arg(50);

}  // namespace talvesk

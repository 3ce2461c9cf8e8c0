// One search per source beside the reference, in the same run; bytes per cell are those of grid and
// search together.
#include "support/ReferenceSearch.h"
#include "support/TestGrids.h"
#include "tomo/ShortestPaths.h"

#include <benchmark/benchmark.h>

namespace talvesk {
namespace {

GridSize sizeOf(const benchmark::State& state) {
  GridSize size;
  size.col = static_cast<std::uint32_t>(state.range(0));
  size.righe = static_cast<std::uint32_t>(state.range(1));
  size.nV = static_cast<std::uint32_t>(state.range(2));
  size.aLato = 1.0;
  return size;
}

void search(benchmark::State& state) {
  const auto grid = testing::roughGrid(sizeOf(state), 3.0);
  ShortestPaths paths;
  const std::uint32_t source = grid->geometry().lineNodeCount() / 3;
  for (auto _ : state) {
    paths.search(*grid, source);
    benchmark::DoNotOptimize(paths.distance(grid->nodeCount() - 1));
  }
  state.counters["bytes/cell"] =
      static_cast<double>(paths.bytes() + grid->geometry().bytes() + grid->cellCount() * 9) /
      grid->cellCount();
  state.counters["time/cell"] =
      benchmark::Counter(grid->cellCount(), benchmark::Counter::kIsIterationInvariantRate |
                                                benchmark::Counter::kInvert);
}

void referenceSearch(benchmark::State& state) {
  const auto grid = testing::roughGrid(sizeOf(state), 3.0);
  const reference::Graph graph(*grid);
  const std::uint32_t source = grid->geometry().lineNodeCount() / 3;
  for (auto _ : state) {
    auto paths = reference::search(graph, source);
    benchmark::DoNotOptimize(paths.distance.back());
  }
  state.counters["bytes/cell"] = static_cast<double>(graph.bytes()) / grid->cellCount();
}

}  // namespace

BENCHMARK(search)
    ->Unit(benchmark::kMillisecond)
    ->Args({100, 40, 6})
    ->Args({100, 40, 10})
    ->Args({400, 100, 6})
    ->Args({400, 100, 10})
    ->Args({1000, 200, 6})
    ->Args({1000, 200, 10})
    ->Args({2000, 400, 6})
    ->Args({2000, 400, 10});
BENCHMARK(referenceSearch)
    ->Unit(benchmark::kMillisecond)
    ->Args({100, 40, 6})
    ->Args({400, 100, 6})
    ->Args({400, 100, 10})
    ->Args({1000, 200, 6});

}  // namespace talvesk

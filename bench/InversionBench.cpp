// Building a grid, one external iteration with one and with all threads, whole default inversions,
// one and many side by side, and the smoothing operators.
#include "BenchSurvey.h"
#include "base/RunForEach.h"
#include "grid/GridBuilder.h"
#include "model/GroundModel.h"
#include "model/TomographyOutcome.h"
#include "tomo/TomographyRun.h"

#include <algorithm>
#include <ostream>
#include <vector>

#include <benchmark/benchmark.h>

namespace talvesk {
namespace {

void buildGrid(benchmark::State& state) {
  const auto document = bench::survey(100, 5);
  const auto surface = document.surveyProfile().surface();
  GridSize size;
  size.col = static_cast<std::uint32_t>(state.range(0));
  size.righe = static_cast<std::uint32_t>(state.range(1));
  size.nV = 6;
  size.aLato = 0.5;
  for (auto _ : state) benchmark::DoNotOptimize(buildDefaultGrid(size, surface));
}

void externalIteration(benchmark::State& state) {
  auto document = bench::surveyWithGrid(100, static_cast<int>(state.range(1)), 0.5, 50.0);
  Log log;
  std::vector<double> slownesses;
  for (auto _ : state) {
    const Status status =
        document.runTomography(slownesses, 20, 5, state.range(0) != 0, false, 3, log);
    if (!status.ok()) state.SkipWithError(status.message().c_str());
  }
}

void defaultInversion(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    auto document = bench::surveyWithGrid(48, 9, 1.0, 49.0);
    Log log;
    state.ResumeTiming();
    const TomographyResult result = runInversion(document, {}, log);
    if (!result.status.ok()) state.SkipWithError(result.status.message().c_str());
    state.counters["rmse_ms"] = result.misfit.rmse * 1e3;
  }
}

/// Twenty of them, one per processor at a time, as campaigns and studies run them.
void inversionsSideBySide(benchmark::State& state) {
  const TomoDocument line = bench::surveyWithGrid(48, 9, 1.0, 49.0);
  TomographyParameters parameters;
  parameters.singleThread = true;
  for (auto _ : state) {
    std::vector<TomoDocument> lines(20, line);
    std::vector<int> failed(lines.size(), 0);
    runForEach(lines.size(), [&](std::size_t i) {
      Log log;
      failed[i] = runInversion(lines[i], parameters, log).status.ok() ? 0 : 1;
    });
    if (std::count(failed.begin(), failed.end(), 1) > 0) state.SkipWithError("an inversion failed");
  }
}

void smoothing(benchmark::State& state) {
  auto document = bench::surveyWithGrid(100, 9, 0.5, 50.0);
  Log log;
  std::vector<double> slownesses;
  const Status status = document.runTomography(slownesses, 1, 5, true, false, 0, log);
  if (!status.ok()) state.SkipWithError(status.message().c_str());
  const SmoothingType type = smoothingTypeOf(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    benchmark::DoNotOptimize(smoothSlowness(type, *document.model->grid, document.result->hitCounts,
                                            5, verticalRatio(false)));
  }
}

}  // namespace

BENCHMARK(buildGrid)->Unit(benchmark::kMillisecond)->Args({400, 100})->Args({2000, 400});
BENCHMARK(externalIteration)
    ->ArgNames({"threads", "shots"})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Args({0, 9})
    ->Args({1, 9})
    ->Args({0, 10})
    ->Args({1, 10})
    ->Args({0, 11})
    ->Args({1, 11})
    ->Args({0, 24})
    ->Args({1, 24});
BENCHMARK(defaultInversion)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(inversionsSideBySide)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(smoothing)->ArgName("type")->Unit(benchmark::kMillisecond)->DenseRange(0, 3);

}  // namespace talvesk

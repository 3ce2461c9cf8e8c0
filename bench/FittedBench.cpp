// A section fitted to the errors of its picks, with models read from them, and how sure it is: a
// line of 48 geophones and 9 shots with two workers. Processor time of the whole process stands
// beside the time by the clock, as other programs may be running.
#include "BenchSurvey.h"
#include "model/GroundModel.h"
#include "tomo/fitted/CertaintyRun.h"
#include "tomo/fitted/References.h"

#include <ostream>

#include <benchmark/benchmark.h>

namespace talvesk {
namespace {

constexpr double kDepth = 47.0;  // half the line
constexpr double kCell = 0.5;    // a quarter of the spacing

void fittedSection(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    TomoDocument document = bench::surveyWithGrid(48, 9, kCell, kDepth);
    FittedSettings settings;
    settings.reference = kBestReference;
    Log log;
    state.ResumeTiming();
    const ReferencedRun run = fitFromReference(document, settings, log);
    if (!run.fit.run.status.ok()) state.SkipWithError(run.fit.run.status.message().c_str());
    state.counters["chi2"] = run.fit.fit.chi2;
    state.counters["iterations"] = run.fit.run.iterationsDone;
  }
}

void certaintyOf24(benchmark::State& state) {
  TomoDocument document = bench::surveyWithGrid(48, 9, kCell, kDepth);
  CertaintySettings settings;
  settings.members = 24;
  for (auto _ : state) {
    const std::unique_ptr<Ensemble> ensemble = ensembleOf(document, settings);
    Certainty certainty;
    const Status status = runCertainty(*ensemble, document, settings, certainty);
    if (!status.ok()) state.SkipWithError(status.message().c_str());
    state.counters["members"] = certainty.members;
  }
}

}  // namespace

BENCHMARK(fittedSection)->Unit(benchmark::kSecond)->MeasureProcessCPUTime()->UseRealTime();
BENCHMARK(certaintyOf24)->Unit(benchmark::kSecond)->MeasureProcessCPUTime()->UseRealTime();

}  // namespace talvesk

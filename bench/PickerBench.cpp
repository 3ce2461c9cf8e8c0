// The first-break picker on shots of 48 traces of 4000 samples: the detector alone, and whole shots
// with their screening on one thread and on two.
#include "base/Console.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "processing/FirstBreak.h"
#include "processing/joint/JointPicker.h"

#include <cmath>
#include <ostream>
#include <random>

#include <benchmark/benchmark.h>

namespace talvesk {
namespace {

constexpr int kSamples = 4000;
constexpr int kTraces = 48;

/// Noise, then an arrival of 40 Hz that comes later with every trace.
std::vector<double> signal(int trace, std::mt19937& random) {
  std::normal_distribution<double> noise(0.0, 0.05);
  std::vector<double> samples;
  const int arrival = 400 + 20 * trace;
  for (int i = 0; i < kSamples; ++i) {
    const double t = (i - arrival) * 0.25e-3;
    const double wave = t < 0.0 ? 0.0 : std::sin(251.3 * t) * std::exp(-10.0 * t);
    samples.push_back(wave + noise(random));
  }
  return samples;
}

TomoDocument shots(int count) {
  std::mt19937 random(7);
  TomoDocument document;
  document.line.edit().goephonesStringSet.emplace_back();
  for (int t = 0; t < kTraces; ++t)
    document.line.edit().goephonesStringSet[0].push_back({2.0 * t + 2.0, 0.0});
  for (int s = 0; s < count; ++s) {
    TravelTime record;
    record.traceSetID = s;
    document.ttArray.edit().push_back(record);
    document.recordings.edit().traceSets.emplace_back(kTraces);
    for (int t = 0; t < kTraces; ++t) {
      document.recordings.edit().traceSets.back()[t].samples.edit() = signal(t, random);
      document.recordings.edit().traceSets.back()[t].sampleInterval = 0.25e-3;
    }
  }
  return document;
}

void detector(benchmark::State& state) {
  std::mt19937 random(7);
  const std::vector<double> samples = signal(10, random);
  for (auto _ : state) benchmark::DoNotOptimize(characteristicPick(samples, 0.0, kPickWindow));
  state.SetItemsProcessed(state.iterations());
}

/// items_per_second is traces per second.
void wholeShots(benchmark::State& state) {
  console::setOut(console::nowhere());
  TomoDocument document = shots(20);
  std::vector<std::int32_t> list;
  for (std::int32_t s = 0; s < 20; ++s) list.push_back(s);
  for (auto _ : state) {
    const Status status = pickShots(document, list, false, static_cast<unsigned>(state.range(0)));
    if (!status.ok()) state.SkipWithError(status.message().c_str());
  }
  state.SetItemsProcessed(state.iterations() * 20 * kTraces);
}

/// The same shots by whole gathers, two passes.
void alongTheLine(benchmark::State& state) {
  TomoDocument document = shots(20);
  std::vector<std::int32_t> list;
  for (std::int32_t s = 0; s < 20; ++s) list.push_back(s);
  JointPickOptions options;
  options.threads = static_cast<unsigned>(state.range(0));
  for (auto _ : state) {
    JointPickOutcome outcome;
    const Status status = pickJointly(document, list, options, outcome);
    if (!status.ok()) state.SkipWithError(status.message().c_str());
  }
  state.SetItemsProcessed(state.iterations() * 20 * kTraces);
}

}  // namespace

BENCHMARK(detector)->Unit(benchmark::kMicrosecond);
BENCHMARK(wholeShots)
    ->ArgName("threads")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Arg(1)
    ->Arg(2);
BENCHMARK(alongTheLine)
    ->ArgName("threads")
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->Arg(1)
    ->Arg(2);

}  // namespace talvesk

// Looking through recordings: the first arrivals of one shot, and all checks of a survey of 24
// shots of 48 traces of 4000 samples.
#include "doctor/Doctor.h"
#include "doctor/Onsets.h"
#include "doctor/SyntheticLine.h"

#include <benchmark/benchmark.h>

namespace talvesk::doctor {
namespace {

testing::LinePlan plan(int shots) {
  testing::LinePlan plan;
  plan.geophones = 48;
  plan.samples = 4000;
  plan.shots.clear();
  for (int i = 0; i < shots; ++i) plan.shots.push_back(-5.0 + 4.5 * i);
  return plan;
}

void arrivalsOfAShot(benchmark::State& state) {
  const TomoDocument document = testing::soundLine(plan(1));
  for (auto _ : state) {
    benchmark::DoNotOptimize(findOnsets(document.recordings->traceSets.front()));
  }
}

void wholeSurvey(benchmark::State& state) {
  const TomoDocument document = testing::soundLine(plan(24));
  for (auto _ : state) benchmark::DoNotOptimize(checkRecordings(document));
}

BENCHMARK(arrivalsOfAShot)->Unit(benchmark::kMillisecond);
BENCHMARK(wholeSurvey)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace talvesk::doctor

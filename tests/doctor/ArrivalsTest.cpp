#include "doctor/Onsets.h"
#include "doctor/SourceStation.h"
#include "doctor/SyntheticLine.h"

#include <cmath>

#include <gtest/gtest.h>

namespace talvesk::doctor {
namespace {

using namespace testing;
using Side = SourceStation::Side;

/// How many arrivals of a shot are found to within so many samples.
std::size_t foundWithin(const TraceSet& traces, double shot, double samples) {
  const ShotOnsets onsets = findOnsets(traces);
  std::size_t count = 0;
  for (std::size_t t = 0; t < traces.size(); ++t) {
    const double truth = arrival(shot, traces[t].receiverPosition.x);
    if (onsets[t].found && std::fabs(onsets[t].time - truth) <= samples * kInterval) ++count;
  }
  return count;
}

struct Weather {
  const char* name;
  double noise;
  double samples;
  std::size_t least[2];  ///< of 24, from beyond the end and from the middle
};

TEST(Arrivals, areFoundInNoise) {
  for (const Weather& weather :
       {Weather{"calm", 0.001, 2.0, {24, 24}}, Weather{"usual", 0.01, 3.0, {24, 24}},
        Weather{"rough", 0.1, 6.0, {6, 18}}, Weather{"none at all", 0.0, 3.0, {24, 24}}}) {
    LinePlan plan;
    plan.noise = weather.noise;
    plan.shots = {-5.0, 19.0};
    const TomoDocument document = soundLine(plan);
    for (std::size_t shot = 0; shot < 2; ++shot) {
      EXPECT_GE(
          foundWithin(document.recordings->traceSets[shot], plan.shots[shot], weather.samples),
          weather.least[shot])
          << weather.name << ", shot " << shot;
    }
  }
}

TEST(Arrivals, areFoundOnAStrongDrift) {
  LinePlan plan;
  plan.shots = {19.0};
  TomoDocument document = soundLine(plan);
  for (Trace& trace : tracesOf(document, 0)) {
    std::vector<double>& samples = trace.samples.edit();
    for (std::size_t i = 0; i < samples.size(); ++i) {
      samples[i] += 3000.0 * std::sin(2.0 * 3.14159 * 1.0 * static_cast<double>(i) * kInterval);
    }
  }
  EXPECT_GE(foundWithin(document.recordings->traceSets[0], 19.0, 4.0), 23U);
}

TEST(Arrivals, areNotThoseOfFootstepsBeforeTheBlow) {
  LinePlan plan;
  plan.shots = {19.0};
  plan.lead = 0.1;
  TomoDocument document = soundLine(plan);
  for (const std::size_t trace : {8, 9, 11}) {
    const LinePlan steps;
    const std::vector<double> step = traceOf(steps, 100.0, 0.01, trace);
    std::vector<double>& samples = tracesOf(document, 0)[trace].samples.edit();
    for (std::size_t i = 0; i < 300; ++i) samples[i + 20] += step[i];
  }
  EXPECT_GE(foundWithin(document.recordings->traceSets[0], 19.0, 3.0), 23U);
}

TEST(Arrivals, areTheSameWhenZerosStandInFront) {
  LinePlan plan;
  plan.shots = {19.0};
  TomoDocument document = soundLine(plan);
  const ShotOnsets before = findOnsets(document.recordings->traceSets[0]);
  for (Trace& trace : tracesOf(document, 0)) {
    std::vector<double>& samples = trace.samples.edit();
    samples.insert(samples.begin(), 40, 0.0);
    samples.resize(plan.samples);
  }
  const ShotOnsets after = findOnsets(document.recordings->traceSets[0]);
  for (std::size_t t = 0; t < before.size(); ++t) {
    EXPECT_NEAR(after[t].time, before[t].time + 40 * kInterval, 2 * kInterval) << t;
  }
}

TEST(Arrivals, countFromTheShotWhetherTheLeadWasDroppedOrNot) {
  Trace trace;
  trace.sampleInterval = 0.001;
  trace.delay = -0.5;
  EXPECT_DOUBLE_EQ(timeOfFirstSample(trace), -0.5);
  trace.droppedSamples = 500;
  EXPECT_NEAR(timeOfFirstSample(trace), 0.0, 1e-12);
}

TEST(Arrivals, areNoneInWhatHoldsNothing) {
  for (const std::vector<double>& samples : {std::vector<double>(),
                                             {1.0},
                                             std::vector<double>(7, 3.0),
                                             std::vector<double>(5000, 0.0)}) {
    TraceSet traces(3);
    for (Trace& trace : traces) {
      trace.samples = samples;
      trace.sampleInterval = 0.001;
    }
    for (const Onset& onset : findOnsets(traces)) EXPECT_FALSE(onset.found) << samples.size();
  }
  TraceSet noInterval(1);
  noInterval[0].samples = std::vector<double>(100, 1.0);
  EXPECT_FALSE(findOnsets(noInterval)[0].found);
  EXPECT_TRUE(findOnsets({}).empty());
}

struct Blow {
  double shot;
  Side side;
};

TEST(Stations, areWhereTheShotsWere) {
  for (const Blow& blow :
       {Blow{-20.0, Side::kBefore}, Blow{-5.0, Side::kBefore}, Blow{5.0, Side::kInside},
        Blow{20.0, Side::kInside}, Blow{33.0, Side::kInside}, Blow{41.0, Side::kInside},
        Blow{51.0, Side::kBehind}, Blow{70.0, Side::kBehind}}) {
    LinePlan plan;
    plan.shots = {blow.shot};
    const SourceStation station =
        findSourceStation(findOnsets(soundLine(plan).recordings->traceSets[0]));
    EXPECT_EQ(station.side, blow.side) << blow.shot;
    if (blow.side == Side::kInside) {
      EXPECT_NEAR(2.0 * station.station, blow.shot, 0.6);
    }
  }
}

TEST(Stations, areNotGuessedFromNoise) {
  TraceSet traces(24);
  for (std::size_t t = 0; t < traces.size(); ++t) {
    traces[t].sampleInterval = kInterval;
    DemoNoise noise(t + 1);
    for (int i = 0; i < 1200; ++i) traces[t].samples.edit().push_back(noise.next());
  }
  EXPECT_EQ(findSourceStation(findOnsets(traces)).side, Side::kUnknown);
}

}  // namespace
}  // namespace talvesk::doctor

#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "processing/joint/JointPicker.h"
#include "processing/joint/Reciprocity.h"
#include "processing/joint/ZeroPhase.h"

#include <algorithm>
#include <cmath>
#include <random>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

const double kPi = std::acos(-1.0);

/// A line over a layer of `slow` m/s and half a spread deep ground below it, hammered at several
/// places: a causal wavelet with a sharp beginning, a slow wave three times as strong behind it,
/// and noise.
struct Ground {
  double interval = 0.25e-3;
  double spacing = 5.0;
  double frequency = 40.0;
  double noise = 0.1;   ///< RMS, as a share of the largest amplitude of the first arrival
  double lead = 20e-3;  ///< seconds recorded before the shot
  std::size_t channels = 24;
  double slow = 600.0;
  double fast = 1800.0;
  double depth = 8.0;

  double time(double distance) const {
    const double intercept = 2.0 * depth * std::sqrt(1.0 / (slow * slow) - 1.0 / (fast * fast));
    return std::min(distance / slow, intercept + distance / fast);
  }
};

double wavelet(double t, double frequency) {
  return t < 0.0 ? 0.0 : std::sin(2.0 * kPi * frequency * t) * std::exp(-t * frequency);
}

Trace traceAt(const Ground& ground, double distance, std::mt19937& random) {
  std::normal_distribution<double> normal;
  const double amplitude = 1.0 / (1.0 + distance / ground.spacing / 2.0);
  const double arrival = ground.lead + ground.time(distance);
  const double slow = ground.lead + distance / (0.4 * ground.slow);
  const double length =
      ground.lead + 0.1 + 1.5 * ground.spacing * static_cast<double>(ground.channels) / ground.slow;
  Trace trace;
  trace.waveKind = Trace::kFromFile;
  trace.sampleInterval = ground.interval;
  trace.delay = -ground.lead;
  std::vector<double>& samples = trace.samples.edit();
  const double peak = 0.75;  // of the wavelet
  for (double t = 0.0; t < length; t += ground.interval) {
    samples.push_back(amplitude * (wavelet(t - arrival, ground.frequency) +
                                   3.0 * wavelet(t - slow, 0.4 * ground.frequency) +
                                   ground.noise * peak * normal(random)));
  }
  return trace;
}

TomoDocument lineOver(const Ground& ground, const std::vector<double>& shots) {
  TomoDocument document;
  std::vector<Point2D> geophones;
  for (std::size_t c = 0; c < ground.channels; ++c) {
    geophones.push_back({ground.spacing * static_cast<double>(c), 0.0});
  }
  document.line.edit().goephonesStringSet = {geophones};
  std::mt19937 random(11);
  for (const double shot : shots) {
    TraceSet set;
    for (const Point2D& geophone : geophones) {
      set.push_back(traceAt(ground, std::fabs(geophone.x - shot), random));
      set.back().receiverPosition = geophone;
      set.back().sourcePosition = {shot, 0.0};
    }
    TravelTime record;
    record.shotPos2d = {shot, 0.0};
    record.traceSetID = static_cast<std::int32_t>(document.ttArray.size());
    record.ttMisurati = std::vector<double>(set.size(), kUnpicked);
    record.ttCalcolati = std::vector<double>(set.size(), kNoTime);
    document.recordings.edit().traceSets.push_back(std::move(set));
    document.ttArray.edit().push_back(record);
  }
  return document;
}

std::vector<std::int32_t> allShots(const TomoDocument& document) {
  std::vector<std::int32_t> shots;
  for (std::size_t s = 0; s < document.ttArray.size(); ++s) {
    shots.push_back(static_cast<std::int32_t>(s));
  }
  return shots;
}

struct Score {
  double picked = 0.0;   ///< share of the traces
  double within = 0.0;   ///< share of the picks
  double covered = 0.0;  ///< share of the picks whose error is at most twice the stated one
};

Score scoreOf(const TomoDocument& document, const JointPickOutcome& outcome, const Ground& ground,
              double limit) {
  double traces = 0.0;
  double picks = 0.0;
  double within = 0.0;
  double covered = 0.0;
  for (std::size_t s = 0; s < document.ttArray.size(); ++s) {
    const TravelTime& record = document.ttArray[s];
    for (std::size_t t = 0; t < record.ttMisurati.size(); ++t) {
      traces += 1.0;
      if (!hasPick(record.ttMisurati[t])) continue;
      picks += 1.0;
      const double distance =
          std::fabs(ground.spacing * static_cast<double>(t) - record.shotPos2d.x);
      const double off = std::fabs(record.ttMisurati[t] - ground.lead - ground.time(distance));
      within += off <= limit ? 1.0 : 0.0;
      covered += off <= 2.0 * outcome.errors[s][t] ? 1.0 : 0.0;
    }
  }
  return {picks / traces, within / picks, covered / picks};
}

struct Case {
  const char* name;
  Ground ground;
  double limit;   ///< seconds
  double within;  ///< least share of the picks
  double picked;  ///< least share of the traces
};

Ground groundOf(double interval, double spacing, double frequency, double noise, double lead) {
  Ground ground;
  ground.interval = interval;
  ground.spacing = spacing;
  ground.frequency = frequency;
  ground.noise = noise;
  ground.lead = lead;
  ground.depth = 1.6 * spacing;
  return ground;
}

class JointPickerOn : public testing::TestWithParam<Case> {};

TEST_P(JointPickerOn, FollowsTheFirstArrivalsAndKnowsHowWell) {
  const Case& one = GetParam();
  const double end = one.ground.spacing * static_cast<double>(one.ground.channels);
  TomoDocument document = lineOver(one.ground, {-0.5 * one.ground.spacing, 0.4 * end, 1.1 * end});
  JointPickOutcome outcome;
  ASSERT_TRUE(pickJointly(document, allShots(document), {}, outcome).ok());
  const Score score = scoreOf(document, outcome, one.ground, one.limit);
  EXPECT_GE(score.picked, one.picked);
  EXPECT_GE(score.within, one.within);
  EXPECT_GE(score.covered, 0.9);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, JointPickerOn,
    testing::Values(
        Case{"common", groundOf(0.25e-3, 5.0, 40.0, 0.1, 20e-3), 1e-3, 0.95, 0.9},
        Case{"without lead", groundOf(0.25e-3, 5.0, 40.0, 0.1, 0.0), 1e-3, 0.95, 0.85},
        Case{"long before the shot", groundOf(0.25e-3, 5.0, 40.0, 0.1, 0.5), 1e-3, 0.95, 0.9},
        Case{"finely sampled", groundOf(0.0625e-3, 2.0, 80.0, 0.1, 20e-3), 2e-3, 0.9, 0.75},
        Case{"coarsely sampled", groundOf(1e-3, 10.0, 40.0, 0.1, 50e-3), 2e-3, 0.95, 0.85},
        Case{"noisy", groundOf(0.25e-3, 5.0, 40.0, 0.25, 20e-3), 2e-3, 0.9, 0.7}),
    [](const auto& one) {
      std::string name = one.param.name;
      std::replace(name.begin(), name.end(), ' ', '_');
      return name;
    });

TEST(JointPicker, GivesTheSameWithAnyNumberOfThreads) {
  const Ground ground;
  const TomoDocument line = lineOver(ground, {-2.5, 30.0, 57.5, 90.0, 117.5});
  JointPickOptions options;
  options.threads = 1;
  JointPickOutcome outcome;
  TomoDocument one = line;
  ASSERT_TRUE(pickJointly(one, allShots(one), options, outcome).ok());
  options.threads = 3;
  TomoDocument three = line;
  ASSERT_TRUE(pickJointly(three, allShots(three), options, outcome).ok());
  for (std::size_t s = 0; s < one.ttArray.size(); ++s) {
    EXPECT_EQ(*one.ttArray[s].ttMisurati, *three.ttArray[s].ttMisurati);
  }
}

TEST(JointPicker, KeepsWhatAPersonPickedAndFollowsIt) {
  const Ground ground;
  TomoDocument document = lineOver(ground, {-2.5});
  const double hand = ground.lead + ground.time(52.5) + 3e-3;
  document.ttArray.edit()[0].ttMisurati.edit()[10] = hand;
  JointPickOptions options;
  options.keepConfirmed = true;
  JointPickOutcome outcome;
  ASSERT_TRUE(pickJointly(document, {0}, options, outcome).ok());
  EXPECT_EQ(document.ttArray[0].ttMisurati[10], hand);
  EXPECT_FALSE(document.ttArray[0].waits(10));
  EXPECT_TRUE(document.ttArray[0].waits(11));
  EXPECT_EQ(outcome.kept, 1U);
}

TEST(JointPicker, LeavesDeadTracesAndMissingPlacesAlone) {
  const Ground ground;
  TomoDocument document = lineOver(ground, {-2.5});
  TraceSet& set = document.recordings.edit().traceSets[0];
  set[5].samples = std::vector<double>(set[5].samples.size(), 0.0);
  set[6].sampleInterval = 0.0;
  set[7].samples = {};
  JointPickOutcome outcome;
  ASSERT_TRUE(pickJointly(document, {0}, {}, outcome).ok());
  for (const std::size_t trace : {5U, 6U, 7U}) {
    EXPECT_FALSE(hasPick(document.ttArray[0].ttMisurati[trace])) << trace;
  }
  EXPECT_TRUE(hasPick(document.ttArray[0].ttMisurati[4]));
  EXPECT_TRUE(hasPick(document.ttArray[0].ttMisurati[8]));
}

TEST(JointPicker, ChangesNothingWhenItIsStopped) {
  TomoDocument document = lineOver(Ground(), {-2.5, 57.5});
  JointPickOutcome outcome;
  ASSERT_TRUE(pickJointly(document, allShots(document), {}, outcome, [] { return false; }).ok());
  EXPECT_TRUE(outcome.stopped);
  for (const TravelTime& record : document.ttArray) {
    EXPECT_EQ(*record.ttMisurati, std::vector<double>(24, kUnpicked));
  }
}

TEST(Reciprocity, InterpolatesWithinReachAndNotInGaps) {
  // Geophones every 5 m, but none between 20 and 40 m.
  ArrivalCurve curve;
  curve.source = 51.0;
  for (const double x : {0.0, 5.0, 10.0, 15.0, 20.0, 40.0, 45.0, 50.0}) {
    curve.points.push_back({x, std::fabs(x - 51.0) * 1e-3});
  }
  const Reciprocity reciprocity({curve});
  EXPECT_NEAR(reciprocity.timeBack(12.0, 50.0), 39e-3, 1e-12);
  EXPECT_NEAR(reciprocity.timeBack(-2.0, 50.0), 51e-3, 1e-12);
  EXPECT_TRUE(std::isnan(reciprocity.timeBack(30.0, 50.0)));
  EXPECT_TRUE(std::isnan(reciprocity.timeBack(12.0, 45.0)));
  EXPECT_TRUE(std::isnan(reciprocity.timeBack(-3.0, 50.0)));
}

TEST(Reciprocity, PairsShotsThatReachEachOther) {
  const auto curve = [](double source, double late) {
    ArrivalCurve one;
    one.source = source;
    for (int c = 0; c <= 10; ++c) {
      one.points.push_back({5.0 * c, std::fabs(5.0 * c - source) * 1e-3 + late});
    }
    return one;
  };
  const std::vector<ReciprocalPair> pairs =
      Reciprocity({curve(0.0, 0.0), curve(25.0, 4e-3), curve(300.0, 0.0)}).pairs();
  ASSERT_EQ(pairs.size(), 1U);
  EXPECT_NEAR(pairs[0].back - pairs[0].there, 4e-3, 1e-12);
}

TEST(ZeroPhase, DelaysNothingAndPassesTheBandAlone) {
  const double interval = 0.5e-3;
  const auto filtered = [&](double frequency) {
    std::vector<double> wave(4000);
    for (std::size_t i = 0; i < wave.size(); ++i) {
      wave[i] = std::cos(2.0 * kPi * frequency * interval * (static_cast<double>(i) - 2000.0));
    }
    bandPassZeroPhase(wave, interval, 8.0, 200.0);
    return wave;
  };
  EXPECT_NEAR(filtered(40.0)[2000], 1.0, 0.01);
  EXPECT_NEAR(filtered(8.0)[2000], 0.5, 0.01);
  EXPECT_NEAR(filtered(200.0)[2000], 0.5, 0.01);
  EXPECT_LT(std::fabs(filtered(1.0)[2000]), 0.01);
  EXPECT_LT(std::fabs(filtered(800.0)[2000]), 0.01);
  const std::vector<double> wave = filtered(40.0);
  EXPECT_EQ(std::max_element(wave.begin() + 1990, wave.begin() + 2010) - wave.begin(), 2000);
}

}  // namespace
}  // namespace talvesk

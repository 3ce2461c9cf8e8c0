#include "SyntheticLine.h"
#include "base/SampleStore.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "processing/joint/ArrivalPath.h"
#include "processing/joint/ArrivalSmoothing.h"
#include "processing/joint/JointPicker.h"
#include "processing/joint/OnsetFilters.h"
#include "processing/joint/PickError.h"
#include "processing/joint/Reciprocity.h"

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

const double kPi = std::acos(-1.0);

using test::allShots;
using test::Ground;
using test::lineOver;

struct Score {
  double picked = 0.0;      ///< share of the traces
  double within = 0.0;      ///< share of the picks
  double covered = 0.0;     ///< share of the picks whose error is at most the stated one
  double sureButOff = 0.0;  ///< share of the good picks that are more than 5 ms off
};

Score scoreOf(const TomoDocument& document, const JointPickOutcome& outcome, const Ground& ground,
              double limit) {
  double traces = 0.0;
  double picks = 0.0;
  double good = 0.0;
  Score score;
  for (std::size_t s = 0; s < document.ttArray.size(); ++s) {
    const TravelTime& record = document.ttArray[s];
    for (std::size_t t = 0; t < record.ttMisurati.size(); ++t) {
      traces += 1.0;
      if (!hasPick(record.ttMisurati[t])) continue;
      picks += 1.0;
      const double geophone = ground.spacing * static_cast<double>(t);
      const double truth = ground.lead + ground.time(record.shotPos2d.x, geophone);
      const double off = std::fabs(record.ttMisurati[t] - truth);
      const double error = outcome.errors[s][t];
      score.within += off <= limit ? 1.0 : 0.0;
      score.covered += off <= error ? 1.0 : 0.0;
      if (error > 1e-3 * parameters::kGoodPick.value) continue;
      good += 1.0;
      score.sureButOff += off > 5e-3 ? 1.0 : 0.0;
    }
  }
  score.picked = picks / traces;
  score.within /= picks;
  score.covered /= picks;
  score.sureButOff /= std::max(good, 1.0);
  return score;
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

template <typename Change>
Ground common(Change change) {
  Ground ground = groundOf(0.25e-3, 5.0, 40.0, 0.1, 20e-3);
  change(ground);
  return ground;
}

class JointPickerOn : public testing::TestWithParam<Case> {};

TEST_P(JointPickerOn, FollowsTheFirstArrivalsAndKnowsHowWell) {
  const Case& one = GetParam();
  const double end = one.ground.length();
  const double beside = 0.1 * one.ground.spacing;
  TomoDocument document =
      lineOver(one.ground, {-0.02 * end + beside, 0.25 * end + beside, 0.5 * end + beside,
                            0.75 * end + beside, 1.3 * end});
  JointPickOutcome outcome;
  ASSERT_TRUE(pickJointly(document, allShots(document), {}, outcome).ok());
  const Score score = scoreOf(document, outcome, one.ground, one.limit);
  EXPECT_GE(score.picked, one.picked);
  EXPECT_GE(score.within, one.within);
  EXPECT_GE(score.covered, 0.45);
  EXPECT_LE(score.sureButOff, 0.02);
}

INSTANTIATE_TEST_SUITE_P(
    Lines, JointPickerOn,
    testing::Values(
        Case{"common", common([](Ground&) {}), 1e-3, 0.94, 0.95},
        Case{"without lead", common([](Ground& g) { g.lead = 0.0; }), 1e-3, 0.85, 0.95},
        Case{"long before the shot", common([](Ground& g) { g.lead = 0.5; }), 1e-3, 0.94, 0.95},
        Case{"quiet", common([](Ground& g) { g.noise = 0.02; }), 1e-3, 0.95, 0.95},
        Case{"noisy", common([](Ground& g) { g.noise = 0.25; }), 2e-3, 0.9, 0.95},
        Case{"coloured noise", common([](Ground& g) { g.colour = 0.95; }), 2e-3, 0.9, 0.9},
        Case{"weak first arrivals", common([](Ground& g) { g.refracted = 0.3; }), 2e-3, 0.95, 0.95},
        Case{"weak and noisy", common([](Ground& g) {
               g.refracted = 0.3;
               g.noise = 0.25;
             }),
             5e-3, 0.98, 0.9},
        Case{"dipping", common([](Ground& g) { g.dip = 16.0; }), 2e-3, 0.95, 0.95},
        Case{"six channels", common([](Ground& g) { g.channels = 6; }), 2e-3, 0.9, 0.9},
        Case{"finely sampled", groundOf(0.0625e-3, 2.0, 80.0, 0.1, 20e-3), 1e-3, 0.9, 0.9},
        Case{"finest", groundOf(0.02e-3, 0.25, 200.0, 0.1, 5e-3), 2e-3, 0.95, 0.85},
        Case{"coarsely sampled", groundOf(1e-3, 10.0, 40.0, 0.1, 50e-3), 2e-3, 0.95, 0.95},
        Case{"coarsest", groundOf(4e-3, 50.0, 20.0, 0.1, 0.2), 5e-3, 0.95, 0.85}),
    [](const auto& one) {
      std::string name = one.param.name;
      std::replace(name.begin(), name.end(), ' ', '_');
      return name;
    });

TEST(JointPicker, givesTheSameWhereMemoryIsTooShortToKeepPreparedTraces) {
  const Ground ground;
  const TomoDocument line = lineOver(ground, {-2.5, 30.0, 57.5, 90.0, 117.5});
  SampleStore& store = SampleStore::instance();
  const std::size_t limit = store.memoryLimit();
  TomoDocument kept = line;
  TomoDocument twice = line;
  JointPickOutcome ofKept;
  JointPickOutcome ofTwice;
  ASSERT_TRUE(pickJointly(kept, allShots(kept), {}, ofKept).ok());
  store.setMemoryLimit(store.usage().memory);
  ASSERT_EQ(store.spare(), 0U);
  const Status picked = pickJointly(twice, allShots(twice), {}, ofTwice);
  store.setMemoryLimit(limit);
  ASSERT_TRUE(picked.ok());
  EXPECT_GT(ofKept.good, 100U);
  for (std::size_t s = 0; s < line.ttArray.size(); ++s) {
    EXPECT_EQ(twice.ttArray[s].ttMisurati, kept.ttArray[s].ttMisurati) << s;
    EXPECT_EQ(twice.ttArray[s].pickErrors, kept.ttArray[s].pickErrors) << s;
  }
}

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
  const double hand = ground.lead + ground.time(-2.5, 50.0) + 3e-3;
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

TEST(JointPicker, FillsWithoutMovingAnyOfManyConfirmedPicks) {
  const Ground ground;
  TomoDocument document = lineOver(ground, {57.6});
  std::vector<double>& times = document.ttArray.edit()[0].ttMisurati.edit();
  // A person's picks need not be where the machine sees anything, nor make a likely path.
  times[3] = ground.lead + ground.time(57.6, 15.0) - 25e-3;
  times[9] = ground.lead + ground.time(57.6, 45.0) + 40e-3;
  times[20] = 5e-3;
  const std::vector<double> hand = times;
  JointPickOutcome outcome;
  ASSERT_TRUE(fillAlong(document, 0, {}, {}, outcome).ok());
  for (const std::size_t trace : {3U, 9U, 20U}) {
    EXPECT_EQ(document.ttArray[0].ttMisurati[trace], hand[trace]);
    EXPECT_FALSE(document.ttArray[0].waits(trace));
    EXPECT_TRUE(std::isnan(outcome.errors[0][trace]));
  }
  EXPECT_EQ(outcome.kept, 3U);
  EXPECT_GT(outcome.good + outcome.doubtful, 12U);
}

TEST(ArrivalPath, NeverPassesAFixedArrivalBy) {
  std::vector<double> quiet(400, 0.0);
  const OnsetTrace silent = prepareOnset(quiet, 0.5e-3, 0.0, 0.2, {});
  std::vector<ArrivalChannel> channels(5);
  const double fixed[] = {10e-3, 90e-3, 20e-3, 150e-3, 1e-3};
  for (std::size_t c = 0; c < channels.size(); ++c) {
    channels[c].onset = &silent;
    channels[c].offset = 5.0 * static_cast<double>(c + 1);
    channels[c].fixed = fixed[c];
  }
  EXPECT_EQ(followArrivals(channels, 1.0), std::vector<double>(std::begin(fixed), std::end(fixed)));
}

TEST(ArrivalPath, SeesNothingOutOfAGuidesReach) {
  OnsetTrace two;  // a clear onset at 20 ms, a weaker one at 60 ms
  two.interval = 1e-3;
  two.signal.assign(200, 0.0);
  two.likelihood.assign(200, 0.0F);
  two.likelihood[20] = two.largest = 30.0F;
  two.likelihood[60] = 10.0F;
  two.to = 200;
  ArrivalChannel channel;
  channel.onset = &two;
  channel.offset = 5.0;
  EXPECT_NEAR(followArrivals({channel}, 1.0)[0], 20e-3, 1e-9);
  channel.reach = 15e-3;
  channel.guide = 55e-3;
  EXPECT_NEAR(followArrivals({channel}, 1.0)[0], 60e-3, 1e-9);
  channel.reach = 10e-3;
  channel.guide = 32e-3;  // the clear onset is 12 ms off
  EXPECT_TRUE(std::isnan(followArrivals({channel}, 1.0)[0]));
}

TEST(JointPicker, KeepsWithinReachOfADrawnLine) {
  const Ground ground = common([](Ground& g) { g.surface = 20.0; });
  TomoDocument document = lineOver(ground, {-2.5});
  // Along the slow wave from 50 to 100 m, drawn from right to left.
  const auto slow = [&](double x) { return ground.lead + (x + 2.5) / (0.4 * ground.slow); };
  GuideLine guide;
  guide.points = {{100.0, slow(100.0)}, {50.0, slow(50.0)}};
  guide.reach = 8e-3;
  JointPickOutcome outcome;
  ASSERT_TRUE(fillAlong(document, 0, guide, {}, outcome).ok());
  std::size_t guided = 0;
  for (std::size_t t = 10; t <= 20; ++t) {
    const double time = document.ttArray[0].ttMisurati[t];
    if (!hasPick(time)) continue;
    ++guided;
    EXPECT_NEAR(time, slow(5.0 * static_cast<double>(t)), guide.reach + 1e-9) << t;
  }
  EXPECT_GE(guided, 6U);
  const double before = document.ttArray[0].ttMisurati[6];
  EXPECT_NEAR(before, ground.lead + ground.time(-2.5, 30.0), 3e-3);
}

TEST(JointPicker, RefusesAGuideThatIsNone) {
  TomoDocument document = lineOver(Ground(), {-2.5});
  const std::vector<double> before = *document.ttArray[0].ttMisurati;
  JointPickOutcome outcome;
  GuideLine endless;
  endless.points = {{0.0, std::nan("")}};
  const Status noTimes = fillAlong(document, 0, endless, {}, outcome);
  EXPECT_FALSE(noTimes.ok());
  for (const double reach : {-1e-3, std::nan("")}) {
    GuideLine narrow;
    narrow.reach = reach;
    const Status noReach = fillAlong(document, 0, narrow, {}, outcome);
    EXPECT_FALSE(noReach.ok());
    EXPECT_NE(noReach.message(), noTimes.message());
  }
  EXPECT_FALSE(fillAlong(document, 7, {}, {}, outcome).ok());
  EXPECT_EQ(*document.ttArray[0].ttMisurati, before);
}

std::vector<SmoothArrival> arrivalsAlong(double (*time)(double offset)) {
  std::vector<SmoothArrival> arrivals;
  for (int i = 0; i < 16; ++i) arrivals.push_back({5.0 * i, time(5.0 * i), 1.0});
  return arrivals;
}

TEST(ArrivalSmoothing, LeavesALineWhereItIsAndIsSurerOfItThanOfAnyArrival) {
  std::vector<SmoothArrival> arrivals = arrivalsAlong([](double x) { return 3.0 + x; });
  smoothArrivals(arrivals);
  for (const SmoothArrival& one : arrivals) {
    EXPECT_NEAR(one.time, 3.0 + one.offset, 1e-9);
    EXPECT_LT(one.error, 1.0);
    EXPECT_NEAR(one.later, 0.0, 1e-9);
  }
  EXPECT_LT(arrivals[8].error, arrivals[15].error);  // which has neighbours on one side only
}

TEST(ArrivalSmoothing, KeepsTheCornerThatAFasterLayerMakes) {
  const auto time = [](double x) { return std::min(x / 0.5, 50.0 + x / 2.5); };
  std::vector<SmoothArrival> arrivals = arrivalsAlong(time);
  smoothArrivals(arrivals);
  for (const SmoothArrival& one : arrivals) EXPECT_NEAR(one.time, time(one.offset), 1.0);
}

TEST(ArrivalSmoothing, LetsAnUnsureArrivalFollowItsNeighboursAndNotThemFollowIt) {
  std::vector<SmoothArrival> arrivals = arrivalsAlong([](double x) { return x; });
  arrivals[7].time += 6.0;
  arrivals[7].error = 4.0;
  smoothArrivals(arrivals);
  EXPECT_NEAR(arrivals[7].time, 35.0, 1.0);
  EXPECT_LT(arrivals[7].error, 1.5);
  EXPECT_NEAR(arrivals[6].time, 30.0, 0.3);
  EXPECT_NEAR(arrivals[8].time, 40.0, 0.3);
}

TEST(ArrivalSmoothing, TellsWhereTheArrivalsFallBehind) {
  std::vector<SmoothArrival> arrivals = arrivalsAlong([](double x) { return x; });
  for (std::size_t i = 12; i < 16; ++i) arrivals[i].time += 10.0;
  smoothArrivals(arrivals);
  EXPECT_LT(arrivals[9].later, 1.0);
  EXPECT_GT(arrivals[13].later, 7.0);
}

TEST(ArrivalSmoothing, TakesFewArrivalsAndDoubledPlaces) {
  std::vector<SmoothArrival> none;
  smoothArrivals(none);
  EXPECT_TRUE(none.empty());
  std::vector<SmoothArrival> two = {{5.0, 7.0, 0.5}, {10.0, 9.0, 2.0}};
  smoothArrivals(two);
  EXPECT_NEAR(two[0].time, 7.0, 1e-12);
  EXPECT_NEAR(two[1].error, 2.0, 1e-12);
  std::vector<SmoothArrival> doubled(4, SmoothArrival{5.0, 7.0, 1.0});
  doubled[2].time = 8.0;
  smoothArrivals(doubled);
  for (const SmoothArrival& one : doubled) {
    EXPECT_NEAR(one.time, 7.25, 0.5);
    EXPECT_TRUE(std::isfinite(one.error));
  }
}

TEST(PickError, GrowsWhereABreakBeginsSlowlyOrStandsInNoise) {
  const auto traceOf = [](double risesFor, double noise) {
    OnsetTrace trace;
    trace.interval = 0.25e-3;
    for (int i = 0; i < 800; ++i) {
      const double ms = 0.25 * i - 100.0;
      const double swing = ms < 0.0 ? 0.0 : std::min(ms / risesFor, 1.0);
      trace.signal.push_back(swing + (i % 2 == 0 ? noise : -noise));
    }
    return trace;
  };
  const OnsetTrace sharp = traceOf(3.0, 0.0);
  const OnsetTrace slow = traceOf(14.0, 0.0);
  EXPECT_LT(beginningError(sharp, 0.1, 1.0), 0.2e-3);
  EXPECT_GT(beginningError(slow, 0.1, 1.0), 1e-3);
  EXPECT_LT(beginningError(slow, 0.1, 1.0), 3e-3);
  EXPECT_GT(beginningError(sharp, 0.3, 1.0), 0.5);  // behind its end there is nothing
  EXPECT_EQ(arrivalError(sharp, 0.1, 1.0), 0.0);
  EXPECT_GT(arrivalError(traceOf(3.0, 0.4), 0.1, 1.0), 3e-3);
}

TEST(JointPicker, StatesErrorsNeitherTooSmallNorTooLarge) {
  double picks = 0.0;
  double covered = 0.0;
  for (const double noise : {0.02, 0.1, 0.25}) {
    for (const double frequency : {30.0, 40.0, 80.0}) {
      const Ground ground = groundOf(0.25e-3, 5.0, frequency, noise, 20e-3);
      TomoDocument document = lineOver(ground, {-1.8, 30.0, 58.0, 150.0});
      JointPickOutcome outcome;
      ASSERT_TRUE(pickJointly(document, allShots(document), {}, outcome).ok());
      const Score score = scoreOf(document, outcome, ground, 1e-3);
      picks += score.picked;
      covered += score.picked * score.covered;
    }
  }
  EXPECT_GE(covered / picks, 0.6);
  EXPECT_LE(covered / picks, 0.86);
}

TEST(JointPicker, TakesDoubledPlacesInAnyOrder) {
  const Ground ground;
  TomoDocument document = lineOver(ground, {-2.5});
  std::vector<Point2D>& geophones = document.line.edit().goephonesStringSet[0];
  geophones[12] = geophones[11];
  JointPickOutcome outcome;
  ASSERT_TRUE(pickJointly(document, {0}, {}, outcome).ok());
  EXPECT_GE(outcome.good, 18U);
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

TEST(OnsetFilters, LeaveOnsetsWhereTheyAreAndPassTheBandAlone) {
  const double interval = 0.5e-3;
  const auto filtered = [&](double frequency) {
    std::vector<double> wave(4000);
    for (std::size_t i = 0; i < wave.size(); ++i) {
      wave[i] = std::cos(2.0 * kPi * frequency * interval * (static_cast<double>(i) - 2000.0));
    }
    highPassForward(wave, interval, 8.0);
    lowPassZeroPhase(wave, interval, 200.0);
    return *std::max_element(wave.begin() + 1000, wave.end() - 1000);
  };
  EXPECT_NEAR(filtered(40.0), 1.0, 0.01);
  EXPECT_NEAR(filtered(8.0), std::sqrt(0.5), 0.01);
  EXPECT_NEAR(filtered(200.0), 0.5, 0.01);
  EXPECT_LT(filtered(1.0), 0.02);
  EXPECT_LT(filtered(800.0), 0.01);
}

TEST(OnsetFilters, TheHighPassPutsNothingBeforeAStrongWave) {
  std::vector<double> wave(2000, 0.0);
  for (std::size_t i = 1000; i < wave.size(); ++i) {
    wave[i] = 1e6 * std::sin(2.0 * kPi * 15.0 * 0.5e-3 * static_cast<double>(i - 1000));
  }
  highPassForward(wave, 0.5e-3, 8.0);
  EXPECT_EQ(*std::max_element(wave.begin(), wave.begin() + 1000), 0.0);
  EXPECT_EQ(*std::min_element(wave.begin(), wave.begin() + 1000), 0.0);
}

}  // namespace
}  // namespace talvesk

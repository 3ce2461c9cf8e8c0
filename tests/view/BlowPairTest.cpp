#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "support/ShotDocument.h"
#include "view/BlowPair.h"

#include <cmath>
#include <limits>

#include <gmock/gmock.h>

namespace talvesk {
namespace {

using ::testing::HasSubstr;
using ::testing::IsEmpty;
using testing::shotDocument;

constexpr double kInterval = 0.00025;  // of shotDocument()

std::vector<double> samplesOf(const BlowPair& pair, BlowPair::Set set, std::size_t trace) {
  const Samples& samples = pair.document.recordings->traceSets[set][trace].samples;
  return {samples.begin(), samples.end()};
}

/// Two shots at one place whose traces are P plus S, and P less S.
TomoDocument oppositeBlows(std::size_t traces = 6) {
  TomoDocument document = shotDocument(2, traces, 80);
  document.ttArray.edit()[1].shotPos2d = document.ttArray[0].shotPos2d;
  for (std::size_t shot = 0; shot < 2; ++shot) {
    for (Trace& trace : document.recordings.edit().traceSets[shot]) {
      for (std::size_t i = 0; i < trace.samples.size(); ++i) {
        const double p = std::sin(0.7 * static_cast<double>(i));
        const double s = std::cos(0.2 * static_cast<double>(i));
        trace.samples.edit()[i] = shot == 0 ? p + s : p - s;
      }
    }
  }
  return document;
}

BlowPair layered(const TomoDocument& document, const BlowPairOptions& options = {}) {
  BlowPair pair;
  const Status status = layOver(document, {0}, {1}, options, pair);
  EXPECT_TRUE(status.ok()) << status.message();
  return pair;
}

TEST(BlowPair, differenceEnhancesWhatChangesItsSignAndSumTheRest) {
  const BlowPair pair = layered(oppositeBlows());
  ASSERT_TRUE(pair.hasSum());
  EXPECT_EQ(pair.matched, 6U);
  for (std::size_t trace = 0; trace < 6; ++trace) {
    const std::vector<double> difference = samplesOf(pair, BlowPair::kDifference, trace);
    const std::vector<double> sum = samplesOf(pair, BlowPair::kSum, trace);
    ASSERT_EQ(difference.size(), 80U);
    for (std::size_t i = 0; i < 80; ++i) {
      EXPECT_NEAR(difference[i], 2.0 * std::cos(0.2 * static_cast<double>(i)), 1e-12);
      EXPECT_NEAR(sum[i], 2.0 * std::sin(0.7 * static_cast<double>(i)), 1e-12);
    }
  }
  EXPECT_EQ(pair.document.ttArray[BlowPair::kFirst].ttMisurati[3], testing::firstBreak(3));
  EXPECT_FALSE(hasPick(pair.document.ttArray[BlowPair::kDifference].ttMisurati[3]));
}

TEST(BlowPair, tracesGoTogetherByTheirPlacesAndTheRestIsCounted) {
  TomoDocument document = shotDocument(2, 6, 40);
  // The second shot on a string that runs the other way, two geophones further.
  std::vector<Point2D> moved;
  for (int i = 0; i < 6; ++i) moved.push_back({14.0 + 2.0 * (5 - i) + 0.04, 0.0});
  document.line.edit().goephonesStringSet.push_back(moved);
  document.ttArray.edit()[1].indexStesa = 1;
  for (std::size_t i = 0; i < 6; ++i) {
    document.recordings.edit().traceSets[1][i].samples =
        std::vector<double>(40, 1.0 + static_cast<double>(i));
  }
  const BlowPair pair = layered(document);
  EXPECT_EQ(pair.matched, 4U);
  EXPECT_EQ(pair.unmatchedFirst, 2U);
  EXPECT_EQ(pair.unmatchedSecond, 2U);
  for (std::size_t trace = 0; trace < 4; ++trace) {
    EXPECT_EQ(pair.document.line->goephonesStringSet[0][trace].x,
              14.0 + 2.0 * static_cast<double>(trace));
    EXPECT_EQ(samplesOf(pair, BlowPair::kSecond, trace)[0], 6.0 - static_cast<double>(trace));
  }
  BlowPairOptions narrow;
  narrow.tolerance = 0.01;
  BlowPair none;
  const Status status = layOver(document, {0}, {1}, narrow, none);
  EXPECT_FALSE(status.ok());
  EXPECT_THAT(status.message(), HasSubstr("shot 1 and shot 2"));
}

TEST(BlowPair, killedTracesAreLeftOut) {
  TomoDocument document = oppositeBlows();
  ShotMends mends;
  mends.traces.resize(3);
  mends.traces[2].killed = true;
  ASSERT_TRUE(setMends(1, mends, document).ok());
  const BlowPair pair = layered(document);
  EXPECT_EQ(pair.matched, 5U);
  EXPECT_EQ(pair.killed, 1U);
}

struct Delays {
  double first;  ///< seconds
  double second;
  int shift;  ///< samples
};

class BlowPairStarts : public ::testing::TestWithParam<Delays> {};

TEST_P(BlowPairStarts, recordsAreMovedByWholeSamples) {
  TomoDocument document = oppositeBlows();
  const auto [first, second, shift] = GetParam();
  for (Trace& trace : document.recordings.edit().traceSets[0]) trace.delay = first;
  for (Trace& trace : document.recordings.edit().traceSets[1]) trace.delay = second;
  const BlowPair pair = layered(document);
  ASSERT_TRUE(pair.hasSum());
  EXPECT_NEAR(pair.secondLater, second - first, 1e-12);
  const std::vector<double> a = samplesOf(pair, BlowPair::kFirst, 0);
  const std::vector<double> difference = samplesOf(pair, BlowPair::kDifference, 0);
  const Samples& raw = document.recordings->traceSets[1][0].samples;
  EXPECT_EQ(static_cast<int>(pair.zerosAtStart), std::max(shift, 0));
  EXPECT_EQ(static_cast<int>(pair.cutAtEnd), std::max(-shift, 0));
  ASSERT_EQ(static_cast<int>(difference.size()), 80 - std::max(-shift, 0));
  for (int i = std::max(shift, 0); i < static_cast<int>(difference.size()); ++i) {
    const auto at = static_cast<std::size_t>(i);
    EXPECT_EQ(difference[at], a[at] - raw[static_cast<std::size_t>(i - shift)]);
  }
  // Picks move with their traces.
  EXPECT_NEAR(pair.document.ttArray[BlowPair::kSecond].ttMisurati[4],
              testing::firstBreak(4) + shift * kInterval, 1e-12);
  EXPECT_EQ(pair.document.recordings->traceSets[BlowPair::kSum][0].delay, first);
}

INSTANTIATE_TEST_SUITE_P(All, BlowPairStarts,
                         ::testing::Values(Delays{0.0, 0.0, 0}, Delays{-0.005, -0.0025, 10},
                                           Delays{-0.0025, -0.005, -10}));

struct TooFar {
  double later;     ///< that the second begins, seconds
  double interval;  ///< of the second
  bool laid;
};

class BlowPairFarApart : public ::testing::TestWithParam<TooFar> {};

/// A delay of hours in a header would be gigabytes of nothing before the second.
TEST_P(BlowPairFarApart, areRefusedUnlessTheyMeetInFewSamples) {
  const auto [later, interval, laid] = GetParam();
  TomoDocument document = oppositeBlows();
  for (Trace& trace : document.recordings.edit().traceSets[1]) {
    trace.delay = later;
    trace.sampleInterval = interval;
  }
  BlowPair pair;
  const Status status = layOver(document, {0}, {1}, {}, pair);
  EXPECT_EQ(status.ok(), laid) << status.message();
  if (!laid) {
    EXPECT_THAT(status.message(), HasSubstr("begin too far apart in time"));
    return;
  }
  for (const TraceSet& set : pair.document.recordings->traceSets) {
    for (const Trace& trace : set) EXPECT_LE(trace.samples.size(), 10U * 80U);
  }
}

// 80 samples of 0.25 ms are 20 ms.
INSTANTIATE_TEST_SUITE_P(
    All, BlowPairFarApart,
    ::testing::Values(TooFar{0.01, kInterval, true}, TooFar{0.02, kInterval, false},
                      TooFar{-0.02, kInterval, false}, TooFar{3600.0, kInterval, false},
                      TooFar{-1e300, kInterval, false}, TooFar{0.019, 1e-9, false},
                      TooFar{0.019, kInterval / 8, true}));

TEST(BlowPair, leavesOutTheTracesWhoseRecordsDoNotMeet) {
  TomoDocument document = oppositeBlows();
  document.recordings.edit().traceSets[1][4].delay = 60.0;
  const BlowPair pair = layered(document);
  EXPECT_EQ(pair.matched, 5U);
  EXPECT_EQ(pair.tooFarInTime, 1U);
  EXPECT_THAT(describeLosses(pair),
              ::testing::ElementsAre(
                  Message("left out: 1 pairs whose records begin too far apart in time")));
}

struct Places {
  double apart;  ///< metres; geophones are 2 m apart
  bool matters;
  const char* words;
};

class BlowPairPlaces : public ::testing::TestWithParam<Places> {};

TEST_P(BlowPairPlaces, areToldAndDoubtedBeyondATenthOfTheSpacing) {
  TomoDocument document = oppositeBlows();
  document.ttArray.edit()[1].shotPos2d.x += GetParam().apart;
  const BlowPair pair = layered(document);
  EXPECT_NEAR(pair.shotsApart, GetParam().apart, 1e-12);
  EXPECT_EQ(pair.spacing, 2.0);
  EXPECT_EQ(pair.isOfTwoPlaces(), GetParam().matters);
  EXPECT_EQ(describeShotPlaces(pair).english(), GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(
    All, BlowPairPlaces,
    ::testing::Values(
        Places{0.0, false, "the shots are at one place"},
        Places{0.125, false, "the shots are 0.125 m apart"},
        Places{0.5, true, "the shots are 0.5 m apart: difference and sum are not of one place"}));

TEST(BlowPair, goesByNumbersWhereNobodyKnowsPlaces) {
  TomoDocument document = shotDocument(2, 96, 40);
  for (TravelTime& record : document.ttArray.edit()) record.shotPos2d = {0.0, 0.0};
  for (Point2D& place : document.line.edit().goephonesStringSet[0]) place = {0.0, 0.0};
  for (std::size_t i = 0; i < 96; ++i) {
    for (TraceSet& set : document.recordings.edit().traceSets) {
      set[i].samples = std::vector<double>(40, static_cast<double>(i));
    }
  }
  const BlowPair pair = layered(document);
  EXPECT_EQ(pair.matched, 96U);
  EXPECT_TRUE(pair.withoutPlaces && pair.arePlacesDoubtful());
  EXPECT_THAT(describeMatch(pair).english(), HasSubstr("by their numbers"));
  for (std::size_t trace = 0; trace < 96; ++trace) {
    EXPECT_EQ(samplesOf(pair, BlowPair::kSum, trace)[5], 2.0 * static_cast<double>(trace));
  }
  document.ttArray.edit()[1].shotPos2d.x = std::numeric_limits<double>::quiet_NaN();
  EXPECT_THAT(describeShotPlaces(layered(document)).english(), HasSubstr("is not known"));
  EXPECT_FALSE(layered(oppositeBlows()).arePlacesDoubtful());
}

TEST(BlowPair, refusesASumOfWhatIsSampledOtherwise) {
  TomoDocument document = oppositeBlows();
  for (Trace& trace : document.recordings.edit().traceSets[1]) trace.sampleInterval = 0.0005;
  const BlowPair intervals = layered(document);
  EXPECT_THAT(intervals.noSum.english(), HasSubstr("0.25 ms and 0.5 ms"));
  EXPECT_EQ(intervals.document.recordings->traceSets.size(), 2U);
  document = oppositeBlows();
  for (Trace& trace : document.recordings.edit().traceSets[0]) trace.delay = -0.4 * kInterval;
  EXPECT_THAT(layered(document).noSum.english(), HasSubstr("0.4 samples"));
}

TEST(BlowPair, makesTheSecondAsStrongAsTheFirst) {
  TomoDocument document = oppositeBlows();
  for (Trace& trace : document.recordings.edit().traceSets[1]) {
    for (double& sample : trace.samples.edit()) sample *= 4.0;
  }
  const double strength = layered(oppositeBlows()).strength;
  EXPECT_NEAR(layered(document).strength, 4.0 * strength, 1e-12);
  EXPECT_EQ(layered(document).factor, 1.0);
  BlowPairOptions options;
  options.balanced = true;
  const BlowPair pair = layered(document, options);
  EXPECT_NEAR(pair.factor, 0.25 / strength, 1e-12);
  // Longer records, with nothing but noise after those of the first, are no stronger.
  for (Trace& trace : document.recordings.edit().traceSets[1]) {
    trace.samples.edit().resize(2 * trace.samples.size(), 1e6);
  }
  EXPECT_NEAR(layered(document).strength, 4.0 * strength, 1e-12);
  EXPECT_NEAR(samplesOf(pair, BlowPair::kSecond, 1)[7],
              document.recordings->traceSets[1][1].samples[7] * pair.factor, 1e-12);
}

TEST(BlowPair, proposesTheRepeatElseTheNearest) {
  TomoDocument document = shotDocument(5, 3, 20);  // at 9, 13, 17, 21 and 25 m
  EXPECT_EQ(counterpartOf(document, {4})->shot, 3U);
  EXPECT_EQ(counterpartOf(document, {2})->shot, 3U);
  document.ttArray.edit()[4].shotPos2d = document.ttArray[1].shotPos2d;
  EXPECT_EQ(counterpartOf(document, {1})->shot, 4U);
  EXPECT_EQ(counterpartOf(document, {4})->shot, 1U);
  EXPECT_FALSE(counterpartOf(shotDocument(1, 3, 20), {0}));
}

TEST(BlowPair, takesTheTwoRecordingsOfAnSWavePairApart) {
  TomoDocument document = shotDocument(2, 3, 20);
  for (Trace& trace : document.recordings.edit().traceSets[1]) {
    trace.waveKind = Trace::kSWavePair;
    trace.samplesDX = std::vector<double>(20, 3.0);
    trace.samplesSX = std::vector<double>(20, -1.0);
  }
  EXPECT_EQ(blowsOf(document).size(), 3U);
  const Blow dx{1, Blow::Part::kDX};
  const std::optional<Blow> other = counterpartOf(document, dx);
  ASSERT_TRUE(other);
  EXPECT_TRUE(*other == (Blow{1, Blow::Part::kSX}));
  BlowPair pair;
  ASSERT_TRUE(layOver(document, dx, *other, {}, pair).ok());
  EXPECT_EQ(samplesOf(pair, BlowPair::kDifference, 2)[5], 4.0);
  EXPECT_EQ(samplesOf(pair, BlowPair::kSum, 2)[5], 2.0);
}

TEST(BlowPair, failsForShotsThatAreNotThere) {
  TomoDocument document = shotDocument(2, 3, 20);
  BlowPair pair;
  EXPECT_FALSE(layOver(document, {0}, {2}, {}, pair).ok());
  for (Trace& trace : document.recordings.edit().traceSets[1]) trace.samples = {};
  EXPECT_FALSE(layOver(document, {0}, {1}, {}, pair).ok());
  EXPECT_EQ(pair.matched, 0U);
}

}  // namespace
}  // namespace talvesk

#include "model/MendedTraces.h"
#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/SWavePair.h"
#include "model/SurveyGeometry.h"
#include "model/SurveyLine.h"
#include "processing/ShotTime.h"

#include <cstring>
#include <limits>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

constexpr double kInterval = 0.001;
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
using Values = std::vector<double>;

/// Three channels of six samples, shot after shot at one place: sample k of channel c of shot s is
/// 100 (s + 1) + 10 c + k + 1.
TomoDocument repeats(std::size_t shots) {
  TomoDocument document;
  document.line.edit().goephonesStringSet = {{{1.0, 0.0}, {2.0, 0.0}, {3.0, 0.0}}};
  for (std::size_t s = 0; s < shots; ++s) {
    TraceSet set(3);
    for (std::size_t c = 0; c < 3; ++c) {
      Values samples;
      for (int k = 0; k < 6; ++k) {
        samples.push_back(100.0 * static_cast<double>(s + 1) + 10.0 * static_cast<double>(c) + k +
                          1);
      }
      set[c].waveKind = Trace::kFromFile;
      set[c].samples = samples;
      set[c].sampleInterval = kInterval;
      set[c].receiverPosition = {1.0 + static_cast<double>(c), 0.0};
      set[c].furtherValue2 = static_cast<double>(c);
    }
    TravelTime record;
    record.traceSetID = static_cast<std::int32_t>(s);
    record.ttMisurati = {0.0021, 0.0032, kNoTime};
    record.ttCalcolati = {kNoTime, kNoTime, kNoTime};
    record.setWaiting(1, true);
    record.setError(0, 0.0005);
    record.setError(1, 0.0025);
    document.ttArray.edit().push_back(record);
    document.recordings.edit().traceSets.push_back(set);
  }
  return document;
}

ShotMends shift(double seconds) {
  ShotMends mends;
  mends.timeShift = seconds;
  return mends;
}
ShotMends disabled() {
  ShotMends mends;
  mends.disabled = true;
  return mends;
}
ShotMends reversedOrder() {
  ShotMends mends;
  mends.orderReversed = true;
  return mends;
}
ShotMends trace(std::size_t index, TraceMend mend) {
  ShotMends mends;
  mends.traces.resize(index + 1);
  mends.traces[index] = mend;
  return mends;
}
ShotMends stack(std::vector<std::int32_t> others) {
  ShotMends mends;
  mends.stackedWith = std::move(others);
  return mends;
}

void expectSameBytes(Span<double> a, Span<double> b, const std::string& what) {
  ASSERT_EQ(a.size(), b.size()) << what;
  if (!a.empty()) {
    EXPECT_EQ(std::memcmp(a.data(), b.data(), a.size() * sizeof(double)), 0) << what;
  }
}

void expectSame(const TomoDocument& a, const TomoDocument& b, const std::string& what) {
  ASSERT_EQ(a.recordings->traceSets.size(), b.recordings->traceSets.size()) << what;
  for (std::size_t s = 0; s < a.ttArray.size(); ++s) {
    expectSameBytes(a.ttArray[s].ttMisurati, b.ttArray[s].ttMisurati, what);
    for (std::size_t t = 0; t < a.recordings->traceSets[s].size(); ++t) {
      const Trace& x = a.recordings->traceSets[s][t];
      const Trace& y = b.recordings->traceSets[s][t];
      expectSameBytes(x.samples, y.samples, what);
      expectSameBytes(x.samplesDX, y.samplesDX, what);
      expectSameBytes(x.samplesSX, y.samplesSX, what);
      EXPECT_EQ(x.droppedSamples, y.droppedSamples) << what;
      EXPECT_EQ(x.furtherValue2, y.furtherValue2) << what;
      EXPECT_EQ(a.ttArray[s].waits(t), b.ttArray[s].waits(t)) << what;
      EXPECT_EQ(a.ttArray[s].errorOf(t), b.ttArray[s].errorOf(t)) << what;
    }
  }
  EXPECT_EQ(a.recordings->mends.size(), b.recordings->mends.size()) << what;
  EXPECT_EQ(a.recordings->originals.size(), b.recordings->originals.size()) << what;
}

struct Case {
  const char* name;
  ShotMends mends;
  std::vector<Values> samples;  ///< of the three traces
  Values picks;
  bool waits[3];
};

const std::vector<Case>& cases() {
  static const std::vector<Case> all = {
      {"late by two samples",
       shift(0.002),
       {{103, 104, 105, 106}, {113, 114, 115, 116}, {123, 124, 125, 126}},
       {0.0021 - 0.002, 0.0032 - 0.002, kNoTime},
       {false, true, false}},
      {"late by more than a pick",
       shift(0.003),
       {{104, 105, 106}, {114, 115, 116}, {124, 125, 126}},
       {kNoTime, 0.0032 - 0.003, kNoTime},
       {false, true, false}},
      {"early by one sample",
       shift(-0.001),
       {{0, 101, 102, 103, 104, 105, 106},
        {0, 111, 112, 113, 114, 115, 116},
        {0, 121, 122, 123, 124, 125, 126}},
       {0.0021 + 0.001, 0.0032 + 0.001, kNoTime},
       {false, true, false}},
      {"disabled",
       disabled(),
       {{101, 102, 103, 104, 105, 106},
        {111, 112, 113, 114, 115, 116},
        {121, 122, 123, 124, 125, 126}},
       {kUnpicked, kUnpicked, kNoTime},
       {false, false, false}},
      {"order reversed",
       reversedOrder(),
       {{121, 122, 123, 124, 125, 126},
        {111, 112, 113, 114, 115, 116},
        {101, 102, 103, 104, 105, 106}},
       {kNoTime, 0.0032, 0.0021},
       {false, true, false}},
      {"a trace killed",
       trace(1, {true, false, 0.0}),
       {{101, 102, 103, 104, 105, 106}, {0, 0, 0, 0, 0, 0}, {121, 122, 123, 124, 125, 126}},
       {0.0021, kUnpicked, kNoTime},
       {false, false, false}},
      {"a trace of the wrong sign",
       trace(0, {false, true, 0.0}),
       {{-101, -102, -103, -104, -105, -106},
        {111, 112, 113, 114, 115, 116},
        {121, 122, 123, 124, 125, 126}},
       {0.0021, 0.0032, kNoTime},
       {false, true, false}},
      {"muted before a time",
       trace(2, {false, false, 0.002}),
       {{101, 102, 103, 104, 105, 106}, {111, 112, 113, 114, 115, 116}, {0, 0, 123, 124, 125, 126}},
       {0.0021, 0.0032, kNoTime},
       {false, true, false}},
      {"amplified and of the wrong sign",
       trace(0, {false, true, 0.0, 1.5}),
       {{-151.5, -153, -154.5, -156, -157.5, -159},
        {111, 112, 113, 114, 115, 116},
        {121, 122, 123, 124, 125, 126}},
       {0.0021, 0.0032, kNoTime},
       {false, true, false}},
      {"stacked with two",
       stack({1, 2}),
       {{201, 202, 203, 204, 205, 206},
        {211, 212, 213, 214, 215, 216},
        {221, 222, 223, 224, 225, 226}},
       {0.0021, 0.0032, kNoTime},
       {false, true, false}},
  };
  return all;
}

TEST(Mending, isInTheTracesAndPicksAndGoesWhenItIsTakenBack) {
  for (const Case& c : cases()) {
    const TomoDocument before = repeats(3);
    TomoDocument document = before;
    ASSERT_TRUE(setMends(0, c.mends, document).ok()) << c.name;
    const TraceSet& traces = document.recordings->traceSets[0];
    for (std::size_t t = 0; t < 3; ++t) {
      EXPECT_EQ(traces[t].samples, c.samples[t]) << c.name << ", trace " << t;
      EXPECT_EQ(traces[t].receiverPosition.x, 1.0 + static_cast<double>(t)) << c.name;
      EXPECT_EQ(document.ttArray[0].waits(t), c.waits[t]) << c.name;
      EXPECT_EQ(document.recordings->originals[0][t].samples,
                before.recordings->traceSets[0][t].samples)
          << c.name;
    }
    EXPECT_EQ(*document.ttArray[0].ttMisurati, c.picks) << c.name;
    EXPECT_FALSE(describeMends(document, 0).empty()) << c.name;
    ASSERT_TRUE(setMends(0, {}, document).ok());
    expectSame(document, before, c.name);
  }
}

TEST(Mending, goesFromAnyMendToAnyOther) {
  for (const Case& from : cases()) {
    for (const Case& to : cases()) {
      const std::string name = std::string(from.name) + ", then " + to.name;
      TomoDocument straight = repeats(3);
      TomoDocument document = straight;
      ASSERT_TRUE(setMends(0, to.mends, straight).ok());
      ASSERT_TRUE(setMends(0, from.mends, document).ok());
      ASSERT_TRUE(setMends(0, to.mends, document).ok());
      expectSame(document, straight, name);
    }
  }
}

TEST(Mending, countsTimeFromTheShotBeforeAsAfter) {
  for (const Case& c : cases()) {
    if (c.mends.timeShift > 0.002) continue;  // what is left of the record is shorter than that
    TomoDocument first = repeats(3);
    for (TraceSet& traces : first.recordings.edit().traceSets) {
      for (Trace& each : traces) each.delay = -kInterval;
    }
    TomoDocument then = first;
    const TomoDocument recorded = first;
    ASSERT_TRUE(setMends(0, c.mends, first).ok());
    EXPECT_EQ(countTimeFromShot(first).shortened, 9U) << c.name;
    EXPECT_EQ(countTimeFromShot(then).shortened, 9U) << c.name;
    TomoDocument counted = then;
    ASSERT_TRUE(setMends(0, c.mends, then).ok());
    expectSame(first, then, c.name);
    ASSERT_TRUE(setMends(0, {}, first).ok());
    expectSame(first, counted, c.name);
    EXPECT_EQ(counted.recordings->traceSets[0][0].samples.size(), 5U);
  }
}

TEST(Mending, keepsAPickThatIsMovedByHand) {
  TomoDocument document = repeats(1);
  ASSERT_TRUE(setMends(0, shift(0.001), document).ok());
  document.ttArray.edit()[0].ttMisurati.edit() = {0.004, kNoTime, 0.002};
  ASSERT_TRUE(setMends(0, {}, document).ok());
  EXPECT_EQ(*document.ttArray[0].ttMisurati, (Values{0.004 + 0.001, kNoTime, 0.002 + 0.001}));
}

TEST(Mending, mendsTheTwoRecordingsOfAPairAlike) {
  TomoDocument document = repeats(2);
  for (TraceSet& traces : document.recordings.edit().traceSets) {
    for (Trace& each : traces) {
      each.waveKind = Trace::kSWavePair;
      each.samplesDX = each.samples;
      each.samplesSX = Values{1, 1, 1, 1};
      subtractRecordings(each);
    }
  }
  const TomoDocument before = document;
  ShotMends mends = stack({1});
  mends.timeShift = 0.001;
  mends.traces = {{false, true, 0.002}};
  ASSERT_TRUE(setMends(0, mends, document).ok());
  const Trace& mended = document.recordings->traceSets[0][0];
  // Over five samples of DX and three of SX: (-(101 + k) with two muted, and 201 + k) / 2.
  EXPECT_EQ(mended.samplesDX, (Values{100.5, 101, 49.5, 49.5, 49.5}));
  EXPECT_EQ(mended.samplesSX, (Values{0.5, 0.5, 0}));
  EXPECT_EQ(mended.samples, (Values{100, 100.5, 49.5, 49.5, 49.5}));
  ASSERT_TRUE(setMends(0, {}, document).ok());
  expectSame(document, before, "a pair");
}

TEST(Mending, makesAStackAnewWithItsParts) {
  TomoDocument document = repeats(2);
  ASSERT_TRUE(setMends(0, stack({1}), document).ok());
  ASSERT_TRUE(setMends(1, trace(0, {true, false, 0.0}), document).ok());
  EXPECT_EQ(document.recordings->traceSets[0][0].samples[0], 101.0) << "killed in the other";
  EXPECT_EQ(document.recordings->traceSets[0][1].samples[0], 161.0);
  ASSERT_TRUE(setMends(1, shift(0.004), document).ok());
  EXPECT_EQ(document.recordings->traceSets[0][0].samples, (Values{153, 154}));
  EXPECT_EQ(*document.ttArray[0].ttMisurati, (Values{kNoTime, kNoTime, kNoTime}))
      << "beyond what is left";
  ASSERT_TRUE(setMends(1, disabled(), document).ok());
  EXPECT_EQ(*document.ttArray[0].ttMisurati, (Values{0.0021, 0.0032, kNoTime}));
}

TEST(Mending, forgetsFilteredCopiesOfTracesThatChangeOnly) {
  TomoDocument document = repeats(1);
  for (Trace& each : document.recordings.edit().traceSets[0]) each.filtered = Values(6, 1.0);
  std::vector<Message> notes;
  ASSERT_TRUE(setMends(0, trace(1, {true, false, 0.0}), document, &notes).ok());
  EXPECT_FALSE(document.recordings->traceSets[0][0].filtered.empty());
  EXPECT_TRUE(document.recordings->traceSets[0][1].filtered.empty());
  EXPECT_EQ(notes.size(), 2U) << "a pick that is set aside, and the copy";
  ASSERT_TRUE(setMends(0, shift(0.001), document, &notes).ok());
  EXPECT_TRUE(document.recordings->traceSets[0][0].filtered.empty());
}

TEST(Mending, takesAShiftInWholeSamplesAndSaysSo) {
  TomoDocument document = repeats(1);
  std::vector<Message> notes;
  ASSERT_TRUE(setMends(0, shift(0.0014), document, &notes).ok());
  EXPECT_EQ(document.recordings->mends[0].timeShift, 0.001);
  ASSERT_EQ(notes.size(), 1U);
  EXPECT_EQ(notes[0].english(), "shot 1: its shift is taken as 1 ms, whole samples");
  ASSERT_TRUE(setMends(0, shift(0.0004), document).ok());
  EXPECT_TRUE(document.recordings->mends.empty()) << "less than half a sample is none";
}

TEST(Mending, refusesWhatCannotBe) {
  TomoDocument document = repeats(3);
  document.ttArray.edit()[2].shotPos2d.x = 7.0;
  ShotMends twice = stack({1, 1});
  const ShotMends refused[] = {shift(kNaN),
                               shift(std::numeric_limits<double>::infinity()),
                               shift(0.006),
                               shift(-0.006),
                               shift(1e300),
                               trace(3, {true, false, 0.0}),
                               trace(0, {false, true, -1.0}),
                               trace(0, {false, true, kNaN}),
                               stack({0}),
                               stack({-1}),
                               stack({3}),
                               stack({2}),
                               twice};
  for (const ShotMends& mends : refused) {
    const TomoDocument before = document;
    EXPECT_FALSE(setMends(0, mends, document).ok());
    EXPECT_TRUE(document.recordings.isSharedWith(before.recordings));
    EXPECT_TRUE(document.ttArray.isSharedWith(before.ttArray));
  }
  EXPECT_FALSE(setMends(3, disabled(), document).ok()) << "there are three";
  document.recordings.edit().traceSets[1][0].sampleInterval = 0.002;
  EXPECT_FALSE(setMends(0, stack({1}), document).ok()) << "of another interval";
}

TEST(Mending, survivesALostInterval) {
  for (const double interval : {0.0, -0.001, kNaN, std::numeric_limits<double>::max()}) {
    TomoDocument document = repeats(1);
    document.recordings.edit().traceSets[0][1].sampleInterval = interval;
    EXPECT_FALSE(setMends(0, shift(0.001), document).ok()) << interval;
    EXPECT_TRUE(setMends(0, reversedOrder(), document).ok()) << interval;
  }
}

TEST(Mending, endsWithTheRecordingsThatItBelongsTo) {
  TomoDocument document = repeats(2);
  ASSERT_TRUE(setMends(0, stack({1}), document).ok());
  ASSERT_TRUE(setMends(1, disabled(), document).ok());
  SurveyGeometry geometry = geometryOf(document);
  geometry.shots[1].pair = std::make_shared<SWavePair>();
  geometry.shots[1].pair->traces = TraceSet(3);
  ASSERT_TRUE(applyGeometry(geometry, document));
  EXPECT_TRUE(document.recordings->mends.empty());
  EXPECT_EQ(document.recordings->traceSets[0][0].samples[0], 101.0);
}

TEST(Mending, disabledShotsMissNoPicks) {
  TomoDocument document = repeats(3);
  for (const std::size_t shot : {0U, 1U}) ASSERT_TRUE(setMends(shot, disabled(), document).ok());
  EXPECT_TRUE(document.picksComplete());
}

TEST(Mending, isToldAsUsersCount) {
  TomoDocument document = repeats(3);
  ShotMends mends = stack({2, 1});
  mends.timeShift = -0.001;
  mends.disabled = true;
  mends.orderReversed = true;
  mends.traces = {{true, false, 0.0}, {false, true, 0.0025}, {true, false, 0.0025}};
  ASSERT_TRUE(setMends(0, mends, document).ok());
  std::vector<std::string> lines;
  for (const Message& line : describeMends(document, 0)) lines.push_back(line.english());
  EXPECT_EQ(lines,
            (std::vector<std::string>{"disabled: it has no picks and takes no part in anything",
                                      "shifted by -1 ms: its record was early",
                                      "order reversed: its channels ran against the geophones",
                                      "stacked with shots: 2-3", "traces killed: 1, 3",
                                      "traces with their polarity reversed: 2",
                                      "traces muted before 2.5 ms: 2-3"}));
}

}  // namespace
}  // namespace talvesk

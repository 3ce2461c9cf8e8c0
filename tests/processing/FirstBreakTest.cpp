#include "Signals.h"
#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/SurveyLine.h"
#include "processing/FirstBreak.h"
#include "processing/ShotList.h"
#include "support/ConsoleCapture.h"

#include <limits>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::addShot;
using testing::ConsoleCapture;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::kInterval;
using testing::traceOf;

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kFailed = 4294967295.0 * kInterval;  // sample of a pick that failed, in seconds

std::vector<double> screened(const std::vector<double>& geophones, std::vector<double> times) {
  ConsoleCapture console;
  TomoDocument document;
  addShot(document, geophones, {});
  document.ttArray.edit()[0].ttMisurati.edit() = std::move(times);
  EXPECT_TRUE(screenShotPicks(document, 0).ok());
  return document.ttArray[0].ttMisurati;
}

TEST(FirstSample, isToldWithTheShotsWherePicksLieThere) {
  TomoDocument document;
  const auto say = [&document](const std::vector<std::int32_t>& shots) {
    return describePicksAtFirstSample(document, shots).english();
  };
  std::vector<std::int32_t> all;
  for (std::int32_t shot = 0; shot < 12; ++shot) {
    addShot(document, {10.0, 20.0, 30.0}, {traceOf({}), traceOf({}), traceOf({})});
    document.ttArray.edit()[static_cast<std::size_t>(shot)].ttMisurati.edit() = {
        19 * kInterval, 21 * kInterval, kNoTime};
    all.push_back(shot);
  }
  EXPECT_EQ(say(all), "");
  document.ttArray.edit()[1].ttMisurati.edit() = {20 * kInterval, 20 * kInterval, 0.1};
  document.ttArray.edit()[4].ttMisurati.edit()[2] = 20 * kInterval;
  EXPECT_THAT(say(all), HasSubstr("at sample 20, before which AutoPick cannot look: 3, on shots "
                                  "2, 5. Where"));
  EXPECT_THAT(say({4}), HasSubstr(": 1, on shot 5. Where"));
  EXPECT_EQ(say({0, 7, -1, 99}), "");
  for (TravelTime& record : document.ttArray.edit()) record.ttMisurati.edit()[0] = 20 * kInterval;
  EXPECT_THAT(say(all), HasSubstr("on shots 1, 2, 3, 4, 5, 6, 7, 8, 9, 10 and 2 more."));
}

TEST(Screening, keepsWhatTheApparentVelocityAllows) {
  constexpr double no = kNoTime;
  const struct {
    const char* name;
    std::vector<double> geophones, times, expected;
  } cases[] = {
      {"slowest and fastest",
       {10, 20, 30, 31},
       {0.05, 0.1, 30.0 / 4500.0, 31.0 / 4501.0},
       {0.05, 0.1, 30.0 / 4500.0, no}},
      {"below the slowest", {10}, {10.0 / 199.0}, {no}},
      {"half of the fastest so far", {10, 45, 50}, {0.01, 0.1, 0.1}, {0.01, no, 0.1}},
      {"the other side is on its own", {-45, 10, 45}, {0.1, 0.01, 0.1}, {0.1, 0.01, no}},
      {"walks outward, not in channel order", {45, 10}, {0.1, 0.01}, {no, 0.01}},
      {"a rejected one raises nothing", {10, 30}, {0.001, 0.1}, {no, 0.1}},
      {"a slower one lowers nothing", {10, 20, 30}, {0.01, 0.04, 30.0 / 499.0}, {0.01, 0.04, no}},
      {"at the shot, with or without a time", {0, 0, 0}, {0.01, 0.0, no}, {no, no, no}},
      {"never picked, removed, failed", {10, 10, 10}, {0.0, no, kFailed}, {no, no, no}},
      {"no number", {10, kNaN, 20}, {kNaN, 0.02, 0.02}, {no, no, 0.02}},
      {"more picks than geophones", {10}, {0.01, 0.02}, {0.01, 0.02}},
      {"more geophones than picks", {10, 20, 30}, {0.01}, {0.01}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(screened(c.geophones, c.times), c.expected);
  }
}

TEST(Screening, takesTheLaterOfEquallyFarGeophonesFirst) {
  // 1000 m/s first makes 400 m/s too slow; the other way round both would stay.
  EXPECT_THAT(screened({20, 20}, {0.05, 0.02}), ElementsAre(kNoTime, 0.02));
  EXPECT_THAT(screened({20, 20}, {0.02, 0.05}), ElementsAre(0.02, 0.05));
}

TEST(Screening, tellsOffsetTimeAndVelocity) {
  ConsoleCapture console;
  TomoDocument document;
  addShot(document, {-20, 10}, {});
  document.ttArray.edit()[0].ttMisurati.edit() = {0.04, 0.1};
  ASSERT_TRUE(screenShotPicks(document, 0).ok());
  EXPECT_EQ(console.out(), "10 0.1 100\n10 0.1 100 - Rejected\n-20 0.04 -500\n");
}

TEST(Screening, refusesAShotWithoutAString) {
  TomoDocument document;
  EXPECT_FALSE(screenShotPicks(document, 0).ok());
  EXPECT_FALSE(screenShotPicks(document, -1).ok());
  addShot(document, {10}, {});
  document.ttArray.edit()[0].ttMisurati.edit() = {0.9};
  for (const std::int32_t string : {-1, 1}) {
    document.ttArray.edit()[0].indexStesa = string;
    EXPECT_THAT(screenShotPicks(document, 0).message(),
                HasSubstr("shot 1 are not screened: it has no"));
  }
  EXPECT_THAT(document.ttArray[0].ttMisurati, ElementsAre(0.9));
}

TEST(PickTrace, storesIndexTimesInterval) {
  TomoDocument document;
  addShot(document, {10, 20}, {traceOf({}), traceOf(testing::arrival(900, 300))});
  document.ttArray.edit()[0].ttMisurati.edit().clear();  // a record that lost its times gets them
                                                         // back
  const std::int32_t index = pickTrace(document, 0, 1, false);
  EXPECT_THAT(index, testing::justBefore(300));
  EXPECT_THAT(document.ttArray[0].ttMisurati, ElementsAre(kUnpicked, index * kInterval));
}

TEST(PickTrace, givesAFailedPickATimeFarBeyondTheRecord) {
  TomoDocument document;
  addShot(document, {1, 2, 3, 4},
          {traceOf(std::vector<double>(40, 1.0)), traceOf(std::vector<double>(400, 3.0)),
           traceOf({}), traceOf({1.0, kNaN})});
  for (std::int32_t t = 0; t < 4; ++t) {
    EXPECT_EQ(pickTrace(document, 0, t, false), -1);
    EXPECT_EQ(document.ttArray[0].ttMisurati[static_cast<std::size_t>(t)], kFailed);
  }
}

TEST(PickShots, passOverDisabledShotsAndKilledTraces) {
  TomoDocument document;
  for (int shot = 0; shot < 2; ++shot) {
    addShot(document, {100, 200},
            {traceOf(testing::arrival(900, 300)), traceOf(testing::arrival(900, 300))});
    document.ttArray.edit().back().traceSetID = shot;
  }
  ShotMends disabled;
  disabled.disabled = true;
  ShotMends killed;
  killed.traces = {{true, false, 0.0}};
  ASSERT_TRUE(setMends(0, disabled, document).ok());
  ASSERT_TRUE(setMends(1, killed, document).ok());
  EXPECT_TRUE(pickShots(document, {0, 1}, false).ok());
  EXPECT_THAT(document.ttArray[0].ttMisurati, ElementsAre(kUnpicked, kUnpicked));
  EXPECT_EQ(document.ttArray[1].ttMisurati[0], kUnpicked);
  EXPECT_TRUE(hasPick(document.ttArray[1].ttMisurati[1]));
  EXPECT_THAT(tracesWithoutPart(document, document.ttArray[1]), ElementsAre(0U));
  EXPECT_EQ(pickTrace(document, 1, 0, false), -1);
  EXPECT_EQ(document.ttArray[1].ttMisurati[0], kUnpicked);
}

TEST(PickTrace, picksTheFilteredCopyOnRequest) {
  TomoDocument document;
  addShot(document, {10}, {traceOf(testing::arrival(900, 300))});
  EXPECT_EQ(pickTrace(document, 0, 0, true), -1);  // nothing was filtered yet
  document.recordings.edit().traceSets[0][0].filtered.edit() = testing::arrival(900, 500);
  EXPECT_THAT(pickTrace(document, 0, 0, true), testing::justBefore(500));
}

TEST(PickTrace, picksAnSWavePairOnItsDifference) {
  TomoDocument document;
  addShot(document, {10}, {traceOf(testing::arrival(900, 300))});
  Trace& trace = document.recordings.edit().traceSets[0][0];
  trace.waveKind = Trace::kSWavePair;
  trace.samplesDX.edit() = testing::arrival(900, 500);
  const std::vector<double> common = testing::arrival(900, 200);
  for (std::size_t i = 0; i < 900; ++i) trace.samplesDX.edit()[i] += common[i];
  trace.samplesSX.edit() = common;
  EXPECT_THAT(pickTrace(document, 0, 0, false), testing::justBefore(500));

  trace.samplesSX.edit() = {5.0};  // what the shorter recording lacks counts as nothing
  pickTrace(document, 0, 0, false);
  EXPECT_EQ(trace.samples.size(), 900U);
  EXPECT_EQ(trace.samples[0], trace.samplesDX[0] - 5.0);
  EXPECT_EQ(trace.samples[899], trace.samplesDX[899]);
}

TEST(PickTrace, tellsWhatDoesNotExistAndTouchesNothing) {
  TomoDocument document;
  {
    ConsoleCapture console;
    EXPECT_EQ(pickTrace(document, 0, 0, false), -1);
    EXPECT_EQ(console.error(), "[ERROR] No trace exists. \n");
  }
  addShot(document, {10}, {traceOf(testing::arrival(900, 300))});
  const struct {
    std::int32_t shot, trace;
    const char* text;
  } cases[] = {{0, 1, "[ERROR] Trace 1 does not exist.\n"},
               {0, -1, "[ERROR] Trace -1 does not exist.\n"},
               {1, 0, "[ERROR] Trace set 1 does not exist.\n"},
               {-1, 0, "[ERROR] Trace set -1 does not exist.\n"}};
  for (const auto& c : cases) {
    ConsoleCapture console;
    EXPECT_EQ(pickTrace(document, c.shot, c.trace, false), -1);
    EXPECT_EQ(console.error(), c.text);
  }
  EXPECT_THAT(document.ttArray[0].ttMisurati, ElementsAre(kUnpicked));
}

/// Arrivals of 1000 m/s on both sides, a dead trace, and an early one.
TomoDocument survey() {
  TomoDocument document;
  for (unsigned shot = 0; shot < 6; ++shot) {
    TraceSet traces;
    std::vector<double> geophones;
    for (int t = -8; t < 8; ++t) {
      const double x = 12.5 * t + 6.0;
      geophones.push_back(x);
      const auto at = static_cast<std::size_t>(std::fabs(x) / 1000.0 / kInterval) + 50;
      traces.push_back(traceOf(testing::arrival(600, at, shot * 16 + unsigned(t + 8))));
    }
    traces[3].samples.edit().assign(600, 0.0);
    traces[12].samples.edit() = testing::arrival(600, 21);
    addShot(document, geophones, std::move(traces));
    document.line.edit().goephonesStringSet.back().pop_back();  // the last trace has no geophone
    document.recordings.edit().traceSets.back()[15].samples.edit().resize(shot == 0 ? 30 : 600);
  }
  return document;
}

TEST(PickShots, agreesWithTraceByTraceOnAnyNumberOfThreads) {
  TomoDocument expected = survey();
  std::string lines;
  {
    ConsoleCapture console;
    for (std::int32_t shot = 0; shot < 6; ++shot) {
      for (std::int32_t t = 0; t < 16; ++t) {
        const std::string result = std::to_string(pickTrace(expected, shot, t, false));
        console::out() << "[FIRST BREAK] TRACE " + std::to_string(t) + " : " + result + "\n";
      }
      ASSERT_TRUE(screenShotPicks(expected, shot).ok());
    }
    lines = console.out();
  }
  // Trace 15 of shot 0 has no break, and no geophone to be screened by.
  EXPECT_EQ(expected.ttArray[0].ttMisurati[15], kFailed);
  expected.ttArray.edit()[0].ttMisurati.edit()[15] = kNoTime;

  for (const unsigned threads : {0U, 1U, 2U, 3U, 200U}) {
    ConsoleCapture console;
    TomoDocument document = survey();
    ASSERT_TRUE(pickShots(document, shotList(document, true, -1), false, threads).ok());
    for (std::size_t shot = 0; shot < 6; ++shot) {
      EXPECT_EQ(document.ttArray[shot].ttMisurati, expected.ttArray[shot].ttMisurati);
    }
    EXPECT_EQ(console.out(), lines) << threads << " threads";
  }
}

TEST(PickShots, overwritesManualPicksOfItsShotsOnly) {
  ConsoleCapture console;
  TomoDocument document = survey();
  for (TravelTime& record : document.ttArray.edit()) record.ttMisurati.edit().assign(16, 0.001);
  ASSERT_TRUE(pickShot(document, 2, false).ok());
  EXPECT_EQ(document.ttArray[2].ttMisurati[3], kNoTime);
  EXPECT_NEAR(document.ttArray[2].ttMisurati[4], 44.0 / 1000.0 + 50 * kInterval, 12 * kInterval);
  EXPECT_EQ(document.ttArray[1].ttMisurati, std::vector<double>(16, 0.001));
}

TEST(PickShots, goesOnAfterAShotThatCannotBePicked) {
  ConsoleCapture console;
  TomoDocument document = survey();
  document.ttArray.edit()[0].traceSetID = 77;
  document.ttArray.edit()[1].indexStesa = -1;
  const Status status = pickShots(document, {99, 0, 1, 2, -1}, false, 2);
  EXPECT_THAT(status.message(), HasSubstr("shot 100 has no traces"));
  EXPECT_EQ(document.ttArray[0].ttMisurati, std::vector<double>(16, kUnpicked));
  EXPECT_EQ(document.ttArray[1].ttMisurati[3], kNoTime);  // unscreened, but never a failed pick
  EXPECT_GT(document.ttArray[1].ttMisurati[4], 0.0);
  EXPECT_GT(document.ttArray[2].ttMisurati[4], 0.0);
}

TEST(ShotList, isAllOrTheCurrentOne) {
  const TomoDocument document = survey();
  EXPECT_THAT(shotList(document, true, 3), ElementsAre(0, 1, 2, 3, 4, 5));
  EXPECT_THAT(shotList(document, false, 3), ElementsAre(3));
  EXPECT_TRUE(shotList(document, false, -1).empty());
  EXPECT_TRUE(shotList(document, false, 6).empty());
}

}  // namespace
}  // namespace talvesk

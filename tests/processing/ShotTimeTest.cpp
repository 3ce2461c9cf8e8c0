#include "Signals.h"
#include "model/Recordings.h"
#include "processing/ShotTime.h"

#include <limits>
#include <numeric>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

std::vector<double> ramp(std::size_t n) {
  std::vector<double> samples(n);
  std::iota(samples.begin(), samples.end(), 0.0);
  return samples;
}

TomoDocument documentOf(double delay, double interval) {
  TomoDocument document;
  document.recordings.edit().traceSets.push_back({testing::traceOf(ramp(100))});
  document.recordings.edit().traceSets[0][0].delay = delay;
  document.recordings.edit().traceSets[0][0].sampleInterval = interval;
  return document;
}

TEST(ShotTime, dropsWhatWasRecordedBeforeTheShotOnce) {
  TomoDocument document = documentOf(-0.01, 0.001);
  Trace& trace = document.recordings.edit().traceSets[0][0];
  trace.samplesDX.edit() = ramp(90);
  trace.samplesSX.edit() = ramp(4);
  trace.filtered.edit() = ramp(100);
  for (int repeat = 0; repeat < 2; ++repeat) {
    const ShotTimeOutcome outcome = countTimeFromShot(document);
    EXPECT_EQ(outcome.shortened, repeat == 0 ? 1U : 0U);
    EXPECT_EQ(outcome.mostDropped, repeat == 0 ? 10U : 0U);
    EXPECT_EQ(outcome.leftAsRecorded, 0U);
    EXPECT_EQ(trace.samples.front(), 10.0);
    EXPECT_EQ(trace.samples.size(), 90U);
    EXPECT_EQ(trace.samplesDX.front(), 10.0);
    EXPECT_TRUE(trace.samplesSX.empty());
    EXPECT_EQ(trace.filtered.front(), 10.0);
    EXPECT_EQ(trace.droppedSamples, 10U);
    EXPECT_EQ(trace.delay, -0.01);
  }
}

TEST(ShotTime, keepsAFilteredCopyThatIsShortAlready) {
  TomoDocument document = documentOf(-0.01, 0.001);
  document.recordings.edit().traceSets[0][0].filtered.edit().assign(90, 5.0);
  countTimeFromShot(document);
  EXPECT_EQ(document.recordings->traceSets[0][0].filtered.size(), 90U);
}

TEST(ShotTime, movesPicksWithTheSamplesThatTheyMark) {
  TomoDocument document = documentOf(-0.01, 0.001);
  TraceSet& traces = document.recordings.edit().traceSets[0];
  traces.resize(5, traces[0]);
  traces[4].delay = 0.0;
  TravelTime& record = document.ttArray.edit().emplace_back();
  record.ttMisurati = std::vector<double>{0.030, 0.004, kUnpicked, kNoTime, 0.030};
  record.setWaiting(1, true);
  EXPECT_TRUE(startsBeforeShot(traces[0]));
  EXPECT_FALSE(startsBeforeShot(traces[4]));
  for (int repeat = 0; repeat < 2; ++repeat) {
    EXPECT_EQ(countTimesAndPicksFromShot(document).picksRemoved, repeat == 0 ? 1U : 0U);
    const TravelTime& moved = document.ttArray[0];
    EXPECT_DOUBLE_EQ(moved.ttMisurati[0], 0.020);
    EXPECT_EQ(moved.ttMisurati[1], kNoTime) << "it lies before the shot";
    EXPECT_FALSE(moved.waits(1));
    EXPECT_EQ(moved.ttMisurati[2], kUnpicked);
    EXPECT_EQ(moved.ttMisurati[3], kNoTime);
    EXPECT_EQ(moved.ttMisurati[4], 0.030);
    EXPECT_FALSE(startsBeforeShot(document.recordings->traceSets[0][0]));
  }
}

TEST(ShotTime, staysSaneWithAbsurdHeaders) {
  const struct {
    double delay, interval;
    std::size_t kept, left;
  } cases[] = {
      {0.0, 0.001, 100, 0},      {-0.0, kNaN, 100, 0},
      {-0.0104, 0.001, 90, 0},   {-0.0106, 0.001, 89, 0},
      {-0.0004, 0.001, 100, 0},  {-0.099, 0.001, 1, 0},
      {-0.1, 0.001, 100, 1},     {-1e300, 1e-300, 100, 1},
      {0.5, 0.001, 100, 1},      {-0.5, 0.0, 100, 1},
      {-0.5, -0.001, 100, 1},    {-0.5, kNaN, 100, 1},
      {kNaN, 0.001, 100, 1},     {-kInfinity, 0.001, 100, 1},
      {-0.5, kInfinity, 100, 0}, {-0.5, std::numeric_limits<double>::max(), 100, 0},
  };
  for (const auto& c : cases) {
    TomoDocument document = documentOf(c.delay, c.interval);
    EXPECT_EQ(startsBeforeShot(document.recordings->traceSets[0][0]), c.kept < 100);
    const ShotTimeOutcome outcome = countTimeFromShot(document);
    EXPECT_EQ(document.recordings->traceSets[0][0].samples.size(), c.kept)
        << c.delay << ' ' << c.interval;
    EXPECT_EQ(outcome.leftAsRecorded, c.left) << c.delay << ' ' << c.interval;
  }
}

}  // namespace
}  // namespace talvesk

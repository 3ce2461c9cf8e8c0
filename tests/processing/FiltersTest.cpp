#include "Signals.h"
#include "model/Recordings.h"
#include "processing/NoiseReduction.h"
#include "processing/ShotFilters.h"
#include "processing/Spectrum.h"
#include "processing/TraceFilters.h"
#include "support/CommaLocale.h"
#include "support/ConsoleCapture.h"

#include <algorithm>
#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::ConsoleCapture;
using ::testing::HasSubstr;
using testing::kInterval;
using testing::sine;
using testing::traceOf;

using Samples = std::vector<double>;
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

/// Gain of a filter for a sine once it has settled, dB.
double gain(Span<double> in, Span<double> out) {
  double before = 0.0;
  double after = 0.0;
  for (std::size_t i = in.size() / 2; i < in.size(); ++i) {
    before += in[i] * in[i];
    after += out[i] * out[i];
  }
  return 10.0 * std::log10(after / before);
}

TEST(Butterworth, losesThreeDecibelsAtTheCutOffAndSixPerOctaveAndOrder) {
  ConsoleCapture console;
  constexpr double fc = 0.01;  // far below half the sample rate, where an octave is one
  const double hertz = fc / kInterval;
  for (int order = 1; order <= 8; ++order) {
    SCOPED_TRACE(order);
    Samples out;
    const Samples at = sine(8000, hertz);
    const Samples above = sine(8000, 4.0 * hertz);
    const Samples below = sine(8000, hertz / 4.0);
    const double twoOctaves = -10.0 * std::log10(1.0 + std::pow(16.0, order));
    ASSERT_TRUE(lowPass(at, order, fc, out).ok());
    EXPECT_NEAR(gain(at, out), -3.01, 0.05);
    ASSERT_TRUE(lowPass(below, order, fc, out).ok());
    EXPECT_NEAR(gain(below, out), 0.0, 0.3);
    ASSERT_TRUE(highPass(at, order, fc, out).ok());
    EXPECT_NEAR(gain(at, out), -3.01, 0.05);
    ASSERT_TRUE(highPass(above, order, fc, out).ok());
    EXPECT_NEAR(gain(above, out), 0.0, 0.3);
    if (order > 4) continue;  // beyond lies the noise of single precision
    ASSERT_TRUE(lowPass(above, order, fc, out).ok());
    EXPECT_NEAR(gain(above, out), twoOctaves, 0.2 * order);
    ASSERT_TRUE(highPass(below, order, fc, out).ok());
    EXPECT_NEAR(gain(below, out), twoOctaves, 0.2 * order);
  }
}

TEST(Butterworth, startsFromRestAndLooksOnlyBack) {
  ConsoleCapture console;
  Samples impulse(200, 0.0);
  impulse[100] = 1.0;
  Samples out;
  ASSERT_TRUE(lowPass(impulse, 3, 0.05, out).ok());
  EXPECT_EQ(Samples(out.begin(), out.begin() + 100), Samples(100, 0.0));
  EXPECT_GT(out[100], 0.0);
  const Samples first = out;
  ASSERT_TRUE(lowPass(impulse, 3, 0.05, impulse).ok());  // in place
  EXPECT_EQ(impulse, first);
}

TEST(Butterworth, tellsTheConsoleItsSectionsInAnyLocale) {
  const testing::CommaStreams comma;
  ConsoleCapture console;
  Samples out;
  ASSERT_TRUE(lowPass(Samples(3, 1.0), 3, 0.25, out).ok());
  EXPECT_THAT(console.out(),
              ::testing::MatchesRegex("iir filter .sos.:\n"
                                      "iir filter . sos:\n"
                                      "  b :   0.408248..,  0.816496..,  0.408248..\n"
                                      "  a :   1.00000000, +-?0.000000..,  0.333333..\n"
                                      "iir filter . sos:\n"
                                      "  b :   0.408248..,  0.408248..,  0.00000000\n"
                                      "  a :   1.00000000, +-?0.000000..,  0.00000000\n"));
}

TEST(Butterworth, refusesWhatMakesNoFilterAndLeavesTheCopy) {
  ConsoleCapture console;
  const Samples in = sine(500, 60.0);
  const struct {
    int order;
    double fc;
    const char* text;
  } cases[] = {
      {0, 0.1, "No filter applied. Filter order must be greater then 0."},
      {-5, 0.1, "No filter applied. Filter order must be greater then 0."},
      {0, kNaN, "No filter applied. Filter order must be greater then 0."},
      {kMaxFilterOrder + 1, 0.1, "above the limit of 100"},
      {std::numeric_limits<int>::max(), 0.1, "above the limit of 100"},
      {4, 0.0, "above 0 and below 0.5"},
      {4, -0.1, "above 0 and below 0.5"},
      {4, 0.5, "above 0 and below 0.5"},
      {4, 0.4999999999, "above 0 and below 0.5"},  // 0.5 in single precision
      {4, 1e-60, "above 0 and below 0.5"},         // 0 in single precision
      {4, 85.0, "is 85 of the sample rate"},
      {4, kNaN, "above 0 and below 0.5"},
      {4, kInfinity, "above 0 and below 0.5"},
      {40, 1e-5, "Single precision cannot hold a filter of order 40"},
      {4, 1e-7, "Single precision"},
  };
  for (const auto& c : cases) {
    Samples out = {4.0, 2.0};
    EXPECT_THAT(lowPass(in, c.order, c.fc, out).message(), HasSubstr(c.text));
    EXPECT_THAT(highPass(in, c.order, c.fc, out).message(), HasSubstr(c.text));
    EXPECT_EQ(out, (Samples{4.0, 2.0}));
  }
  EXPECT_EQ(console.error(), "");
}

TEST(Butterworth, givesFiniteSamplesOfReasonableSizeOrFails) {
  ConsoleCapture console;
  const Samples in = testing::arrival(3000, 700);
  int filtered = 0;
  for (int order = 1; order <= kMaxFilterOrder; order += order < 12 ? 1 : 8) {
    for (const double fc : {1e-6, 1e-4, 1e-3, 0.01, 0.1, 0.3, 0.45, 0.499, 0.49999}) {
      for (const auto filter : {lowPass, highPass}) {
        Samples out;
        if (!filter(in, order, fc, out).ok()) continue;
        ++filtered;
        ASSERT_EQ(out.size(), in.size());
        for (const double sample : out) ASSERT_LT(std::fabs(sample), 500.0) << order << ' ' << fc;
      }
    }
  }
  EXPECT_GT(filtered, 250);
}

TEST(TraceFilters, refuseSamplesThatSinglePrecisionCannotHold) {
  ConsoleCapture console;
  for (const double bad : {kNaN, kInfinity, -kInfinity, 1e39}) {
    const Samples in = {1.0, 2.0, bad, 4.0};
    Samples out = {7.0};
    EXPECT_THAT(lowPass(in, 2, 0.1, out).message(), HasSubstr("sample 2 is"));
    EXPECT_FALSE(highPass(in, 2, 0.1, out).ok());
    EXPECT_FALSE(agcTrace(in, out).ok());
    EXPECT_EQ(out, Samples{7.0});
  }
  const Samples huge(4000, 3.4e38);
  Samples out = {7.0};
  EXPECT_THAT(agcTrace(huge, out).message(), HasSubstr("energy"));
  EXPECT_FALSE(lowPass(sine(4000, 60.0, 3.4e38), 8, 0.05, out).ok());
  EXPECT_EQ(out, Samples{7.0});
}

TEST(TraceFilters, giveOneValuePerSample) {
  ConsoleCapture console;
  for (const std::size_t n : {0, 1, 2, 5}) {
    Samples out(9, 1.0);
    ASSERT_TRUE(agcTrace(Samples(n, 3.0), out).ok());
    EXPECT_EQ(out.size(), n);
    out.assign(9, 1.0);
    ASSERT_TRUE(lowPass(Samples(n, 3.0), 2, 0.1, out).ok());
    EXPECT_EQ(out.size(), n);
  }
}

TEST(Agc, bringsASteadySignalToUnitPowerWhateverItsStrength) {
  for (const double amplitude : {1e-2, 1.0, 1e6, 1e15}) {
    const Samples in = sine(4000, 60.0, amplitude);
    Samples out;
    ASSERT_TRUE(agcTrace(in, out).ok());
    double power = 0.0;
    for (std::size_t i = 2000; i < 4000; ++i) power += out[i] * out[i] / 2000.0;
    EXPECT_NEAR(power, 1.0, 0.4) << amplitude;
  }
  Samples out;
  ASSERT_TRUE(agcTrace(Samples(1000, 0.0), out).ok());
  EXPECT_EQ(out, Samples(1000, 0.0));
}

TomoDocument documentOf(TraceSet traces) {
  TomoDocument document;
  document.recordings.edit().traceSets.push_back(std::move(traces));
  return document;
}

TEST(BandFilter, normalisesByTwiceTheHighestFrequencyAndFiltersLowFirst) {
  ConsoleCapture console;
  TomoDocument document = documentOf({traceOf(testing::arrival(900, 300)), traceOf({})});
  const double highest = highestBinFrequency(900, kInterval);
  ASSERT_TRUE(
      bandFilterShots(document, {0}, {FilterCorner{90.0, 3}, FilterCorner{12.0, 2}}).status.ok());
  Samples expected;
  ASSERT_TRUE(
      lowPass(document.recordings->traceSets[0][0].samples, 3, 90.0 / (2.0 * highest), expected)
          .ok());
  ASSERT_TRUE(highPass(expected, 2, 12.0 / (2.0 * highest), expected).ok());
  EXPECT_EQ(document.recordings->traceSets[0][0].filtered, expected);
  EXPECT_EQ(document.recordings->traceSets[0][0].samples, testing::arrival(900, 300));
  EXPECT_TRUE(document.recordings->traceSets[0][1].filtered.empty());
}

TEST(BandFilter, namesTheFrequencyAndTheLimitInHertz) {
  ConsoleCapture console;
  const TraceSet before = {traceOf(sine(1000, 60.0)), traceOf(sine(1000, 70.0))};
  const struct {
    BandFilter filter;
    const char* text;
  } cases[] = {
      {{FilterCorner{1200.0, 2}, {}},
       "low-pass cut-off of 1200 Hz must be above 0 Hz and below 998"},
      {{{}, FilterCorner{0.0, 2}}, "high-pass cut-off of 0 Hz must be above 0 Hz and below 998 Hz"},
      {{FilterCorner{998.0, 2}, FilterCorner{10.0, 1}}, "low-pass cut-off of 998 Hz"},
      {{FilterCorner{kNaN, 2}, {}}, "cut-off of nan Hz"},
      {{FilterCorner{90.0, 1}, FilterCorner{10.0, 0}}, "Filter order must be greater then 0."},
  };
  for (const auto& c : cases) {
    TomoDocument document = documentOf(before);
    for (Trace& trace : document.recordings.edit().traceSets[0]) trace.filtered.edit() = {1.0};
    const FilterOutcome outcome = bandFilterShots(document, {0}, c.filter);
    EXPECT_THAT(outcome.status.message(), HasSubstr(c.text));
    EXPECT_EQ(outcome.failed, 2U);
    EXPECT_EQ(document.recordings->traceSets[0][0].filtered, Samples{1.0});
  }
}

TEST(BandFilter, saysWhyThereIsNoLimit) {
  ConsoleCapture console;
  const BandFilter filter{FilterCorner{85.0, 1}, {}};
  EXPECT_THAT(checkBandFilter(filter, HighestFrequency().value()).message(),
              HasSubstr("too short"));
  EXPECT_THAT(checkBandFilter(filter, 0.0).message(), HasSubstr("too short"));
  TomoDocument document = documentOf({traceOf(sine(1000, 60.0))});
  document.recordings.edit().traceSets[0][0].sampleInterval = std::numeric_limits<double>::max();
  EXPECT_THAT(bandFilterShots(document, {0}, filter).status.message(),
              HasSubstr("low-pass cut-off of 85 Hz"));
}

TEST(BandFilter, doesNothingWithoutACorner) {
  TomoDocument document = documentOf({traceOf(sine(1000, 60.0))});
  document.recordings.edit().traceSets[0][0].filtered.edit() = {1.0};
  EXPECT_TRUE(bandFilterShots(document, {0}, {}).status.ok());
  EXPECT_EQ(document.recordings->traceSets[0][0].filtered, Samples{1.0});
}

TEST(ShotFilters, leaveABadTraceAndFilterTheOthers) {
  ConsoleCapture console;
  const auto band = [](TomoDocument& document, const std::vector<std::int32_t>& shots) {
    return bandFilterShots(document, shots, {FilterCorner{90.0, 1}, FilterCorner{10.0, 1}});
  };
  const std::function<FilterOutcome(TomoDocument&, const std::vector<std::int32_t>&)> operations[] =
      {band, agcShots, reduceNoise};
  for (const auto& operation : operations) {
    TomoDocument document = documentOf({traceOf(sine(1000, 60.0)), traceOf(sine(1000, 60.0))});
    document.recordings.edit().traceSets.push_back(document.recordings->traceSets[0]);
    document.recordings.edit().traceSets.push_back(document.recordings->traceSets[0]);
    document.recordings.edit().traceSets[1][1].samples.edit()[500] = kNaN;
    document.recordings.edit().traceSets[1][1].filtered.edit() = {1.0};
    const FilterOutcome outcome = operation(document, {0, 1, 7});
    EXPECT_EQ(outcome.filtered, 3U);
    EXPECT_EQ(outcome.failed, 1U);
    EXPECT_THAT(outcome.status.message(), HasSubstr("shot 2: trace 2: sample 500 is nan"));
    EXPECT_EQ(document.recordings->traceSets[1][0].filtered.size(), 1000U);
    EXPECT_EQ(document.recordings->traceSets[1][1].filtered, Samples{1.0});
    EXPECT_TRUE(document.recordings->traceSets[2][0].filtered.empty());
  }
}

TEST(NoiseReduction, passesFrom14To85HertzAndDoesNotAccumulate) {
  ConsoleCapture console;
  TomoDocument document = documentOf({});
  const double hertz[] = {1.0, 14.0, 34.5, 85.0, 600.0};
  // First-order losses of both corners, dB, with the low-pass warped at 600 of 1000 Hz.
  const double expected[] = {-22.9, -3.13, -1.32, -3.12, -20.2};
  for (const double f : hertz)
    document.recordings.edit().traceSets[0].push_back(traceOf(sine(8000, f)));
  ASSERT_TRUE(reduceNoise(document, {0}).status.ok());
  const TraceSet once = document.recordings->traceSets[0];
  ASSERT_TRUE(reduceNoise(document, {0}).status.ok());
  for (std::size_t t = 0; t < 5; ++t) {
    EXPECT_NEAR(gain(once[t].samples, once[t].filtered), expected[t], 0.15) << hertz[t];
    EXPECT_EQ(document.recordings->traceSets[0][t].filtered, once[t].filtered);
  }
}

TEST(NoiseReduction, leavesTracesAloneThatHaveNo85Hertz) {
  ConsoleCapture console;
  const struct {
    std::size_t samples;
    double interval;
    bool filtered;
  } cases[] = {{0, kInterval, true},      {1, kInterval, false},
               {2, kInterval, false},     {3, kInterval, false},
               {4, kInterval, true},      {1000, 1.0 / 169.0, false},
               {1000, 1.0 / 171.0, true}, {1000, 0.0, false},
               {1000, kNaN, false},       {1000, std::numeric_limits<double>::max(), false}};
  for (const auto& c : cases) {
    TomoDocument document = documentOf({traceOf(Samples(c.samples, 1.0))});
    Trace& trace = document.recordings.edit().traceSets[0][0];
    trace.sampleInterval = c.interval;
    trace.filtered.edit() = Samples(17, 1.0);
    const FilterOutcome outcome = reduceNoise(document, {0});
    EXPECT_EQ(outcome.status.ok(), c.filtered) << c.samples << ' ' << c.interval;
    EXPECT_EQ(trace.filtered.size(), c.filtered ? c.samples : 17U);
  }
}

}  // namespace
}  // namespace talvesk

#include "Signals.h"
#include "processing/Dft.h"
#include "processing/Spectrum.h"
#include "support/ConsoleCapture.h"

#include <limits>

#include <gtest/gtest.h>

namespace talvesk {
namespace {

using testing::ConsoleCapture;
using testing::kInterval;
using testing::sine;
using testing::traceOf;

TEST(Dft, isTheDefinitionAtEveryLength) {
  for (std::size_t n = 0; n < 300; ++n) {
    const std::vector<double> x = testing::arrival(n, n / 3);
    const auto bins = dft(x);
    ASSERT_EQ(bins.size(), n);
    for (std::size_t k = 0; k < n; k += 1 + n / 7) {
      std::complex<double> sum;
      for (std::size_t j = 0; j < n; ++j) {
        sum += x[j] * std::polar(1.0, -2.0 * M_PI * double(j * k % n) / double(n));
      }
      ASSERT_NEAR(std::abs(bins[k] - sum), 0.0, 1e-10) << "bin " << k << " of " << n;
    }
  }
}

TEST(Dft, isFastAndExactWhereTheLengthIsALargePrime) {
  constexpr std::size_t n = 1000003;  // n * n operations would take hours
  std::vector<double> x;
  for (std::size_t j = 0; j < n; ++j) x.push_back(std::cos(2.0 * M_PI * double(j * 7 % n) / n));
  const auto bins = dft(x);
  EXPECT_NEAR(std::abs(bins[7] - n / 2.0), 0.0, 1e-6);
  EXPECT_NEAR(std::abs(bins[8]), 0.0, 1e-6);
}

TEST(Spectrum, hasHalfTheAmplitudeOfASineInItsBin) {
  ConsoleCapture console;
  const TraceSet traces = {traceOf(sine(1000, 60.0, 3.0))};  // bins 2 Hz apart
  const Spectrum spectrum = computeSpectrum(traces, true);
  ASSERT_EQ(spectrum.frequencies.size(), 500U);
  for (std::size_t k = 0; k < 500; ++k) {
    EXPECT_DOUBLE_EQ(spectrum.frequencies[k], 2.0 * static_cast<double>(k));
    EXPECT_NEAR(spectrum.amplitudes[k], k == 30 ? 1.5 : 0.0, 1e-12);
  }
  EXPECT_EQ(console.out(), "fft\n");
  EXPECT_TRUE(computeSpectrum(traces, false).frequencies.empty());
}

TEST(Spectrum, addsTracesWithTheirPhase) {
  ConsoleCapture console;
  TraceSet traces = {traceOf(sine(1000, 60.0)), traceOf(sine(1000, 60.0, -1.0)),
                     traceOf(sine(1000, 100.0))};
  const Spectrum spectrum = computeSpectrum(traces, true);
  EXPECT_NEAR(spectrum.amplitudes[30], 0.0, 1e-12);
  EXPECT_NEAR(spectrum.amplitudes[50], 0.5, 1e-12);
}

TEST(Spectrum, goesByTheFirstTracesLengthAndTheLastOnesRate) {
  ConsoleCapture console;
  TraceSet traces = {traceOf({}), traceOf({1, 0, 0, 0, 0}), traceOf({1, 2}),
                     traceOf({0, 0, 0, 0, 0, 9, 9})};
  traces.back().sampleInterval = 0.2;
  const Spectrum spectrum = computeSpectrum(traces, true);
  EXPECT_EQ(spectrum.frequencies, (std::vector<double>{0.0, 1.0}));  // 5 / 2 bins
  EXPECT_NEAR(spectrum.amplitudes[0], 4.0 / 5.0, 1e-15);
}

TEST(Spectrum, leavesOutTracesThatAreNoNumbers) {
  ConsoleCapture console;
  for (const double bad : {std::numeric_limits<double>::quiet_NaN(),
                           -std::numeric_limits<double>::infinity(), 1e300}) {
    const TraceSet traces = {traceOf({bad, 1, 1, 1}), traceOf({2, 2, 2, 2})};
    EXPECT_EQ(computeSpectrum(traces, true).amplitudes, (std::vector<double>{2.0, 0.0}));
  }
}

TEST(Spectrum, hasNoBinsWithoutSamplesOrRate) {
  ConsoleCapture console;
  EXPECT_TRUE(computeSpectrum({}, true).frequencies.empty());
  EXPECT_TRUE(computeSpectrum({traceOf({}), traceOf({})}, true).frequencies.empty());
  TraceSet traces = {traceOf({1, 2, 3})};
  for (const double interval : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN(),
                                std::numeric_limits<double>::infinity()}) {
    traces[0].sampleInterval = interval;
    EXPECT_TRUE(computeSpectrum(traces, true).frequencies.empty()) << interval;
    EXPECT_EQ(highestBinFrequency(3, interval), 0.0);
  }
}

TEST(Spectrum, endsWhereHighestBinFrequencySays) {
  ConsoleCapture console;
  for (std::size_t n = 2; n < 60; ++n) {
    HighestFrequency highest;
    highest.see(computeSpectrum({traceOf(sine(n, 60.0))}, true));
    EXPECT_EQ(highest.value(), highestBinFrequency(n, kInterval)) << n;
    EXPECT_LT(highest.value(), 1000.0);
  }
  for (const std::size_t n : {0U, 1U}) {
    EXPECT_TRUE(computeSpectrum({traceOf(sine(n, 60.0))}, true).frequencies.empty()) << n;
    EXPECT_EQ(highestBinFrequency(n, kInterval), 0.0) << n;
  }
  EXPECT_EQ(highestBinFrequency(7, 1.0), 2.0 / 7.0);  // the odd bin in the middle is left out
}

TEST(Spectrum, drawsBelow350Hz) {
  const Spectrum spectrum{{0.0, 349.9, 350.0, 351.0}, {1.0, 2.0, 3.0, 4.0}};
  EXPECT_EQ(plottedCurve(spectrum).frequencies, (std::vector<double>{0.0, 349.9}));
  EXPECT_EQ(plottedCurve(spectrum).amplitudes, (std::vector<double>{1.0, 2.0}));
}

TEST(HighestFrequency, onlyGrows) {
  HighestFrequency highest;
  EXPECT_EQ(highest.value(), std::numeric_limits<double>::lowest());
  highest.see({{0.0, 250.0}, {0.0, 0.0}});
  highest.see({{0.0, 100.0}, {0.0, 0.0}});
  highest.see({});
  EXPECT_EQ(highest.value(), 250.0);
}

}  // namespace
}  // namespace talvesk

#include "processing/joint/PickError.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace talvesk {
namespace {

constexpr double kReach = 8e-3;   // seconds about the pick
constexpr double kSwing = 15e-3;  // seconds that the first swing takes at most

// Of the scatter, milliseconds.
constexpr double kOwnError = 0.08;
constexpr double kSpreadShare = 0.36;
constexpr double kMedianShare = 0.12;
constexpr double kNoiseScale = 48.0;  // of the square
constexpr double kIntervalShare = 0.3;
constexpr double kMostScatter = 5.0;

// Of what neighbours share, milliseconds.
constexpr double kRisen = 0.2;      // of the first swing
constexpr double kSharpRise = 1.3;  // of a break as sharp as they come
constexpr double kLeastOfRise = 0.15;
constexpr double kMostOfRise = 2.4;
constexpr double kClearNoise = 0.1;  // an arrival that stands out of so much is the first one
constexpr double kDoubtOfNoise = 30.0;
constexpr double kLongest = 1.0;  // seconds: an error that is none

struct Range {
  std::size_t from;
  std::size_t to;  ///< behind the last
};

Range rangeOf(double from, double to, const OnsetTrace& trace) {
  const auto last = static_cast<double>(trace.signal.size());
  const auto sample = [&](double seconds) {
    return static_cast<std::size_t>(std::clamp(std::round(seconds / trace.interval), 0.0, last));
  };
  const std::size_t first = sample(from);
  return {first, std::max(first, sample(to))};
}

template <typename Value>
std::size_t largestIn(const std::vector<Value>& values, Range range) {
  const auto begin = values.begin() + static_cast<std::ptrdiff_t>(range.from);
  const auto end = values.begin() + static_cast<std::ptrdiff_t>(range.to);
  return range.from + static_cast<std::size_t>(std::max_element(begin, end) - begin);
}

/// The sample that parts a stretch best into two of different variance (Maeda 1985).
std::size_t byInformation(Span<double> y, Range stretch, Range within) {
  std::vector<double> sums(stretch.to - stretch.from + 1, 0.0);
  std::vector<double> squares = sums;
  for (std::size_t i = stretch.from; i < stretch.to; ++i) {
    const std::size_t k = i - stretch.from;
    sums[k + 1] = sums[k] + y[i];
    squares[k + 1] = squares[k] + y[i] * y[i];
  }
  const auto logVariance = [&](std::size_t a, std::size_t b) {
    const auto n = static_cast<double>(b - a);
    const double mean = (sums[b] - sums[a]) / n;
    const double variance = (squares[b] - squares[a]) / n - mean * mean;
    return n * std::log(std::max(variance, std::numeric_limits<double>::min()));
  };
  std::size_t best = within.from;
  double least = std::numeric_limits<double>::infinity();
  const std::size_t total = stretch.to - stretch.from;
  for (std::size_t i = std::max(within.from, stretch.from + 2); i < within.to; ++i) {
    const std::size_t k = i - stretch.from;
    if (k + 2 > total) break;
    const double value = logVariance(0, k) + logVariance(k, total);
    if (value < least) {
      least = value;
      best = i;
    }
  }
  return best;
}

double rmsOf(const std::vector<double>& y, Range range) {
  double sum = 0.0;
  for (std::size_t i = range.from; i < range.to; ++i) sum += y[i] * y[i];
  return range.to > range.from ? std::sqrt(sum / static_cast<double>(range.to - range.from)) : 0.0;
}

double peakOf(const std::vector<double>& y, Range range) {
  double peak = 0.0;
  for (std::size_t i = range.from; i < range.to; ++i) peak = std::max(peak, std::fabs(y[i]));
  return peak;
}

/// Where the amplitude first leaves the noise, or a tenth of the first swing where there is none.
std::size_t byThreshold(const std::vector<double>& y, double noise, double peak, Range within) {
  const double limit = std::max(3.0 * noise, 0.1 * peak);
  for (std::size_t i = within.from; i < within.to; ++i) {
    if (std::fabs(y[i]) > limit) return i;
  }
  return within.to;
}

/// Where the mean amplitude over 2 ms rises most against the one over 10 ms before it (Allen 1978).
std::size_t byAverages(const std::vector<double>& y, double interval, Range within) {
  const auto count = [interval](double seconds) {
    return std::max<std::size_t>(2, static_cast<std::size_t>(std::lround(seconds / interval)));
  };
  const std::size_t after = count(2e-3);
  const std::size_t before = count(10e-3);
  const auto mean = [&y](std::size_t from, std::size_t to) {
    double sum = 0.0;
    for (std::size_t i = from; i < to; ++i) sum += std::fabs(y[i]);
    return sum / static_cast<double>(std::max<std::size_t>(to - from, 1));
  };
  std::size_t best = within.from;
  double most = -1.0;
  for (std::size_t i = within.from; i < within.to; ++i) {
    const double quiet = mean(i - std::min(before, i), i);
    const double loud = mean(i, std::min(i + after, y.size()));
    const double ratio = quiet > 0.0 ? loud / quiet : loud > 0.0 ? loud * 1e300 : 0.0;
    if (ratio > most) {
      most = ratio;
      best = i;
    }
  }
  return best;
}

/// Seconds from a pick to where the motion has come a fifth of the way to the swing's peak; between
/// samples by a straight line.
double riseTime(const OnsetTrace& trace, double pick, Range swing) {
  const double start = trace.signal[swing.from];
  double peak = 0.0;
  for (std::size_t i = swing.from; i < swing.to; ++i) {
    peak = std::max(peak, std::fabs(trace.signal[i] - start));
  }
  double before = 0.0;
  for (std::size_t i = swing.from; i < swing.to; ++i) {
    const double away = std::fabs(trace.signal[i] - start);
    if (away >= kRisen * peak && away > before) {
      const double part = (away - kRisen * peak) / (away - before);
      return (static_cast<double>(i) - part) * trace.interval - pick;
    }
    before = away;
  }
  return 0.0;
}

}  // namespace

std::array<double, 6> singlePicks(const OnsetTrace& trace, Span<double> samples, double pick,
                                  double stretch) {
  const auto about = [&](double from, double to) {
    return rangeOf(pick + stretch * from, pick + stretch * to, trace);
  };
  const Range within = about(-kReach, kReach);
  const Range stretchOf = about(-40e-3, 15e-3);
  const double noise = rmsOf(trace.signal, about(-30e-3, -2e-3));
  const double peak = peakOf(trace.signal, about(0.0, kSwing));
  const double step = trace.interval / stretch;
  const std::array<std::size_t, 6> found = {largestIn(trace.likeliest, within),
                                            largestIn(trace.energyRatio, within),
                                            byInformation(trace.signal, stretchOf, within),
                                            byInformation(samples, stretchOf, within),
                                            byThreshold(trace.signal, noise, peak, within),
                                            byAverages(trace.signal, step, within)};
  std::array<double, 6> ms{};
  for (std::size_t i = 0; i < found.size(); ++i) {
    ms[i] = 1e3 * static_cast<double>(found[i]) * trace.interval;
  }
  return ms;
}

double noiseShare(const OnsetTrace& trace, double pick, double stretch) {
  const auto about = [&](double from, double to) {
    return rangeOf(pick + stretch * from, pick + stretch * to, trace);
  };
  const double peak = peakOf(trace.signal, about(0.0, kSwing));
  return peak > 0.0 ? rmsOf(trace.signal, about(-30e-3, -5e-3)) / peak : 1.0;
}

double pickScatter(const OnsetTrace& trace, Span<double> samples, double pick, double stretch) {
  const double reach = stretch * kReach;
  const Range within = rangeOf(pick - reach, pick + reach, trace);
  const Range swing = rangeOf(pick, pick + stretch * kSwing, trace);
  const bool nothing = within.to - within.from < 3 || !(peakOf(trace.signal, swing) > 0.0);
  if (nothing) return 1e-3 * kMostScatter;
  std::array<double, 6> ms = singlePicks(trace, samples, pick, stretch);
  std::sort(ms.begin(), ms.end());
  double mean = 0.0;
  for (const double time : ms) mean += time / 6.0;
  double square = 0.0;
  for (const double time : ms) square += (time - mean) * (time - mean) / 6.0;
  const double median = 0.5 * (ms[2] + ms[3]);
  const double off = kMedianShare * (median - 1e3 * pick);
  const double noise = noiseShare(trace, pick, stretch);
  const double noisy = kNoiseScale * noise * noise;
  const double coarse = kIntervalShare * 1e3 * trace.interval;
  const double scatter = std::sqrt(kOwnError * kOwnError + kSpreadShare * kSpreadShare * square +
                                   off * off + noisy * noisy + coarse * coarse);
  return 1e-3 * std::min(scatter, kMostScatter);
}

double beginningError(const OnsetTrace& trace, double pick, double stretch) {
  const Range swing = rangeOf(pick, pick + stretch * kSwing, trace);
  if (!(peakOf(trace.signal, swing) > 0.0)) return kLongest;
  const double ms = 1e-3 * stretch;
  const double rise = riseTime(trace, pick, swing) / ms;
  return std::hypot(1e-3 * kLeastOfRise, ms * std::clamp(rise - kSharpRise, 0.0, kMostOfRise));
}

double arrivalError(const OnsetTrace& trace, double pick, double stretch) {
  const double noise = noiseShare(trace, pick, stretch);
  return 1e-3 * stretch * kDoubtOfNoise * std::max(noise - kClearNoise, 0.0);
}

}  // namespace talvesk

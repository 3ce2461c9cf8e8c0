#include "widgets/traces/PickSnap.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace talvesk {
namespace {

/// Samples first ... last around a place; empty when last < first.
struct Range {
  std::ptrdiff_t first = 0;
  std::ptrdiff_t last = -1;

  std::size_t size() const { return last < first ? 0 : static_cast<std::size_t>(last - first + 1); }
};

Range around(Span<double> samples, double place, double reach) {
  const double end = static_cast<double>(samples.size()) - 1.0;
  if (!(place >= 0.0 && place <= end)) return {};
  return {static_cast<std::ptrdiff_t>(std::ceil(std::max(place - reach, 0.0))),
          static_cast<std::ptrdiff_t>(std::floor(std::min(place + reach, end)))};
}

bool allFinite(Span<double> samples, const Range& range) {
  return std::all_of(samples.begin() + range.first, samples.begin() + range.last + 1,
                     [](double v) { return std::isfinite(v); });
}

/// Natural logarithm of the variance of n values with these sums; silence has a floor.
double logVariance(double sum, double squares, double n, double floor) {
  const double mean = sum / n;
  return std::log(std::max(squares / n - mean * mean, floor));
}

double onset(Span<double> samples, const Range& range, double fallback) {
  constexpr std::size_t kLeastPart = 3;
  const std::size_t n = range.size();
  if (n < 2 * kLeastPart + 1) return fallback;
  const double* x = samples.data() + range.first;
  // About the first value: a large offset must not eat the digits of the squares.
  double sum = 0.0;
  double squares = 0.0;
  for (std::size_t i = 0; i < n; ++i) {
    sum += x[i] - x[0];
    squares += (x[i] - x[0]) * (x[i] - x[0]);
  }
  const auto all = static_cast<double>(n);
  const double variance = squares / all - (sum / all) * (sum / all);
  if (!(variance > 0.0) || !std::isfinite(variance)) return fallback;
  const double floor = 1e-8 * variance;
  double best = 0.0;
  std::size_t bestSplit = 0;
  double before = 0.0;
  double squaresBefore = 0.0;
  for (std::size_t k = 1; k + kLeastPart <= n; ++k) {
    const double v = x[k - 1] - x[0];
    before += v;
    squaresBefore += v * v;
    if (k < kLeastPart) continue;
    const auto left = static_cast<double>(k);
    const double criterion =
        left * logVariance(before, squaresBefore, left, floor) +
        (all - left) * logVariance(sum - before, squares - squaresBefore, all - left, floor);
    if (bestSplit == 0 || criterion < best) {
      best = criterion;
      bestSplit = k;
    }
  }
  // The last sample of the quiet part: the wave leaves the line between it and the next.
  return static_cast<double>(range.first) + static_cast<double>(bestSplit) - 1.0;
}

double zeroCrossing(Span<double> samples, const Range& range, double level, double place) {
  double best = place;
  double nearest = HUGE_VAL;
  for (std::ptrdiff_t k = range.first; k < range.last; ++k) {
    const double a = samples[static_cast<std::size_t>(k)] - level;
    const double b = samples[static_cast<std::size_t>(k) + 1] - level;
    if ((a > 0.0) == (b > 0.0) && a != 0.0) continue;
    if (a == b) continue;
    const double crossing = static_cast<double>(k) + a / (a - b);
    if (std::fabs(crossing - place) >= nearest) continue;
    nearest = std::fabs(crossing - place);
    best = crossing;
  }
  return best;
}

/// The vertex of the parabola through three samples, in samples from the middle one.
double vertex(double a, double b, double c) {
  const double bend = a - 2.0 * b + c;
  return bend == 0.0 ? 0.0 : std::clamp(0.5 * (a - c) / bend, -0.5, 0.5);
}

double peak(Span<double> samples, const Range& range, double level, double place, double reach) {
  double best = place;
  double strongest = 0.0;
  for (std::ptrdiff_t k = std::max<std::ptrdiff_t>(range.first, 1);
       k <= range.last && k + 1 < static_cast<std::ptrdiff_t>(samples.size()); ++k) {
    const auto i = static_cast<std::size_t>(k);
    const double a = samples[i - 1] - level;
    const double b = samples[i] - level;
    const double c = samples[i + 1] - level;
    if (!(b > 0.0 ? b >= a && b > c : b <= a && b < c)) continue;
    // A strong lobe beyond the one that is pointed at must not win.
    const double strength =
        std::fabs(b) * (1.0 - std::fabs(static_cast<double>(k) - place) / (reach + 1.0));
    if (strength <= strongest) continue;
    strongest = strength;
    best = static_cast<double>(k) + vertex(a, b, c);
  }
  return best;
}

}  // namespace

double snapPick(Span<double> samples, double interval, double mean, double time, PickSnap snap,
                double radius) {
  if (snap == PickSnap::None || !(interval > 0.0) || samples.empty()) return time;
  const double place = time / interval;
  const auto most = static_cast<double>(samples.size());
  constexpr double kLeast = kLeastSnapSamples;
  const double reach = std::clamp(radius / interval, kLeast, std::max(most, kLeast));
  const Range range = around(samples, place, reach);
  if (range.size() < 2 || !allFinite(samples, range)) return time;
  double snapped = place;
  if (snap == PickSnap::Onset) snapped = onset(samples, range, place);
  if (snap == PickSnap::ZeroCrossing) snapped = zeroCrossing(samples, range, mean, place);
  if (snap == PickSnap::Peak) snapped = peak(samples, range, mean, place, reach);
  return std::isfinite(snapped) ? snapped * interval : time;
}

}  // namespace talvesk

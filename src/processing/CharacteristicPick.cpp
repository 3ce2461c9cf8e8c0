#include "processing/CharacteristicPick.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstring>

#if defined(__x86_64__) && defined(__GNUC__)
#define TALVESK_WIDE_REGISTERS 1
#endif

namespace talvesk {
namespace {

/// Neighbouring samples whose windows are summed side by side, in registers.
constexpr std::size_t kLanes = 16;
using Lanes = std::array<double, kLanes>;

/// Doubles that one instruction adds: the compiler's vector types, as it does not find the loop
/// over the lanes by itself.
using Two = double __attribute__((vector_size(16)));
using Four = double __attribute__((vector_size(32)));

/// sums[k] = squares[k] + squares[k + 1] + ... over `count` values, added in this order and from
/// scratch for every k: no running sum, so that a loud stretch leaves no rounding error behind.
template <typename Vector>
[[gnu::always_inline]] inline void windowSums(const double* squares, std::size_t count,
                                              Lanes& sums) {
  constexpr std::size_t kWidth = sizeof(Vector) / sizeof(double);
  Vector partial[kLanes / kWidth] = {};
  for (std::size_t d = 0; d < count; ++d) {
    for (std::size_t v = 0; v < kLanes / kWidth; ++v) {
      Vector next;
      std::memcpy(&next, squares + d + v * kWidth, sizeof next);
      partial[v] += next;
    }
  }
  std::memcpy(sums.data(), partial, sizeof sums);
}

/// Whether weight * pow(ratio, 3) can exceed the maximum. Products tell it to some units in the
/// last place, which the margin covers, so that the library's costly power is asked only where it
/// counts. Near the ends of the range of doubles, where that error is unbounded, it is always
/// asked.
[[gnu::always_inline]] inline bool canExceed(double maximum, double weight, double ratio) {
  constexpr double kTiny = 1e-290;
  constexpr double kHuge = 1e290;
  constexpr double kMargin = 1.0 + 1e-12;
  const double cube = ratio * ratio * ratio;
  if (std::isnan(cube)) return false;  // no comparison with a NaN holds
  if (!(cube > kTiny && cube < kHuge && maximum > kTiny)) return true;
  return weight * cube * kMargin > maximum;
}

/// The deviations of a trace from its mean, with zeros behind the end that fill the last lanes.
struct Signal {
  std::vector<double> weights;  ///< |x - mean|
  std::vector<double> squares;  ///< (x - mean)^2
  std::size_t size = 0;
  std::size_t half = 0;  ///< samples in a half-window
};

template <typename Vector>
[[gnu::always_inline]] inline std::int32_t scan(const Signal& signal) {
  double maximum = 0.0;
  std::int32_t index = -1;
  const std::size_t end = signal.size - signal.half;
  for (std::size_t first = signal.half; first < end; first += kLanes) {
    Lanes before;
    Lanes after;
    Lanes ratio;
    windowSums<Vector>(&signal.squares[first - signal.half], signal.half + 1, before);
    windowSums<Vector>(&signal.squares[first], signal.half, after);
    for (std::size_t k = 0; k < kLanes; ++k) ratio[k] = after[k] / before[k];
    const std::size_t count = std::min(kLanes, end - first);
    for (std::size_t k = 0; k < count; ++k) {
      const double weight = signal.weights[first + k];
      if (!canExceed(maximum, weight, ratio[k])) continue;
      const double value = weight * std::pow(ratio[k], 3.0);
      if (value > maximum) {
        maximum = value;
        index = static_cast<std::int32_t>(first + k);
      }
    }
  }
  return index;
}

#ifdef TALVESK_WIDE_REGISTERS
/// The same sums, twice as many at a time: the order of additions within each is unchanged, and so
/// is every bit of the result.
[[gnu::target("avx2")]] std::int32_t scanWide(const Signal& signal) {
  return scan<Four>(signal);
}
#endif

}  // namespace

std::int32_t characteristicPick(Span<double> samples, double mean, int window) {
  const std::size_t n = samples.size();
  if (window < 1 || n <= 2 * static_cast<std::size_t>(window)) return -1;
  Signal signal{std::vector<double>(n + kLanes), std::vector<double>(n + kLanes), n,
                static_cast<std::size_t>(window)};
  for (std::size_t j = 0; j < n; ++j) {
    signal.weights[j] = std::fabs(samples[j] - mean);
    signal.squares[j] = (samples[j] - mean) * (samples[j] - mean);
  }
#ifdef TALVESK_WIDE_REGISTERS
  static const bool wide = __builtin_cpu_supports("avx2");
  if (wide) return scanWide(signal);
#endif
  return scan<Two>(signal);
}

}  // namespace talvesk

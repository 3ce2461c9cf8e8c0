#include "processing/joint/OnsetFilters.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

/// A second-order section with its state, direct form II transposed.
struct Section {
  double b0, b1, b2, a1, a2;
  double s1 = 0.0;
  double s2 = 0.0;

  /// As if it had seen `value` for ever.
  void settle(double value) {
    const double gain = (b0 + b1 + b2) / (1.0 + a1 + a2);
    s2 = (b2 - a2 * gain) * value;
    s1 = (b1 - a1 * gain) * value + s2;
  }
  double operator()(double in) {
    const double out = b0 * in + s1;
    s1 = b1 * in - a1 * out + s2;
    s2 = b2 * in - a2 * out;
    return out;
  }
};

/// By the bilinear transform; `cutOff` as a fraction of the sample rate, above 0 and below 0.5.
Section butterworth(double cutOff, bool high) {
  const double pi = std::acos(-1.0);
  const double k = std::tan(pi * cutOff);
  const double norm = 1.0 / (1.0 + std::sqrt(2.0) * k + k * k);
  const double edge = high ? norm : k * k * norm;
  return {edge, high ? -2.0 * edge : 2.0 * edge, edge, 2.0 * (k * k - 1.0) * norm,
          (1.0 - std::sqrt(2.0) * k + k * k) * norm};
}

bool possible(const std::vector<double>& samples, double interval, double cutOff) {
  // Within this of half the sample rate a low-pass leaves everything as it is.
  constexpr double kHighest = 0.45;
  constexpr double kLowest = 1e-6;
  const double share = cutOff * interval;
  return !samples.empty() && interval > 0.0 && share > kLowest && share < kHighest;
}

template <typename Iterator>
void run(Section section, Iterator begin, Iterator end) {
  section.settle(*begin);
  std::for_each(begin, end, [&section](double& sample) { sample = section(sample); });
}

}  // namespace

void highPassForward(std::vector<double>& samples, double interval, double cutOff) {
  if (!possible(samples, interval, cutOff)) return;
  run(butterworth(cutOff * interval, true), samples.begin(), samples.end());
}

void lowPassZeroPhase(std::vector<double>& samples, double interval, double cutOff) {
  if (!possible(samples, interval, cutOff)) return;
  const Section section = butterworth(cutOff * interval, false);
  run(section, samples.begin(), samples.end());
  run(section, samples.rbegin(), samples.rend());
}

}  // namespace talvesk

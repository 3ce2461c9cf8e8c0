#include "processing/joint/ArrivalPeriod.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr double kAfter = 20e-3;  // seconds, before they are stretched
constexpr double kBefore = 30e-3;
constexpr double kApart = 2e-3;  // of the arrival that a low-pass smears before its onset
constexpr double kSlowest = 35.0;
constexpr double kFastest = 60.0;

/// Mean squares of a stretch of a trace and of its change per second.
struct Power {
  double value = 0.0;
  double change = 0.0;
};

Power powerOf(const OnsetTrace& trace, double from, double to) {
  const auto size = static_cast<double>(trace.signal.size());
  const auto first = static_cast<std::size_t>(std::clamp(from / trace.interval, 1.0, size));
  const auto last = static_cast<std::size_t>(std::clamp(to / trace.interval, 1.0, size));
  Power power;
  for (std::size_t i = first; i < last; ++i) {
    const double change = (trace.signal[i] - trace.signal[i - 1]) / trace.interval;
    power.value += trace.signal[i] * trace.signal[i];
    power.change += change * change;
  }
  const auto count = static_cast<double>(std::max<std::size_t>(last - first, 1));
  return {power.value / count, power.change / count};
}

}  // namespace

std::optional<double> arrivalFrequency(const std::vector<OnsetTrace>& traces,
                                       const std::vector<double>& times, double stretch) {
  const double pi = std::acos(-1.0);
  std::vector<double> found;
  for (std::size_t t = 0; t < times.size(); ++t) {
    const OnsetTrace& trace = traces[t];
    if (std::isnan(times[t]) || trace.signal.empty()) continue;
    const Power wave = powerOf(trace, times[t], times[t] + stretch * kAfter);
    const Power noise = powerOf(trace, times[t] - stretch * kBefore, times[t] - stretch * kApart);
    const double value = wave.value - noise.value;
    const double change = wave.change - noise.change;
    if (value > 0.0 && change > 0.0) found.push_back(std::sqrt(change / value) / (2.0 * pi));
  }
  if (found.empty()) return std::nullopt;
  const auto middle = found.begin() + static_cast<std::ptrdiff_t>(found.size() / 2);
  std::nth_element(found.begin(), middle, found.end());
  return *middle;
}

double stretchFor(double frequency) {
  const double near = std::clamp(frequency, kSlowest, kFastest);
  return std::clamp(near / frequency, 0.1, 4.0);
}

}  // namespace talvesk

#include "doctor/CommonSpike.h"

#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>

namespace talvesk::doctor {
namespace {

constexpr double kSpike = 8.0;      // times the usual step, on most channels at once
constexpr double kAround = 4.0;     // that nothing beside it reaches
constexpr std::size_t kQuiet = 12;  // samples on each side that tell it from a wave
constexpr std::size_t kFewest = 6;  // channels

/// A trace and its usual step from sample to sample.
struct Steps {
  Span<double> samples;
  double usual = 0.0;

  double at(std::size_t i) const { return std::fabs(samples[i + 1] - samples[i]) / usual; }
};

std::vector<Steps> stepsOf(const TraceSet& traces) {
  std::vector<Steps> all;
  for (const Trace& trace : traces) {
    const Span<double> samples = trace.samples;
    std::vector<double> steps;
    for (std::size_t i = 1; i < samples.size(); ++i) {
      steps.push_back(std::fabs(samples[i] - samples[i - 1]));
    }
    const double usual = medianOf(std::move(steps), 0.0);
    if (usual > 0.0) all.push_back({samples, usual});
  }
  return all;
}

}  // namespace

std::optional<std::size_t> commonSpike(const TraceSet& traces) {
  const std::vector<Steps> steps = stepsOf(traces);
  if (steps.size() < kFewest) return std::nullopt;
  std::size_t count = steps.front().samples.size();
  for (const Steps& trace : steps) count = std::min(count, trace.samples.size());
  std::vector<double> together;
  std::vector<double> here(steps.size());
  for (std::size_t i = 0; i + 1 < count; ++i) {
    for (std::size_t t = 0; t < steps.size(); ++t) here[t] = steps[t].at(i);
    together.push_back(medianOf(here, 0.0));
  }
  for (std::size_t i = kQuiet; i + kSpikeWidth + kQuiet < together.size(); ++i) {
    if (together[i] < kAround) continue;
    const auto at = together.begin() + static_cast<std::ptrdiff_t>(i);
    const auto behind = at + kSpikeWidth;
    const bool quiet = std::all_of(at - kQuiet, at, [](double s) { return s < kAround; }) &&
                       std::all_of(behind, behind + kQuiet, [](double s) { return s < kAround; });
    if (quiet && *std::max_element(at, behind) >= kSpike) return i + 1;
  }
  return std::nullopt;
}

std::vector<double> withoutSpike(std::vector<double> samples, std::size_t spike) {
  if (spike == 0 || spike + kSpikeWidth >= samples.size()) return samples;
  const double before = samples[spike - 1];
  const double after = samples[spike + kSpikeWidth];
  for (std::size_t i = 0; i < kSpikeWidth; ++i) {
    const double share = static_cast<double>(i + 1) / static_cast<double>(kSpikeWidth + 1);
    samples[spike + i] = before + share * (after - before);
  }
  return samples;
}

}  // namespace talvesk::doctor

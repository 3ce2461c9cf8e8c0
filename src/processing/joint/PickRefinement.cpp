#include "processing/joint/PickRefinement.h"

#include "processing/joint/PickError.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace talvesk {
namespace {

// Seconds about the time, before they are stretched.
constexpr double kCutBefore = 200e-3;
constexpr double kCutAfter = 100e-3;
constexpr double kLook = 12e-3;
constexpr double kEarlier = 1e-3;  // that the onset may be
constexpr double kLater = 4e-3;

// The cut-off of an arrival that stands this far out of the noise, and how it follows that.
constexpr double kNoiseShare = 0.03;
constexpr double kCutOff = 400.0;  // Hz
constexpr double kCutOffPower = 0.7;
constexpr double kLowestCutOff = 100.0;
constexpr double kHighestCutOff = 800.0;

constexpr double kMedianWeight = 0.7;  // of the single-trace picks
constexpr double kMostPolish = 3e-3;

double cutOffFor(const OnsetTrace& trace, double time, double stretch) {
  const double share = std::max(noiseShare(trace, time, stretch), 1e-6);
  return std::clamp(kCutOff * std::pow(kNoiseShare / share, kCutOffPower), kLowestCutOff,
                    kHighestCutOff);
}

/// The likeliest onset a little before a time or some more after it.
double likeliestNear(const OnsetTrace& trace, double time, double stretch) {
  const auto size = static_cast<double>(trace.likelihood.size());
  const auto sample = [&](double seconds) {
    return static_cast<std::ptrdiff_t>(std::clamp(seconds / trace.interval, 0.0, size));
  };
  const auto from = trace.likelihood.begin() + sample(time - stretch * kEarlier);
  const auto to = trace.likelihood.begin() + sample(time + stretch * kLater);
  const auto best = std::max_element(from, to);
  if (best == to || !(*best > 0.0F)) return time;
  return static_cast<double>(best - trace.likelihood.begin()) * trace.interval;
}

/// A person picks where the motion leaves the line, and what finds rises is rather late than early:
/// of the six the second and the third.
double polished(const OnsetTrace& trace, Span<double> samples, double time, double stretch) {
  std::array<double, 6> single = singlePicks(trace, samples, time, stretch);
  std::sort(single.begin(), single.end());
  const double early = 0.5e-3 * (single[1] + single[2]);
  const double most = stretch * kMostPolish;
  return time + std::clamp(kMedianWeight * (early - time), -most, most);
}

}  // namespace

RefinedPick refinePick(Span<double> samples, const OnsetTrace& trace, double time, double stretch) {
  const double interval = trace.interval;
  const auto sample = [&](double seconds) {
    return static_cast<std::ptrdiff_t>(
        std::clamp(seconds / interval, 0.0, static_cast<double>(samples.size())));
  };
  const std::ptrdiff_t first = sample(time - stretch * kCutBefore);
  const std::vector<double> near(samples.begin() + first,
                                 samples.begin() + sample(time + stretch * kCutAfter));
  const double start = static_cast<double>(first) * interval;
  const double within = time - start;
  const OnsetView view{stretch, cutOffFor(trace, time, stretch)};
  const OnsetTrace sharp =
      prepareOnset(near, interval, within - stretch * kLook, within + stretch * kLook, view);
  RefinedPick pick;
  if (sharp.dead()) {
    pick.time = time;
    pick.scatter = pickScatter(trace, samples, time, stretch);
  } else {
    const double onset = likeliestNear(sharp, within, stretch);
    pick.time = start + polished(sharp, near, onset, stretch) - 0.5 * interval;
    pick.scatter = pickScatter(sharp, near, onset, stretch);
  }
  pick.beginning = beginningError(trace, pick.time, stretch);
  pick.arrival = arrivalError(trace, pick.time, stretch);
  return pick;
}

}  // namespace talvesk

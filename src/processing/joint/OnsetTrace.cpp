#include "processing/joint/OnsetTrace.h"

#include "numerics/Medians.h"
#include "processing/joint/OnsetFilters.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace talvesk {
namespace {

constexpr double kLowCut = 8.0;  // Hz
constexpr double kPi = 3.14159265358979323846;
constexpr double kChangeCut = 20.0;  // Hz, of a wave whose change counts as much as itself
constexpr double kFloorWindow = 10e-3;
constexpr double kFloorShare = 0.03;
/// Samples in a quarter of a millisecond count as one: neighbours are not independent.
constexpr double kCountPerSecond = 4000.0;

struct Windows {
  double before;  // seconds
  double after;
};
constexpr Windows kVariance = {40e-3, 15e-3};
constexpr Windows kRatio = {15e-3, 8e-3};
constexpr double kShortestBefore = 1e-3;

/// Sums of the energy up to every sample.
std::vector<double> energySums(const std::vector<double>& y, double interval) {
  const double scale = 1.0 / (2.0 * kPi * kChangeCut * interval);
  std::vector<double> sums(y.size() + 1, 0.0);
  for (std::size_t i = 0; i < y.size(); ++i) {
    const double change = i == 0 ? 0.0 : scale * (y[i] - y[i - 1]);
    sums[i + 1] = sums[i] + y[i] * y[i] + change * change;
  }
  return sums;
}

double floorOf(const std::vector<double>& sums, std::size_t window) {
  std::vector<double> means;
  for (std::size_t i = 0; i + window < sums.size(); i += window) {
    means.push_back((sums[i + window] - sums[i]) / static_cast<double>(window));
  }
  if (means.empty()) return 0.0;
  const auto share = static_cast<std::ptrdiff_t>(kFloorShare * static_cast<double>(means.size()));
  std::nth_element(means.begin(), means.begin() + share, means.end());
  return means[static_cast<std::size_t>(share)];
}

std::size_t samplesIn(double seconds, double interval, std::size_t least) {
  return std::max(least, static_cast<std::size_t>(std::lround(seconds / interval)));
}

/// Mean energies after and before a sample, with how many independent values they are of.
struct Sides {
  double after, before, countAfter, countBefore;
};

class Energy {
 public:
  Energy(const std::vector<double>& signal, double interval)
      : mSums(energySums(signal, interval)),
        mInterval(interval),
        mFloor(floorOf(mSums, samplesIn(kFloorWindow, interval, 2))) {}

  bool silent() const { return !(mSums.back() > 0.0); }

  Sides around(std::size_t i, std::size_t nBefore, std::size_t nAfter) const {
    const std::size_t size = mSums.size() - 1;
    const std::size_t before = std::min(nBefore, i);
    const std::size_t after = std::min(nAfter, size - i);
    const auto mean = [&](std::size_t first, std::size_t count) {
      return (mSums[first + count] - mSums[first]) / static_cast<double>(count) + mFloor;
    };
    const double perSample = mInterval * kCountPerSecond;
    return {mean(i, after), mean(i - before, before), static_cast<double>(after) * perSample,
            static_cast<double>(before) * perSample};
  }

 private:
  std::vector<double> mSums;
  double mInterval;
  double mFloor;
};

double likelihoodRatio(const Sides& s) {
  if (!(s.after > s.before) || !(s.before > 0.0)) return 0.0;
  const double count = s.countAfter + s.countBefore;
  const double pooled = (s.countAfter * s.after + s.countBefore * s.before) / count;
  const double square = count * std::log(pooled) - s.countAfter * std::log(s.after) -
                        s.countBefore * std::log(s.before);
  return std::sqrt(std::max(square, 0.0));
}

double energyRatio(const Sides& s) {
  return s.after > s.before && s.before > 0.0 ? 5.0 * std::log(s.after / s.before) : 0.0;
}

}  // namespace

OnsetTrace prepareOnset(Span<double> samples, double interval, double from, double to,
                        const OnsetView& view) {
  OnsetTrace trace;
  trace.interval = interval;
  if (!(interval > 0.0) || !(view.stretch > 0.0)) return trace;
  const double step = interval / view.stretch;  // as the lengths above see it
  const std::size_t least = samplesIn(kShortestBefore, step, 2);
  if (samples.size() < 2 * least + 2) return trace;
  trace.signal.assign(samples.begin(), samples.end());
  const double middle = medianOf(trace.signal, 0.0);
  for (double& sample : trace.signal) sample -= middle;
  highPassForward(trace.signal, step, kLowCut);
  lowPassZeroPhase(trace.signal, step, view.highCut);
  trace.likelihood.assign(samples.size(), 0.0F);
  trace.likeliest = trace.likelihood;
  trace.energyRatio = trace.likelihood;
  const Energy energy(trace.signal, step);
  if (energy.silent()) return trace;

  const auto last = static_cast<double>(samples.size() - least);
  trace.from = static_cast<std::size_t>(
      std::clamp(std::ceil(from / interval), static_cast<double>(least), last));
  trace.to = static_cast<std::size_t>(
      std::clamp(std::floor(to / interval) + 1.0, static_cast<double>(trace.from), last));
  const std::size_t varianceBefore = samplesIn(kVariance.before, step, least);
  const std::size_t varianceAfter = samplesIn(kVariance.after, step, 2);
  const std::size_t ratioBefore = samplesIn(kRatio.before, step, least);
  const std::size_t ratioAfter = samplesIn(kRatio.after, step, 2);
  for (std::size_t i = trace.from; i < trace.to; ++i) {
    const double a = likelihoodRatio(energy.around(i, varianceBefore, varianceAfter));
    const double b = energyRatio(energy.around(i, ratioBefore, ratioAfter));
    trace.likeliest[i] = static_cast<float>(a);
    trace.energyRatio[i] = static_cast<float>(b);
    trace.likelihood[i] = static_cast<float>(0.4 * a + 0.6 * b);
    trace.largest = std::max(trace.largest, trace.likelihood[i]);
  }
  return trace;
}

}  // namespace talvesk

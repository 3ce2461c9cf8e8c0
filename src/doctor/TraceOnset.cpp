#include "doctor/TraceOnset.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace talvesk::doctor {
namespace {

constexpr double kPi = 3.14159265358979323846;

/// Of noise split anywhere, twice the log likelihood ratio reaches this in one of a
/// hundred traces: chi-square of one degree, the best of many splits.
constexpr double kByChance = 10.0;
constexpr double kRise = 2.0;           // in variance: less is a change of weather
constexpr std::size_t kFewest = 4;      // samples in either part
constexpr int kMostDepth = 3;           // splits of splits: seven arrivals at most
constexpr double kNegligible = 1e-4;    // of the greatest magnitude: beyond what recorders resolve
constexpr double kDeafBelow = 5.0;      // Hz: geophones hear nothing slower
constexpr double kDrift = 3.0;          // times the period of the strongest waves, and longer
constexpr double kPerPeriod = 48.0;     // samples that a swing and back needs to be seen
constexpr double kNoisePeriods = 20.0;  // before the arrival, that tell how strong noise is there

/// Takes out what is slower than a corner, cycles per sample: two first-order high-passes one after
/// the other, forward only, so that nothing shows before it begins.
std::vector<double> withoutDrift(Span<double> samples, std::size_t from, double corner) {
  std::vector<double> out(samples.size(), 0.0);
  const double keep = 1.0 / (1.0 + 2.0 * kPi * corner);
  double first = 0.0;
  double second = 0.0;
  for (std::size_t i = from + 1; i < samples.size(); ++i) {
    const double before = first;
    first = keep * (first + samples[i] - samples[i - 1]);
    second = keep * (second + first - before);
    out[i] = second;
  }
  return out;
}

/// The likeliest split of [from, end) into noise and what is stronger; `from` without one.
std::size_t likeliestSplit(const TraceSums& sums, std::size_t from, std::size_t end) {
  const auto count = static_cast<double>(end - from);
  const double whole = std::log(sums.variance(from, end) + sums.floor());
  double best = 0.0;
  std::size_t split = from;
  for (std::size_t k = from + kFewest; k + kFewest <= end; ++k) {
    const double before = sums.variance(from, k) + sums.floor();
    const double after = sums.variance(k, end) + sums.floor();
    if (after < kRise * before) continue;
    const double gain = count * whole - static_cast<double>(k - from) * std::log(before) -
                        static_cast<double>(end - k) * std::log(after);
    // What is seen of a slow swing only in part looks quiet.
    if (gain <= best || static_cast<double>(k - from) < sums.correlation(from, k)) continue;
    best = gain;
    split = k;
  }
  return split;
}

/// Twice the log of how much likelier two strengths are than one, values of a correlated series
/// counted for what they are worth (M. S. Bartlett, 1937, Properties of sufficiency and statistical
/// tests, Proceedings of the Royal Society A 160).
double evidenceOf(const TraceSums& sums, std::size_t from, std::size_t split, std::size_t end) {
  const double before = sums.variance(from, split) + sums.floor();
  const double after = sums.variance(split, end) + sums.floor();
  const double noise = static_cast<double>(split - from) / sums.correlation(from, split);
  const double signal =
      std::max(1.0, static_cast<double>(end - split) / sums.correlation(split, end));
  const double pooled = (noise * before + signal * after) / (noise + signal);
  return noise * std::log(pooled / before) + signal * std::log(pooled / after);
}

/// Splits [from, end), then either part, as long as the splits stand out of noise.
void addSplits(const TraceSums& sums, std::size_t from, std::size_t end, int depth,
               std::vector<OnsetCandidate>& candidates) {
  if (depth == 0 || end < from + 2 * kFewest) return;
  const std::size_t split = likeliestSplit(sums, from, end);
  if (split == from) return;
  const double evidence = evidenceOf(sums, from, split, end) / kByChance;
  if (evidence < 1.0) return;
  candidates.push_back({split, evidence, 0.0});
  addSplits(sums, from, split, depth - 1, candidates);
  addSplits(sums, split, end, depth - 1, candidates);
}

}  // namespace

TraceSums::TraceSums(Span<double> samples)
    : mSum(samples.size() + 1), mSquares(samples.size() + 1), mSlopes(samples.size() + 1) {
  double mean = 0.0;
  for (const double sample : samples) mean += sample / static_cast<double>(samples.size());
  for (std::size_t i = 0; i < samples.size(); ++i) {
    const double value = samples[i] - mean;
    const double slope = i == 0 ? 0.0 : samples[i] - samples[i - 1];
    mPeak = std::max(mPeak, std::fabs(value));
    mSum[i + 1] = mSum[i] + value;
    mSquares[i + 1] = mSquares[i] + value * value;
    mSlopes[i + 1] = mSlopes[i] + slope * slope;
  }
  mFloor = kNegligible * kNegligible * mPeak * mPeak;
}

double TraceSums::variance(std::size_t from, std::size_t to) const {
  if (to <= from) return 0.0;
  const auto count = static_cast<double>(to - from);
  const double mean = (mSum[to] - mSum[from]) / count;
  return std::max(0.0, (mSquares[to] - mSquares[from]) / count - mean * mean);
}

double TraceSums::correlation(std::size_t from, std::size_t to) const {
  if (to <= from + 1) return 1.0;
  const auto count = static_cast<double>(to - from);
  const double slope = (mSlopes[to] - mSlopes[from + 1]) / (count - 1.0);
  if (!(slope > 0.0)) return 1.0;
  return std::clamp(kPi * std::sqrt(variance(from, to) / slope), 1.0, count);
}

std::size_t TraceSums::strongest(std::size_t from) const {
  const std::size_t n = size();
  if (from >= n) return n;
  const auto window = static_cast<std::size_t>(
      std::clamp(2.0 * correlation(from, n), 1.0, static_cast<double>(n - from)));
  std::size_t best = n;
  double greatest = -1.0;
  for (std::size_t k = from; k + window <= n; ++k) {
    const double energy = mSquares[k + window] - mSquares[k];
    if (energy > greatest) {
      greatest = energy;
      best = k + window;
    }
  }
  return best;
}

StrongestWave strongestWave(Span<double> samples, std::size_t from, double sampleInterval) {
  const TraceSums sums(withoutDrift(samples, from, kDeafBelow * sampleInterval));
  const std::size_t end = sums.strongest(from);
  const auto around = static_cast<std::size_t>(4.0 * sums.correlation(from, samples.size()));
  const double half = sums.correlation(end > from + around ? end - around : from,
                                       std::min(samples.size(), end + around));
  return {2.0 * half * sampleInterval, sums.peak()};
}

ReadyTrace makeReady(Span<double> samples, std::size_t from, double period) {
  ReadyTrace ready;
  ready.block = std::max<std::size_t>(1, static_cast<std::size_t>(period / kPerPeriod));
  ready.from = (from + ready.block - 1) / ready.block * ready.block;
  ready.fine = withoutDrift(samples, from, 1.0 / (kDrift * period));
  for (std::size_t i = 0; i + ready.block <= samples.size(); i += ready.block) {
    double sum = 0.0;
    for (std::size_t k = i; k < i + ready.block; ++k) sum += ready.fine[k];
    ready.coarse.push_back(sum / static_cast<double>(ready.block));
  }
  return ready;
}

std::vector<OnsetCandidate> onsetCandidates(const ReadyTrace& trace) {
  std::vector<OnsetCandidate> candidates;
  const TraceSums sums(trace.coarse);
  const std::size_t from = trace.from / trace.block;
  if (!(sums.floor() > 0.0)) return candidates;
  const std::size_t end = sums.strongest(from);
  addSplits(sums, from, end, kMostDepth, candidates);
  std::sort(candidates.begin(), candidates.end(),
            [](const auto& a, const auto& b) { return a.sample < b.sample; });
  for (std::size_t i = 0; i < candidates.size(); ++i) {
    const std::size_t next = i + 1 < candidates.size() ? candidates[i + 1].sample : end;
    const double size = std::sqrt(2.0 * sums.variance(candidates[i].sample, next));
    candidates[i].share = std::clamp(size / sums.peak(), 1e-9, 1.0);
  }
  for (OnsetCandidate& candidate : candidates) candidate.sample *= trace.block;
  return candidates;
}

Onset onsetNear(const ReadyTrace& trace, std::size_t sample, double period, double sampleInterval) {
  const std::vector<double>& x = trace.fine;
  const TraceSums sums(x);
  const auto reach = static_cast<std::size_t>(std::max(4.0, period / 2.0));
  const std::size_t begin = sample > trace.from + reach ? sample - reach : trace.from;
  const std::size_t end = std::min(x.size(), sample + reach);
  Onset onset;
  onset.found = true;
  onset.sample = sample;
  double best = std::numeric_limits<double>::infinity();
  const std::size_t slack = 2 * trace.block;
  for (std::size_t k = std::max(begin + 2, sample > slack ? sample - slack : 0);
       k < std::min(end - std::min<std::size_t>(end, 2), sample + slack + 1); ++k) {
    const double value =
        static_cast<double>(k - begin) * std::log(sums.variance(begin, k) + sums.floor()) +
        static_cast<double>(end - k) * std::log(sums.variance(k, end) + sums.floor());
    if (value < best) {
      best = value;
      onset.sample = k;
    }
  }
  const auto memory = static_cast<std::size_t>(kNoisePeriods * period);
  const std::size_t quiet = onset.sample > trace.from + memory ? onset.sample - memory : trace.from;
  onset.noise = std::sqrt(sums.variance(quiet, onset.sample) + sums.floor());
  // The first swing ends where the trace comes back through zero after leaving the noise.
  std::size_t i = onset.sample;
  while (i < x.size() && std::fabs(x[i]) < 3.0 * onset.noise) ++i;
  std::size_t back = i;
  while (back < x.size() && (x[back] > 0.0) == (x[i] > 0.0)) ++back;
  const std::size_t half = std::max<std::size_t>(
      2, std::min(back - onset.sample, static_cast<std::size_t>(std::max(period, 2.0))));
  onset.period = 2.0 * static_cast<double>(half) * sampleInterval;
  for (std::size_t k = onset.sample; k < std::min(x.size(), onset.sample + 2 * half); ++k) {
    onset.swing = std::max(onset.swing, std::fabs(x[k]));
  }
  onset.signalToNoise = onset.noise > 0.0 ? onset.swing / onset.noise : 0.0;
  // A swing A sin(2 pi t / T) leaves three times the noise at T / (2 pi) asin(3 noise / A).
  const double hidden = std::min(1.0, 3.0 / std::max(onset.signalToNoise, 1e-9));
  onset.error = std::max(sampleInterval, onset.period / (2.0 * kPi) * std::asin(hidden));
  return onset;
}

}  // namespace talvesk::doctor

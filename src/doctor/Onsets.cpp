#include "doctor/Onsets.h"

#include "doctor/CommonSpike.h"
#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <optional>

namespace talvesk::doctor {
namespace {

/// A trace that takes part in the choice.
struct Choice {
  std::size_t trace = 0;
  std::vector<OnsetCandidate> candidates;
  std::vector<double> times;  ///< seconds, per candidate
  std::vector<double> costs;  ///< of each candidate by itself
};

constexpr double kCheapestSkip = 0.2;   // of passing over what may be an arrival
constexpr double kCostliestSkip = 3.0;  // of passing over an arrival that is plain to see
constexpr double kCostliestJump = 1.5;  // of not lying on a line with the neighbours

bool hasInterval(const Trace& trace) {
  return trace.sampleInterval > 0.0 && trace.sampleInterval < 1e3;
}

std::size_t leadingConstants(Span<double> samples) {
  const auto differs = std::find_if(samples.begin(), samples.end(),
                                    [&](double value) { return value != samples.front(); });
  return static_cast<std::size_t>(differs - samples.begin());
}

/// Samples in front that no trace recorded: a mend or a reader put zeros there, on all alike.
std::size_t padding(const TraceSet& traces) {
  std::map<std::size_t, std::size_t> counts;
  std::size_t live = 0;
  for (const Trace& trace : traces) {
    const std::size_t count = leadingConstants(trace.samples);
    if (count == trace.samples.size()) continue;
    ++counts[count];
    ++live;
  }
  if (live == 0) return 0;
  const auto [least, traceCount] = *counts.begin();
  return least >= 2 && 2 * traceCount > live ? least : 0;
}

/// What it costs to take none of what begins at a candidate for the first arrival: little for what
/// hardly stands out of noise, or is hardly anything beside the rest of the trace.
double costOfSkipping(const OnsetCandidate& candidate, double time) {
  const double surely = std::log2(candidate.evidence);
  const double size = kCostliestSkip * (2.5 + std::log10(candidate.share)) / 2.0;
  const double cost = std::clamp(std::min(surely, size), kCheapestSkip, kCostliestSkip);
  return time < 0.0 ? 0.5 * cost : cost;
}

void weigh(Choice& choice, const Trace& trace) {
  const std::size_t count = choice.candidates.size();
  choice.costs.assign(count, 0.0);
  choice.times.assign(count, 0.0);
  double cost = 0.0;
  for (std::size_t i = 0; i < count; ++i) {
    const OnsetCandidate& candidate = choice.candidates[i];
    choice.times[i] =
        timeOfFirstSample(trace) + static_cast<double>(candidate.sample) * trace.sampleInterval;
    choice.costs[i] = cost;
    cost += costOfSkipping(candidate, choice.times[i]);
  }
}

/// How far the middle one of three traces is off the line through the others.
double jump(const Choice& a, std::size_t i, const Choice& b, std::size_t j, const Choice& c,
            std::size_t k, double period) {
  const double share =
      static_cast<double>(b.trace - a.trace) / static_cast<double>(c.trace - a.trace);
  const double line = a.times[i] + share * (c.times[k] - a.times[i]);
  return std::min(kCostliestJump, 2.0 * std::fabs(b.times[j] - line) / period);
}

/// The candidates, one per trace, that cost least in all: dynamic programming over pairs of
/// neighbours (G. D. Forney, 1973, The Viterbi algorithm).
std::vector<std::size_t> cheapest(const std::vector<Choice>& choices, double period) {
  const std::size_t n = choices.size();
  std::vector<std::size_t> chosen(n, 0);
  if (n < 3) return chosen;
  // cost[t][i, j]: of the best choice up to trace t that ends in i on t - 1 and j on t.
  std::vector<std::vector<double>> cost(n);
  std::vector<std::vector<std::size_t>> from(n);
  const auto width = [&](std::size_t t) { return choices[t].candidates.size(); };
  cost[1].resize(width(0) * width(1));
  for (std::size_t i = 0; i < width(0); ++i) {
    for (std::size_t j = 0; j < width(1); ++j) {
      cost[1][i * width(1) + j] = choices[0].costs[i] + choices[1].costs[j];
    }
  }
  for (std::size_t t = 2; t < n; ++t) {
    cost[t].assign(width(t - 1) * width(t), std::numeric_limits<double>::infinity());
    from[t].assign(cost[t].size(), 0);
    for (std::size_t j = 0; j < width(t - 1); ++j) {
      for (std::size_t k = 0; k < width(t); ++k) {
        for (std::size_t i = 0; i < width(t - 2); ++i) {
          const double sum = cost[t - 1][i * width(t - 1) + j] + choices[t].costs[k] +
                             jump(choices[t - 2], i, choices[t - 1], j, choices[t], k, period);
          if (sum < cost[t][j * width(t) + k]) {
            cost[t][j * width(t) + k] = sum;
            from[t][j * width(t) + k] = i;
          }
        }
      }
    }
  }
  const auto last = static_cast<std::size_t>(
      std::min_element(cost[n - 1].begin(), cost[n - 1].end()) - cost[n - 1].begin());
  chosen[n - 1] = last % width(n - 1);
  chosen[n - 2] = last / width(n - 1);
  for (std::size_t t = n; t-- > 2;) {
    chosen[t - 2] = from[t][chosen[t - 1] * width(t) + chosen[t]];
  }
  return chosen;
}

bool isUsable(const Trace& trace) {
  return !trace.samples.empty() && hasInterval(trace);
}

/// Period of the strongest waves of a shot, seconds: the median of the strongest quarter of its
/// traces, for the weak ones hold little but noise.
double periodOf(const TraceSet& traces, std::size_t from) {
  std::vector<StrongestWave> waves;
  for (const Trace& trace : traces) {
    if (!isUsable(trace) || leadingConstants(trace.samples) == trace.samples.size()) continue;
    waves.push_back(strongestWave(trace.samples, from, trace.sampleInterval));
  }
  std::stable_sort(waves.begin(), waves.end(),
                   [](const StrongestWave& a, const StrongestWave& b) { return a.size > b.size; });
  std::vector<double> periods;
  for (std::size_t i = 0; i < waves.size() && (i < 5 || 4 * i < waves.size()); ++i) {
    periods.push_back(waves[i].period);
  }
  return medianOf(std::move(periods), 0.01);
}

}  // namespace

double timeOfFirstSample(const Trace& trace) {
  if (!hasInterval(trace)) return 0.0;
  return trace.delay + static_cast<double>(trace.droppedSamples) * trace.sampleInterval;
}

ShotOnsets findOnsets(const TraceSet& traces) {
  ShotOnsets onsets(traces.size());
  const std::size_t from = padding(traces);
  const double period = periodOf(traces, from);
  const std::optional<std::size_t> spike = commonSpike(traces);
  std::vector<ReadyTrace> ready(traces.size());
  std::vector<Choice> choices;
  for (std::size_t t = 0; t < traces.size(); ++t) {
    if (!isUsable(traces[t])) continue;
    const double samplesPerPeriod = period / traces[t].sampleInterval;
    const Span<double> samples = traces[t].samples;
    ready[t] = spike ? makeReady(withoutSpike({samples.begin(), samples.end()}, *spike), from,
                                 samplesPerPeriod)
                     : makeReady(samples, from, samplesPerPeriod);
    Choice choice{t, onsetCandidates(ready[t]), {}, {}};
    if (choice.candidates.empty()) continue;
    weigh(choice, traces[t]);
    choices.push_back(std::move(choice));
  }
  const std::vector<std::size_t> chosen = cheapest(choices, period);
  for (std::size_t c = 0; c < choices.size(); ++c) {
    const std::size_t t = choices[c].trace;
    const double interval = traces[t].sampleInterval;
    Onset& onset = onsets[t];
    onset =
        onsetNear(ready[t], choices[c].candidates[chosen[c]].sample, period / interval, interval);
    onset.time = timeOfFirstSample(traces[t]) + static_cast<double>(onset.sample) * interval;
  }
  return onsets;
}

}  // namespace talvesk::doctor

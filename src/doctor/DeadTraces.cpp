#include "doctor/FindingParts.h"
#include "doctor/TraceChecks.h"
#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace talvesk::doctor {
namespace {

// 30 dB: coupling to the ground and distance from one geophone to the next never make as much.
constexpr double kWeak = 1.0 / 30.0;
constexpr std::size_t kReach = 4;        // neighbours on each side
constexpr double kLoud = 10.0;           // times the noise of the neighbours
constexpr double kFlat = 1e-4;           // of the greatest magnitude
constexpr std::size_t kFlatSamples = 4;  // in a row that make a flat top
constexpr std::size_t kFlatTops = 2;

/// Root mean square about the mean; 0 for a constant trace.
double strengthOf(const Trace& trace) {
  const TraceSums sums(trace.samples);
  return trace.samples.empty() ? 0.0 : std::sqrt(sums.variance(0, sums.size()));
}

/// Whether a trace is as strong from beginning to end. One that begins after the arrival is not.
bool isNoise(const Trace& trace) {
  constexpr std::size_t kParts = 4;
  constexpr double kSteady = 4.0;  // greatest variance of a part over the least
  const TraceSums sums(trace.samples);
  std::vector<double> parts;
  for (std::size_t i = 0; i < kParts; ++i) {
    parts.push_back(sums.variance(i * sums.size() / kParts, (i + 1) * sums.size() / kParts));
  }
  const auto [least, most] = std::minmax_element(parts.begin(), parts.end());
  return *most < kSteady * *least;
}

/// The median of values of the neighbours for which `counts`; 0 without any.
template <typename Value, typename Counts>
double ofNeighbours(std::size_t trace, std::size_t count, Value value, Counts counts) {
  std::vector<double> values;
  const std::size_t first = trace > kReach ? trace - kReach : 0;
  for (std::size_t t = first; t < std::min(count, trace + kReach + 1); ++t) {
    if (t != trace && counts(t)) values.push_back(value(t));
  }
  return medianOf(std::move(values), 0.0);
}

/// How often a trace stays at its greatest or least value.
std::size_t flatTops(Span<double> samples) {
  const auto [least, most] = std::minmax_element(samples.begin(), samples.end());
  const double slack = kFlat * (*most - *least);
  std::size_t tops = 0;
  std::size_t run = 0;
  for (const double sample : samples) {
    run = sample >= *most - slack || sample <= *least + slack ? run + 1 : 0;
    if (run == kFlatSamples) ++tops;
  }
  return tops;
}

}  // namespace

std::vector<Finding> checkDeadTraces(const ShotView& shot) {
  std::vector<double> strengths;
  for (const Trace& trace : *shot.traces) strengths.push_back(strengthOf(trace));
  const std::size_t count = strengths.size();
  std::vector<std::size_t> silent;
  std::vector<std::size_t> weak;
  std::vector<bool> sound(count, true);
  double weakest = 1.0;
  for (std::size_t t = 0; t < count; ++t) {
    sound[t] = strengths[t] > 0.0 && !shot.killed[t];
    if (strengths[t] == 0.0 && !shot.killed[t]) silent.push_back(t);
  }
  // Weak neighbours must not vouch for each other: once found they count no more.
  for (std::size_t before = count + 1; before != weak.size();) {
    before = weak.size();
    for (std::size_t t = 0; t < count; ++t) {
      if (!sound[t]) continue;
      const double around = ofNeighbours(
          t, count, [&](std::size_t i) { return strengths[i]; },
          [&](std::size_t i) { return sound[i]; });
      if (strengths[t] >= kWeak * around) continue;
      sound[t] = false;
      weak.push_back(t);
      weakest = std::min(weakest, strengths[t] / around);
    }
  }
  std::sort(weak.begin(), weak.end());
  std::vector<Finding> findings;
  if (silent.size() == count) {
    findings.push_back(aboutShot(Finding::Kind::kDeadTrace, shot, 1.0,
                                 Message::tr("no trace of the record holds anything")));
    findings.back().proposal.emplace();
    findings.back().proposal->kind = Proposal::Kind::kDisableShot;
    return findings;
  }
  const auto add = [&](const std::vector<std::size_t>& traces, double confidence, Message text) {
    if (traces.empty()) return;
    findings.push_back(aboutShot(Finding::Kind::kDeadTrace, shot, confidence, std::move(text)));
    findings.back().traces = traces;
    findings.back().proposal = ofTraces(Proposal::Kind::kKillTraces, traces);
  };
  add(silent, 1.0, Message::tr("dead: the samples of %1 are all the same").arg(traceList(silent)));
  add(weak, 0.9,
      Message::tr("as good as dead: %1, at down to %2 % of the strength of the neighbours")
          .arg(traceList(weak))
          .arg(Message::number(weakest * 100.0, 2)));
  return findings;
}

std::vector<Finding> checkClippedTraces(const ShotView& shot) {
  std::vector<std::size_t> clipped;
  std::size_t most = 0;
  for (std::size_t t = 0; t < shot.traces->size(); ++t) {
    const Span<double> samples = (*shot.traces)[t].samples;
    if (shot.killed[t] || !shot.onsets[t].found) continue;
    const std::size_t tops = flatTops(samples);
    if (tops < kFlatTops) continue;
    clipped.push_back(t);
    most = std::max(most, tops);
  }
  if (clipped.empty()) return {};
  Finding finding = aboutShot(
      Finding::Kind::kClippedTrace, shot, 0.9,
      Message::tr("clipped: the swings of %1 are cut off flat, up to %2 times; first breaks "
                  "can be picked, amplitudes mean nothing")
          .arg(traceList(clipped))
          .arg(most));
  finding.traces = std::move(clipped);
  return {finding};
}

std::vector<Finding> checkNoisyTraces(const ShotView& shot) {
  const std::size_t count = shot.onsets.size();
  std::vector<std::size_t> noisy;
  double loudest = 0.0;
  for (std::size_t t = 0; t < count; ++t) {
    if (shot.killed[t] || isClear(shot.onsets[t])) continue;
    const auto clear = [&](std::size_t i) { return isClear(shot.onsets[i]); };
    const double around = ofNeighbours(
        t, count, [&](std::size_t i) { return shot.onsets[i].noise; }, clear);
    const double swing = ofNeighbours(
        t, count, [&](std::size_t i) { return shot.onsets[i].swing; }, clear);
    const Onset& onset = shot.onsets[t];
    if (!onset.found && !isNoise((*shot.traces)[t])) continue;
    const double noise = onset.found ? onset.noise : strengthOf((*shot.traces)[t]);
    if (!(around > 0.0) || noise < kLoud * around || 3.0 * noise < swing) continue;
    noisy.push_back(t);
    loudest = std::max(loudest, noise / around);
  }
  if (noisy.empty()) return {};
  Finding finding =
      aboutShot(Finding::Kind::kNoisyTrace, shot, 0.8,
                Message::tr("noisy: before the first arrival of %1 there is up to %2 times the "
                            "noise of the neighbours, and it drowns the arrival")
                    .arg(traceList(noisy))
                    .arg(Message::number(loudest, 2)));
  finding.proposal = ofTraces(Proposal::Kind::kKillTraces, noisy);
  finding.traces = std::move(noisy);
  return {finding};
}

}  // namespace talvesk::doctor

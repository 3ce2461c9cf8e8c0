#include "doctor/FindingParts.h"
#include "doctor/NeighbourTimes.h"
#include "doctor/TraceChecks.h"
#include "doctor/Waveforms.h"
#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace talvesk::doctor {
namespace {

constexpr double kAlike = 0.8;        // correlation of one waveform at two geophones
constexpr double kWavePeriods = 1.5;  // of the arrival that are compared
constexpr std::size_t kReach = 3;     // neighbours on each side

/// How much a trace, from a moment of its own on, looks like its clear neighbours from their first
/// arrivals on: the median of the correlations.
double likeNeighbours(const ShotView& shot, std::size_t trace, double time, double duration) {
  const std::vector<double> own =
      waveAt((*shot.traces)[trace], time - timeOfFirstSample((*shot.traces)[trace]), duration);
  std::vector<double> correlations;
  const std::size_t first = trace > kReach ? trace - kReach : 0;
  for (std::size_t t = first; t < std::min(shot.onsets.size(), trace + kReach + 1); ++t) {
    if (t == trace || !isClear(shot.onsets[t])) continue;
    const Trace& other = (*shot.traces)[t];
    correlations.push_back(std::fabs(correlationOf(
        own, waveAt(other, shot.onsets[t].time - timeOfFirstSample(other), duration))));
  }
  return medianOf(std::move(correlations), 0.0);
}

}  // namespace

std::vector<Finding> checkMistimedTraces(const ShotView& shot) {
  std::vector<Finding> findings;
  for (std::size_t t = 0; t < shot.onsets.size(); ++t) {
    const Onset& onset = shot.onsets[t];
    if (shot.killed[t] || !isClear(onset)) continue;
    const std::optional<NeighbourTime> around = timeByNeighbours(shot, t);
    if (!around) continue;
    const double off = onset.time - around->time;
    // The ground may delay a geophone by what it delays the wave from one to the next, noise hides
    // the beginning of a swing, and one swing is easily taken for the next.
    const double allowed = std::max({around->step, shot.station.pace, onset.period}) +
                           4.0 * around->scatter + 4.0 * onset.error;
    if (std::fabs(off) <= allowed) continue;
    const double duration = kWavePeriods * onset.period;
    const double here = likeNeighbours(shot, t, onset.time, duration);
    const double there = likeNeighbours(shot, t, around->time, duration);
    if (here < kAlike || there > 0.5 * here) continue;
    Finding finding = aboutShot(
        Finding::Kind::kMistimedTrace, shot, std::min(0.95, 1.0 - 0.5 * allowed / std::fabs(off)),
        Message::tr(
            "mistimed: trace %1 has its first arrival at %2 ms, its neighbours let expect it "
            "at %3 ms, and from there on it looks like them (correlation %4)")
            .arg(t + 1)
            .arg(milliseconds(onset.time))
            .arg(milliseconds(around->time))
            .arg(Message::number(here, 2)));
    finding.traces = {t};
    finding.expected = {{shot.geophones.size() > t ? shot.geophones[t].x : 0.0, around->time}};
    finding.proposal = ofTraces(Proposal::Kind::kKillTraces, {t});
    findings.push_back(std::move(finding));
  }
  return findings;
}

}  // namespace talvesk::doctor

#include "doctor/FindingParts.h"
#include "doctor/TraceChecks.h"
#include "doctor/Waveforms.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace talvesk::doctor {
namespace {

constexpr std::size_t kBlocks = 64;  // of the sketch of a trace
constexpr double kSketch = 0.99;     // correlation of sketches worth a closer look
// Two geophones never have the same noise, and at equal distances from the shot never the same wave
// to a hundredth; two channels of one geophone do.
constexpr double kSame = 0.9999;
constexpr std::size_t kFarthest = 256;  // channels

/// The strength of a trace over time, in few numbers.
std::vector<double> sketchOf(Span<double> samples) {
  std::vector<double> sketch(kBlocks, 0.0);
  if (samples.size() < kBlocks) return {};
  for (std::size_t i = 1; i < samples.size(); ++i) {
    const double slope = samples[i] - samples[i - 1];
    sketch[i * kBlocks / samples.size()] += slope * slope;
  }
  for (double& value : sketch) value = std::sqrt(value);
  return sketch;
}

std::vector<double> slopesOf(Span<double> samples) {
  std::vector<double> slopes;
  for (std::size_t i = 1; i < samples.size(); ++i) slopes.push_back(samples[i] - samples[i - 1]);
  return slopes;
}

/// By how much the arrival of a trace is off the nearest in time of its neighbours', seconds; 0
/// where none of them has one.
double misfitOf(const ShotView& shot, std::size_t trace) {
  constexpr std::size_t kReach = 2;
  if (!shot.onsets[trace].found) return 0.0;
  const std::size_t here = shot.rank[trace];
  double least = std::numeric_limits<double>::infinity();
  for (std::size_t i = here > kReach ? here - kReach : 0;
       i < std::min(shot.order.size(), here + kReach + 1); ++i) {
    const Onset& other = shot.onsets[shot.order[i]];
    if (i == here || !isClear(other)) continue;
    least = std::min(least, std::fabs(shot.onsets[trace].time - other.time));
  }
  return std::isfinite(least) ? least : 0.0;
}

}  // namespace

std::vector<Finding> checkDoubledTraces(const ShotView& shot) {
  const TraceSet& traces = *shot.traces;
  std::vector<std::vector<double>> sketches;
  for (const Trace& trace : traces) sketches.push_back(sketchOf(trace.samples));
  std::vector<Finding> findings;
  for (std::size_t a = 0; a < traces.size(); ++a) {
    if (shot.killed[a]) continue;
    for (std::size_t b = a + 1; b < std::min(traces.size(), a + kFarthest); ++b) {
      if (shot.killed[b] || traces[a].samples.size() != traces[b].samples.size() ||
          correlationOf(sketches[a], sketches[b]) < kSketch) {
        continue;
      }
      const double alike =
          std::fabs(correlationOf(slopesOf(traces[a].samples), slopesOf(traces[b].samples)));
      if (alike < kSame) continue;
      const bool firstIsOff = misfitOf(shot, a) > misfitOf(shot, b);
      const std::size_t copy = firstIsOff ? a : b;
      Finding finding = aboutShot(
          Finding::Kind::kDoubledTrace, shot, 0.9,
          Message::tr("doubled: trace %1 is trace %2 once more (correlation %3); the arrivals "
                      "around say that it belongs to the latter")
              .arg(copy + 1)
              .arg((firstIsOff ? b : a) + 1)
              .arg(Message::number(alike, 5)));
      finding.traces = {copy};
      finding.proposal = ofTraces(Proposal::Kind::kKillTraces, {copy});
      findings.push_back(std::move(finding));
    }
  }
  return findings;
}

}  // namespace talvesk::doctor

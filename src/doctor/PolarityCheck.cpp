#include "base/RunForEach.h"
#include "doctor/FindingParts.h"
#include "doctor/NeighbourTimes.h"
#include "doctor/TraceChecks.h"
#include "doctor/Waveforms.h"
#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <string>
#include <utility>

namespace talvesk::doctor {
namespace {

constexpr std::size_t kReach = 3;      // neighbours on each side
constexpr double kAgainst = 0.5;       // correlation, over several shots
constexpr double kAgainstAlone = 0.8;  // correlation, in one record
constexpr double kPeriods = 2.25;      // of the first swing that are compared
constexpr std::size_t kSeveral = 3;    // shots

/// How a trace of a shot swings beside its neighbours.
struct Swing {
  bool known = false;
  double own = 0.0;     ///< mean correlation with the neighbours, of either sign
  double others = 0.0;  ///< median correlation of the neighbours among each other
};

/// Where the wave of a trace begins, seconds after its sample 0: at its arrival, unless noise hides
/// the first swing and it seems to begin with the second, which goes the other way. Then the
/// neighbours tell.
std::vector<double> beginnings(const ShotView& shot, double period) {
  std::vector<double> times;
  for (std::size_t t = 0; t < shot.onsets.size(); ++t) {
    const std::optional<NeighbourTime> around = timeByNeighbours(shot, t);
    const double own = shot.onsets[t].time;
    const bool off = around && std::fabs(own - around->time) > period / 4.0;
    times.push_back((off ? around->time : own) - timeOfFirstSample((*shot.traces)[t]));
  }
  return times;
}

/// The correlation of the first swings of two traces where its magnitude is greatest, one of them
/// moved by up to half a period for that: the farther, the less it counts.
double likeness(const TraceSet& traces, const std::vector<double>& begins, std::size_t a,
                std::size_t b, double period) {
  constexpr int kSteps = 16;           // per period
  constexpr double kCostOfMove = 0.5;  // in correlation, per period
  const double duration = kPeriods * period;
  const double lead = period / 4.0;
  const std::vector<double> wave = waveAt(traces[a], begins[a] - lead, duration);
  double best = 0.0;
  for (int step = -kSteps / 2; step <= kSteps / 2; ++step) {
    const double moved = step * period / kSteps;
    const double value = correlationOf(wave, waveAt(traces[b], begins[b] - lead + moved, duration));
    const double worth = std::fabs(value) - kCostOfMove * std::fabs(moved) / period;
    if (worth > std::fabs(best)) best = std::copysign(worth, value);
  }
  return best;
}

std::vector<Swing> swingsOf(const ShotView& shot) {
  const std::size_t count = shot.onsets.size();
  std::vector<Swing> swings(count);
  std::vector<double> periods;
  for (const Onset& onset : shot.onsets) {
    if (isClear(onset)) periods.push_back(onset.period);
  }
  const double period = medianOf(periods, 0.01);
  const std::vector<double> begins = beginnings(shot, period);
  // By rank along the line, the lesser first.
  std::map<std::pair<std::size_t, std::size_t>, double> likenesses;
  const auto isClearAt = [&](std::size_t rank) { return isClear(shot.onsets[shot.order[rank]]); };
  for (std::size_t a = 0; a < count; ++a) {
    for (std::size_t b = a + 1; b < std::min(count, a + 2 * kReach + 1); ++b) {
      if (!isClearAt(a) || !isClearAt(b)) continue;
      likenesses[{a, b}] = likeness(*shot.traces, begins, shot.order[a], shot.order[b], period);
    }
  }
  for (std::size_t r = 0; r < count; ++r) {
    if (shot.killed[shot.order[r]] || !isClearAt(r)) continue;
    std::vector<std::size_t> near;
    for (std::size_t n = r > kReach ? r - kReach : 0; n < std::min(count, r + kReach + 1); ++n) {
      if (n != r && isClearAt(n)) near.push_back(n);
    }
    if (near.size() < kReach) continue;
    std::vector<double> others;
    double own = 0.0;
    for (std::size_t i = 0; i < near.size(); ++i) {
      own += likenesses[std::minmax(r, near[i])] / static_cast<double>(near.size());
      for (std::size_t k = i + 1; k < near.size(); ++k) {
        others.push_back(likenesses[{near[i], near[k]}]);
      }
    }
    swings[shot.order[r]] = {true, own, medianOf(std::move(others), 0.0)};
  }
  return swings;
}

/// Traces that swing against their neighbours in most of the shots of their string, if several.
bool isWiredBackwards(const std::vector<const std::vector<Swing>*>& shots, std::size_t trace) {
  std::vector<double> own;
  std::vector<double> others;
  for (const std::vector<Swing>* shot : shots) {
    if (trace >= shot->size() || !(*shot)[trace].known) continue;
    own.push_back((*shot)[trace].own);
    others.push_back((*shot)[trace].others);
  }
  if (own.size() < kSeveral) return false;
  return medianOf(std::move(own), 0.0) < -kAgainst && medianOf(std::move(others), 0.0) > kAgainst;
}

}  // namespace

std::vector<Finding> checkPolarity(const std::vector<const ShotView*>& shots) {
  std::vector<std::vector<Swing>> swings(shots.size());
  runForEach(swings.size(), [&](std::size_t i) { swings[i] = swingsOf(*shots[i]); });
  std::map<std::size_t, std::vector<const std::vector<Swing>*>> byString;
  for (std::size_t i = 0; i < shots.size(); ++i) {
    byString[shots[i]->string].push_back(&swings[i]);
  }
  std::vector<Finding> findings;
  for (std::size_t i = 0; i < shots.size(); ++i) {
    const ShotView& shot = *shots[i];
    std::vector<std::size_t> against;
    double least = 1.0;
    for (std::size_t t = 0; t < swings[i].size(); ++t) {
      const Swing& swing = swings[i][t];
      if (!swing.known) continue;
      const bool wired = isWiredBackwards(byString[shot.string], t);
      const bool here =
          swing.own < (wired ? 0.0 : -kAgainstAlone) && (wired || swing.others > kAgainstAlone);
      if (!here) continue;
      against.push_back(t);
      least = std::min(least, std::fabs(swing.own));
    }
    if (against.empty()) continue;
    Finding finding =
        aboutShot(Finding::Kind::kReversedPolarity, shot, std::min(0.95, 0.4 + 0.6 * least),
                  Message::tr("reversed: the first swings of %1 go against those of the "
                              "neighbours, which agree with each other (correlation -%2 at least)")
                      .arg(traceList(against))
                      .arg(Message::number(least, 2)));
    finding.proposal = ofTraces(Proposal::Kind::kReverseTraces, against);
    finding.traces = std::move(against);
    findings.push_back(std::move(finding));
  }
  return findings;
}

}  // namespace talvesk::doctor

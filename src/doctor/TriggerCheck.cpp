#include "doctor/TriggerCheck.h"

#include "doctor/ClockShifts.h"
#include "doctor/FindingParts.h"
#include "doctor/Placing.h"
#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk::doctor {
namespace {

constexpr double kSure = 4.0;  // standard deviations

/// Whether most shots say that their clocks were not at zero: then no other one is to be compared
/// with.
bool allAreOff(const std::vector<ClockBounds>& bounds) {
  std::size_t known = 0;
  std::size_t off = 0;
  for (const ClockBounds& shot : bounds) {
    if (!shot.known) continue;
    ++known;
    if (shot.least > 0.0 || shot.most < 0.0) ++off;
  }
  return 2 * off > known;
}

double samplesOf(const ShotView& shot, double seconds) {
  const double interval = shot.traces->front().sampleInterval;
  return std::round(seconds / interval) * interval;
}

/// The shot's times where others stood, and what those have for the way back.
void showReciprocals(std::size_t shot, const std::vector<ClockPair>& pairs,
                     const std::vector<ClockShift>& shifts, double usual,
                     const std::vector<const ShotView*>& shots, Finding& finding) {
  finding.measured = arrivalsOver(*shots[shot], shots[shot]->geophones);
  for (const ClockPair& pair : pairs) {
    if (pair.a != shot && pair.b != shot) continue;
    const std::size_t other = pair.a == shot ? pair.b : pair.a;
    const double back = pair.a == shot ? pair.time - pair.difference : pair.time;
    finding.expected.push_back({shots[other]->source.x, back - (shifts[other].seconds - usual)});
  }
  std::sort(finding.expected.begin(), finding.expected.end(),
            [](const Point2D& a, const Point2D& b) { return a.x < b.x; });
}

}  // namespace

std::vector<Finding> checkTriggers(const std::vector<const ShotView*>& shots) {
  std::vector<Finding> findings;
  std::vector<ClockBounds> bounds;
  for (const ShotView* shot : shots) bounds.push_back(clockBounds(*shot));
  const std::vector<ClockPair> pairs = clockPairs(shots);
  const std::vector<ClockShift> shifts = clockShifts(bounds, pairs);
  std::vector<double> all;
  for (std::size_t i = 0; i < shots.size(); ++i) {
    const bool held =
        shifts[i].pairs >= 2 || shots[i]->station.side == SourceStation::Side::kInside;
    if (bounds[i].known && held) all.push_back(shifts[i].seconds);
  }
  // Near a shot the ground is slower than the nearest geophones show, by about as much everywhere.
  const double usual = allAreOff(bounds) ? 0.0 : medianOf(all, 0.0);
  for (std::size_t i = 0; i < shots.size(); ++i) {
    if (!bounds[i].known) continue;
    const ShotView& shot = *shots[i];
    const double interval = shot.traces->front().sampleInterval;
    const double shift = shifts[i].seconds - usual;
    const bool byPairs = shifts[i].pairs >= 2;
    const double sure = kSure * shifts[i].error + 2.0 * interval;
    const bool outside =
        bounds[i].least > std::max(usual, 0.0) || bounds[i].most < std::min(usual, 0.0);
    if (byPairs ? std::fabs(shift) <= sure : !outside) continue;
    Finding finding;
    finding.kind = Finding::Kind::kTriggerTime;
    finding.shot = shot.shot;
    finding.confidence = byPairs ? 1.0 - 0.5 * sure / std::fabs(shift) : 0.5;
    const Message which = shift > 0.0 ? Message::tr("late") : Message::tr("early");
    finding.text =
        byPairs ? Message::tr(
                      "the record is %1 ms %2: %3 times to the places of other shots differ by "
                      "that from the times back, give or take %4 ms")
                      .arg(milliseconds(std::fabs(shift)))
                      .arg(which)
                      .arg(shifts[i].pairs)
                      .arg(milliseconds(shifts[i].error))
                : Message::tr(
                      "the record is about %1 ms %2: the geophones nearest to the shot, %3 m "
                      "away, would put the blow between %4 and %5 ms, whatever the ground")
                      .arg(milliseconds(std::fabs(shift)))
                      .arg(which)
                      .arg(Message::number(std::fabs(shot.offset(0)), 4))
                      .arg(milliseconds(bounds[i].least))
                      .arg(milliseconds(bounds[i].most));
    showReciprocals(i, pairs, shifts, usual, shots, finding);
    finding.proposal.emplace();
    finding.proposal->kind = Proposal::Kind::kTimeShift;
    finding.proposal->seconds = samplesOf(shot, shift);
    findings.push_back(std::move(finding));
  }
  return findings;
}

}  // namespace talvesk::doctor

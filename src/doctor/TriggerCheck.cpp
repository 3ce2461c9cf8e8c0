#include "doctor/TriggerCheck.h"

#include "doctor/ClockShifts.h"
#include "doctor/CommonSpike.h"
#include "doctor/EqualDistances.h"
#include "doctor/FindingParts.h"
#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <optional>
#include <utility>

namespace talvesk::doctor {
namespace {

constexpr double kSure = 4.0;  // standard deviations
// Shots that are compared with each other: the work grows with the third power.
constexpr std::size_t kTogether = 256;

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

double periodOf(const ShotView& shot) {
  std::vector<double> periods;
  for (const Onset& onset : shot.onsets) {
    if (isClear(onset)) periods.push_back(onset.period);
  }
  return medianOf(std::move(periods), 0.0);
}

double nearestOffset(const ShotView& shot) {
  double nearest = std::numeric_limits<double>::infinity();
  for (std::size_t t = 0; t < shot.onsets.size(); ++t) {
    if (isClear(shot.onsets[t])) nearest = std::min(nearest, std::fabs(shot.offset(t)));
  }
  return nearest;
}

double samplesOf(const ShotView& shot, double seconds) {
  const double interval = shot.traces->front().sampleInterval;
  return std::round(seconds / interval) * interval;
}

/// The shifts of shots that are compared with each other, and what they say that one was usual.
struct Clocks {
  std::vector<ClockBounds> bounds;
  std::vector<ClockPair> pairs;
  std::vector<ClockShift> shifts;
  double usual = 0.0;
};

Clocks compareClocks(const std::vector<const ShotView*>& shots) {
  Clocks clocks;
  for (const ShotView* shot : shots) clocks.bounds.push_back(clockBounds(*shot));
  clocks.pairs = clockPairs(shots);
  clocks.shifts = clockShifts(clocks.bounds, clocks.pairs);
  std::vector<double> all;
  for (std::size_t i = 0; i < shots.size(); ++i) {
    const bool held =
        clocks.shifts[i].pairs >= 2 || shots[i]->station.side == SourceStation::Side::kInside;
    if (clocks.bounds[i].known && held) all.push_back(clocks.shifts[i].seconds);
  }
  // Near a shot the ground is slower than the nearest geophones show, by about as much everywhere.
  clocks.usual = allAreOff(clocks.bounds) ? 0.0 : medianOf(std::move(all), 0.0);
  return clocks;
}

/// Where others stood, the times that those have for the way back.
std::vector<Point2D> reciprocalsOf(std::size_t shot, const Clocks& clocks,
                                   const std::vector<const ShotView*>& shots) {
  std::vector<Point2D> times;
  for (const ClockPair& pair : clocks.pairs) {
    if (pair.a != shot && pair.b != shot) continue;
    const std::size_t other = pair.a == shot ? pair.b : pair.a;
    const double back = pair.a == shot ? pair.time - pair.difference : pair.time;
    times.push_back({shots[other]->source.x, back - (clocks.shifts[other].seconds - clocks.usual)});
  }
  std::sort(times.begin(), times.end(),
            [](const Point2D& a, const Point2D& b) { return a.x < b.x; });
  return times;
}

/// What is said of a shot whose record is late by a shift, seconds.
Finding ofShift(const ShotView& shot, double shift, double confidence, Message text) {
  Finding finding = aboutShot(Finding::Kind::kTriggerTime, shot, confidence, std::move(text));
  finding.proposal.emplace();
  finding.proposal->kind = Proposal::Kind::kTimeShift;
  finding.proposal->seconds = samplesOf(shot, shift);
  return finding;
}

/// How surely a shift is more than errors explain, 0.5 to 1; none when it is not. Noise may
/// hide a swing up to its top, a quarter of its period.
std::optional<double> sureness(double shift, double error, const ShotView& shot) {
  const double sure =
      std::max(kSure * error + 2.0 * shot.traces->front().sampleInterval, periodOf(shot) / 4.0);
  if (std::fabs(shift) <= sure) return std::nullopt;
  return 1.0 - 0.5 * sure / std::fabs(shift);
}

/// By times there and back.
std::optional<Finding> byOthers(std::size_t i, const Clocks& clocks, const ShotView& shot) {
  const ClockShift& own = clocks.shifts[i];
  const double shift = own.seconds - clocks.usual;
  const std::optional<double> confidence = sureness(shift, own.error, shot);
  if (!confidence) return std::nullopt;
  return ofShift(shot, shift, *confidence, lateByOthers(shift, own.error, own.pairs));
}

/// By times at equal distances.
std::optional<Finding> byDistances(std::size_t i, const Clocks& clocks,
                                   const std::vector<const ShotView*>& shots) {
  std::vector<double> late;
  for (const ClockShift& other : clocks.shifts) {
    late.push_back(other.pairs >= 2 ? other.seconds - clocks.usual : 0.0);
  }
  const std::optional<ClockShift> own = shiftAtEqualDistances(i, shots, late);
  if (!own) return std::nullopt;
  const std::optional<double> confidence = sureness(own->seconds, own->error, *shots[i]);
  if (!confidence) return std::nullopt;
  return ofShift(*shots[i], own->seconds, std::min(0.8, *confidence),
                 Message::tr("the record is about %1 ms %2: its times differ by that from those of "
                             "%3 other shots at equal distances, give or take %4 ms")
                     .arg(milliseconds(std::fabs(own->seconds)))
                     .arg(lateOrEarly(own->seconds))
                     .arg(own->pairs)
                     .arg(milliseconds(own->error)));
}

/// By a spike on all channels, where the arrivals leave room for the blow.
std::optional<Finding> byPulse(const ClockBounds& bounds, const ShotView& shot) {
  const std::optional<std::size_t> spike = commonSpike(*shot.traces);
  if (!spike) return std::nullopt;
  const Trace& trace = shot.traces->front();
  const double pulse =
      timeOfFirstSample(trace) + static_cast<double>(*spike) * trace.sampleInterval;
  if (pulse < bounds.least || pulse > bounds.most ||
      std::fabs(pulse) <= 2.0 * trace.sampleInterval) {
    return std::nullopt;
  }
  return ofShift(shot, pulse, 0.7,
                 Message::tr("the record is %1 ms %2: all channels have a spike at %3 ms at once, "
                             "before anything can have arrived")
                     .arg(milliseconds(std::fabs(pulse)))
                     .arg(lateOrEarly(pulse))
                     .arg(milliseconds(pulse)));
}

/// By what no ground explains.
std::optional<Finding> byNearest(std::size_t i, const Clocks& clocks, const ShotView& shot) {
  const ClockBounds& bounds = clocks.bounds[i];
  if (bounds.least <= std::max(clocks.usual, 0.0) && bounds.most >= std::min(clocks.usual, 0.0)) {
    return std::nullopt;
  }
  const double shift = clocks.shifts[i].seconds - clocks.usual;
  return ofShift(shot, shift, 0.5,
                 Message::tr("the record is about %1 ms %2: the geophones nearest to the shot, %3 "
                             "away, would put the blow between %4 and %5 ms, whatever the ground")
                     .arg(milliseconds(std::fabs(shift)))
                     .arg(lateOrEarly(shift))
                     .arg(Message::length(nearestOffset(shot), 5))
                     .arg(milliseconds(bounds.least))
                     .arg(milliseconds(bounds.most)));
}

void checkBlock(const std::vector<const ShotView*>& shots, std::vector<Finding>& findings) {
  const Clocks clocks = compareClocks(shots);
  for (std::size_t i = 0; i < shots.size(); ++i) {
    if (!clocks.bounds[i].known) continue;
    std::optional<Finding> finding;
    if (clocks.shifts[i].pairs >= 2) {
      finding = byOthers(i, clocks, *shots[i]);
    } else {
      finding = byPulse(clocks.bounds[i], *shots[i]);
      if (!finding) finding = byDistances(i, clocks, shots);
      if (!finding) finding = byNearest(i, clocks, *shots[i]);
    }
    if (!finding) continue;
    finding->expected = reciprocalsOf(i, clocks, shots);
    findings.push_back(std::move(*finding));
  }
}

}  // namespace

std::vector<Finding> checkTriggers(const std::vector<const ShotView*>& shots) {
  std::vector<Finding> findings;
  for (std::size_t first = 0; first < shots.size(); first += kTogether) {
    const auto begin = shots.begin() + static_cast<std::ptrdiff_t>(first);
    const std::size_t count = std::min(kTogether, shots.size() - first);
    checkBlock({begin, begin + static_cast<std::ptrdiff_t>(count)}, findings);
  }
  return findings;
}

}  // namespace talvesk::doctor

#include "doctor/FindingParts.h"
#include "doctor/GeometryCheck.h"
#include "doctor/Placing.h"
#include "doctor/StationReading.h"
#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>

namespace talvesk::doctor {
namespace {

using Kind = Finding::Kind;
using Side = SourceStation::Side;

/// Shots whose arrivals agree, and disagree, with where they are said to be.
struct Tally {
  std::size_t good = 0;
  std::size_t bad = 0;

  void add(std::optional<bool> agreement) {
    if (agreement) ++(*agreement ? good : bad);
  }
};

Tally tallyOf(const Shots& shots, bool reversedOrder) {
  Tally tally;
  for (const ShotView* shot : shots) {
    tally.add(
        agrees(*shot, reversedOrder ? reversed(shot->geophones) : shot->geophones, shot->source.x));
  }
  return tally;
}

/// Shots that are said to be at one place while their least times are not.
bool areHeaped(const Shots& shots) {
  double least = 1e9;
  double most = -1e9;
  for (const ShotView* shot : shots) {
    if (shot->source.x != shots.front()->source.x) return false;
    if (shot->station.side == Side::kInside) {
      least = std::min(least, shot->station.station);
      most = std::max(most, shot->station.station);
    }
  }
  return shots.size() > 1 && most - least > 2.0 * kStationTolerance;
}

/// Checks the shots of geophones that have places of their own.
class LaidCheck {
 public:
  LaidCheck(Shots shots, std::vector<Finding>& findings)
      : mShots(std::move(shots)), mFindings(findings) {}

  void run() {
    if (mShots.empty()) return;
    if (areHeaped(mShots)) return placeHeapedShots();
    for (auto& [string, shots] : byString(mShots)) {
      const Tally now = tallyOf(shots, false);
      const Tally turned = tallyOf(shots, true);
      if (now.bad > 1 && turned.good > now.good && 4 * turned.bad <= turned.good) {
        turnString(shots, turned);
      } else {
        mLeft.insert(mLeft.end(), shots.begin(), shots.end());
      }
    }
    // At the ends any scale will do.
    const Tally among = tallyOf(insiders(mLeft), false);
    if (among.bad > among.good && findStationNumbers(mLeft, mFindings)) return;
    const Tally tally = tallyOf(mLeft, false);
    for (const ShotView* shot : mLeft) judge(*shot, tally);
  }

 private:
  Shots mShots;
  Shots mLeft;  ///< of strings whose order is right
  std::vector<Finding>& mFindings;

  void turnString(const Shots& shots, const Tally& turned) {
    const ShotView& shot = *shots.front();
    Finding finding = aboutShot(
        Kind::kReversedOrder, shot,
        0.5 + 0.5 * static_cast<double>(turned.good) /
                  static_cast<double>(turned.good + turned.bad + 1),
        Message::tr("the channels run against the geophones: the least times of %1 of %2 shots are "
                    "beside the shot only when the string is read from its last geophone to its "
                    "first")
            .arg(turned.good)
            .arg(turned.good + turned.bad));
    finding.proposal = moveGeophones(reversed(shot.geophones));
    finding.expected = veeAround(shot, shot.geophones, shot.source.x);
    mFindings.push_back(std::move(finding));
  }

  /// All shots at one place: the names of their files tell another, or the least time does.
  void placeHeapedShots() {
    const Shots inside = insiders(mShots);
    const double spacing = spacingOf(mShots.front()->geophones);
    const std::optional<Reading> reading =
        bestReading(mShots, placesByArrivals(inside), kStationTolerance * spacing);
    const bool named = reading && reading->byName && std::fabs(reading->line.slope - 1.0) < 0.1;
    for (std::size_t i = 0; i < mShots.size(); ++i) {
      const ShotView& shot = *mShots[i];
      const bool isInside = shot.station.side == Side::kInside;
      const double found =
          isInside ? roundest(placeOf(shot.geophones, shot.station.station), 0.5 * spacing) : 0.0;
      const double x = named ? reading->places[i] : found;
      if (x == shot.source.x && (named || isInside)) continue;
      Finding finding = aboutShot(
          Kind::kRepeatedPositions, shot, named ? confidenceOf(reading->line) : 0.7,
          named ? Message::tr("all shots are said to be at %1; the name of the file says %2, and "
                              "the least times of the survey follow the names")
                      .arg(Message::length(shot.source.x, 5))
                      .arg(Message::length(x, 5))
          : isInside ? Message::tr("all shots are said to be at %1; the times of this one are "
                                   "least at %2")
                           .arg(Message::length(shot.source.x, 5))
                           .arg(Message::length(found, 5))
                     : Message::tr("all shots are said to be at %1; this one was at an end of the "
                                   "geophones or beyond")
                           .arg(Message::length(shot.source.x, 5)));
      if (named || isInside) {
        finding.proposal = moveShot({x, shot.source.z});
        finding.expected = veeAround(shot, shot.geophones, x);
      }
      mFindings.push_back(std::move(finding));
    }
  }

  /// One shot that disagrees, by itself.
  void judge(const ShotView& shot, const Tally& tally) {
    if (agrees(shot, shot.geophones, shot.source.x).value_or(true)) return;
    // Others that agree say that the geophones are where they are said to be.
    const double others = static_cast<double>(tally.good) / static_cast<double>(tally.good + 1);
    const std::vector<Point2D> turned = reversed(shot.geophones);
    if (tally.good > 0 && agrees(shot, turned, shot.source.x).value_or(false)) {
      Finding finding = aboutShot(
          Kind::kReversedOrder, shot, 0.5 + 0.4 * others,
          Message::tr(
              "the channels of this record run against the geophones: read from the last to "
              "the first the times are least beside the shot at %1")
              .arg(Message::length(shot.source.x, 5)));
      finding.proposal.emplace();
      finding.proposal->kind = Proposal::Kind::kReverseOrder;
      finding.measured = arrivalsOver(shot, shot.geophones);
      finding.expected = arrivalsOver(shot, turned);
      mFindings.push_back(std::move(finding));
      return;
    }
    if (shot.station.side != Side::kInside) {
      mFindings.push_back(aboutShot(
          Kind::kShotPosition, shot, 0.3 + 0.4 * others,
          Message::tr("the shot is said to be at %1, but times grow from %2 on all the way "
                      "through the geophones: it was at that end of them or beyond")
              .arg(Message::length(shot.source.x, 5))
              .arg(Message::length(
                  placeOf(shot.geophones, shot.station.side == Side::kBefore ? shot.station.first
                                                                             : shot.station.last),
                  5))));
      return;
    }
    moveToLeastTime(shot, tally, others);
  }

  void moveToLeastTime(const ShotView& shot, const Tally& tally, double others) {
    const double spacing = spacingOf(shot.geophones);
    const double found = placeOf(shot.geophones, shot.station.station);
    double x = roundest(found, 0.5 * spacing);
    for (const NameNumber& number : numbersIn(shot.name)) {
      if (number.metres && std::fabs(number.value - found) <= kStationTolerance * spacing) {
        x = number.value;
      }
    }
    Message text = Message::tr(
                       "the shot is said to be at %1, but times are least at %2, beside "
                       "geophone %3, and grow on both sides of it")
                       .arg(Message::length(shot.source.x, 5))
                       .arg(Message::length(found, 5))
                       .arg(static_cast<std::size_t>(std::lround(shot.station.station)) + 1);
    const double step =
        (shot.source.x - shot.geophones.front().x) / std::max(shot.station.station, 1.0);
    if (tally.good == 0 && step > 0.05 * spacing) {
      text = Message::tr(
                 "%1; or the geophones stand %2 apart and not %3, which no other shot "
                 "can decide")
                 .arg(std::move(text))
                 .arg(Message::length(roundest(step, 0.05 * step), 5))
                 .arg(Message::length(spacing, 5));
    }
    Finding finding = aboutShot(Kind::kShotPosition, shot, 0.4 + 0.5 * others, std::move(text));
    finding.expected = veeAround(shot, shot.geophones, shot.source.x);
    finding.proposal = moveShot({x, shot.source.z});
    mFindings.push_back(std::move(finding));
  }
};

}  // namespace

void checkLaidShots(const std::vector<const ShotView*>& shots, std::vector<Finding>& findings) {
  LaidCheck(shots, findings).run();
}

}  // namespace talvesk::doctor

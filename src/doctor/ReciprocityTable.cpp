#include "doctor/ReciprocityTable.h"

#include "doctor/ClockShifts.h"
#include "doctor/FindingParts.h"
#include "model/SurveyFacts.h"
#include "numerics/Medians.h"
#include "processing/joint/Reciprocity.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <numeric>
#include <utility>

namespace talvesk::doctor {
namespace {

constexpr double kStandsOut = 4.0;  // standard deviations
constexpr double kException = 2.0;  // usual shifts
constexpr double kNormal = 1.4826;  // median of magnitudes to standard deviation
constexpr int kRounds = 3;
constexpr double kTold = 1e-5;             // seconds: more digits than picks have
constexpr double kFinestPick = 1e-5;       // seconds: what two picks may always differ by
constexpr std::size_t kTogether = 256;     // shots: the work grows with the third power
constexpr std::ptrdiff_t kAlongCurve = 3;  // picks beyond the last one that give its slope
constexpr double kLongestInterval = 1e3;   // seconds; more is a trace that does not tell

struct Pick {
  double x = 0.0;  ///< metres
  double time = 0.0;
  double error = 0.0;
  std::size_t trace = 0;
};

/// The picks of a shot along the line.
struct Curve {
  std::size_t shot = 0;
  double source = 0.0;
  std::vector<Pick> picks;  ///< ascending x
};

/// What a curve has at the place of another shot.
struct End {
  Pick nearest;
  double beyond = 0.0;      ///< seconds to add: the place lies past the last pick
  bool acrossShot = false;  ///< the shot stands there itself, where its curve turns round
};

std::vector<Curve> curvesOf(const TomoDocument& document) {
  std::vector<Curve> curves;
  for (std::size_t i = 0; i < document.ttArray.size(); ++i) {
    const TravelTime& record = document.ttArray[i];
    const std::vector<Point2D> receivers = document.receiversOf(record);
    Curve curve;
    curve.shot = i;
    curve.source = record.shotPos2d.x;
    const std::size_t count = std::min(receivers.size(), record.ttMisurati.size());
    for (std::size_t t = 0; t < count; ++t) {
      const double time = record.ttMisurati[t];
      if (!hasPick(time) || !std::isfinite(time) || !std::isfinite(receivers[t].x)) continue;
      curve.picks.push_back({receivers[t].x, time, record.errorOf(t), t});
    }
    if (curve.picks.empty() || !std::isfinite(curve.source)) continue;
    std::stable_sort(curve.picks.begin(), curve.picks.end(),
                     [](const Pick& a, const Pick& b) { return a.x < b.x; });
    curves.push_back(std::move(curve));
  }
  return curves;
}

/// How much later than at its last pick the curve is at x, which lies past it: along the picks
/// before, as far as they are on that side of the shot. \param step from the last pick inward
double pastTheEnd(const Curve& curve, std::size_t last, std::ptrdiff_t step, double x) {
  const Pick& end = curve.picks[last];
  const Pick* inner = nullptr;
  auto at = static_cast<std::ptrdiff_t>(last);
  for (std::ptrdiff_t i = 0; i < kAlongCurve; ++i) {
    at += step;
    if (at < 0 || at >= static_cast<std::ptrdiff_t>(curve.picks.size())) break;
    const Pick& next = curve.picks[static_cast<std::size_t>(at)];
    if ((next.x - curve.source) * (end.x - curve.source) < 0.0) break;
    if (next.x != end.x) inner = &next;
  }
  if (inner == nullptr) return 0.0;
  return (end.time - inner->time) / (end.x - inner->x) * (x - end.x);
}

End endAt(const Curve& curve, double x) {
  const auto right =
      std::lower_bound(curve.picks.begin(), curve.picks.end(), x,
                       [](const Pick& pick, double value) { return pick.x < value; });
  const bool first = right == curve.picks.begin();
  const bool past = right == curve.picks.end();
  End end;
  double from = x;  // the curve is read between here and `to`
  double to = x;
  if (past || (first && right->x > x)) {
    end.nearest = past ? curve.picks.back() : curve.picks.front();
    end.beyond =
        past ? pastTheEnd(curve, curve.picks.size() - 1, -1, x) : pastTheEnd(curve, 0, 1, x);
    (past ? from : to) = end.nearest.x;
  } else if (right->x == x) {
    end.nearest = *right;
  } else {
    from = (right - 1)->x;
    to = right->x;
    end.nearest = x - from <= to - x ? *(right - 1) : *right;
  }
  end.acrossShot = x == curve.source || (from < curve.source && curve.source < to);
  return end;
}

std::vector<ReciprocalTimes> pairsOf(const std::vector<Curve>& curves) {
  std::vector<ArrivalCurve> arrivals;
  for (const Curve& curve : curves) {
    ArrivalCurve& arrival = arrivals.emplace_back();
    arrival.source = curve.source;
    for (const Pick& pick : curve.picks) arrival.points.push_back({pick.x, pick.time});
  }
  std::vector<ReciprocalTimes> pairs;
  for (const ReciprocalPair& both : Reciprocity(arrivals).pairs()) {
    const Curve& first = curves[both.first];
    const Curve& second = curves[both.second];
    const End there = endAt(first, second.source);
    const End back = endAt(second, first.source);
    if (there.acrossShot || back.acrossShot) continue;
    ReciprocalTimes pair;
    pair.first = first.shot;
    pair.second = second.shot;
    pair.there = both.there + there.beyond;
    pair.back = both.back + back.beyond;
    if (there.nearest.error > 0.0 && back.nearest.error > 0.0) {
      pair.error = std::hypot(there.nearest.error, back.nearest.error);
    }
    pair.thereTrace = there.nearest.trace;
    pair.backTrace = back.nearest.trace;
    pairs.push_back(pair);
  }
  return pairs;
}

/// Seconds; 0 for a shot of which only picks are known.
double sampleInterval(const TomoDocument& document, std::size_t shot) {
  const TraceSet* traces = document.tracesOf(document.ttArray[shot]);
  if (traces == nullptr || traces->empty()) return 0.0;
  const double interval = traces->front().sampleInterval;
  return interval > 0.0 && interval < kLongestInterval ? interval : 0.0;
}

/// Shots that pairs hold together.
struct Group {
  std::vector<std::size_t> shots;
  std::vector<ReciprocalTimes> pairs;  ///< of two shots of the group
};

/// The shots that lead to each other by pairs, those along the line together where they are many.
std::vector<Group> groupsOf(const ReciprocityTable& table) {
  std::vector<std::size_t> leader(table.shots.size());
  std::iota(leader.begin(), leader.end(), std::size_t{0});
  const auto find = [&](std::size_t shot) {
    while (leader[shot] != shot) shot = leader[shot] = leader[leader[shot]];
    return shot;
  };
  for (const ReciprocalTimes& pair : table.pairs) leader[find(pair.first)] = find(pair.second);
  std::map<std::size_t, std::vector<std::size_t>> held;
  for (std::size_t i = 0; i < leader.size(); ++i) {
    if (table.shots[i].pairs > 0) held[find(i)].push_back(i);
  }
  constexpr std::size_t kNowhere = static_cast<std::size_t>(-1);
  std::vector<std::size_t> groupOf(table.shots.size(), kNowhere);
  std::vector<Group> groups;
  for (auto& [first, shots] : held) {
    std::stable_sort(shots.begin(), shots.end(), [&](std::size_t a, std::size_t b) {
      return table.shots[a].x < table.shots[b].x;
    });
    for (std::size_t i = 0; i < shots.size(); ++i) {
      if (i % kTogether == 0) groups.emplace_back();
      groups.back().shots.push_back(shots[i]);
      groupOf[shots[i]] = groups.size() - 1;
    }
  }
  for (const ReciprocalTimes& pair : table.pairs) {
    const std::size_t group = groupOf[pair.first];
    if (group == groupOf[pair.second]) groups[group].pairs.push_back(pair);
  }
  return groups;
}

/// The shifts that go best with the pairs of a group; `scatter`, seconds, is what picks that do not
/// tell their errors may be off by, and others at least.
std::vector<ClockShift> adjust(const Group& group, double scatter,
                               const std::map<std::size_t, std::size_t>& place) {
  std::vector<ClockPair> pairs;
  for (const ReciprocalTimes& pair : group.pairs) {
    ClockPair& clocks = pairs.emplace_back();
    clocks.a = place.at(pair.first);
    clocks.b = place.at(pair.second);
    clocks.difference = pair.difference();
    clocks.error = std::max(pair.error, scatter);
  }
  return clockShifts(std::vector<ClockBounds>(group.shots.size()), pairs);
}

/// What differences scatter by, from what is left of them. As many as there are shifts can be
/// fitted to the last bit and tell nothing: the median of the others does (R. Koenker, 2005,
/// Quantile Regression).
double scatterOf(std::vector<double> left, std::size_t shifts) {
  for (double& value : left) value = std::fabs(value);
  std::sort(left.begin(), left.end());
  left.erase(left.begin(), left.begin() + static_cast<std::ptrdiff_t>(shifts));
  return std::max(kNormal * medianOf(std::move(left), 0.0), kFinestPick);
}

double rmsOf(const std::vector<ReciprocalTimes>& pairs) {
  double squares = 0.0;
  for (const ReciprocalTimes& pair : pairs) squares += pair.difference() * pair.difference();
  return pairs.empty() ? 0.0 : std::sqrt(squares / static_cast<double>(pairs.size()));
}

/// The shifts of a group beside the median of them; none where each pair is needed to know one.
std::vector<ClockShift> shiftsOf(const Group& group) {
  const std::size_t known = group.shots.size() - 1;
  if (group.pairs.size() <= known) return {};
  std::map<std::size_t, std::size_t> place;
  for (std::size_t i = 0; i < group.shots.size(); ++i) place[group.shots[i]] = i;
  // From everything being possible down to what the pairs bear out: what is dropped at first as
  // contradicting the rest never comes back.
  double scatter = std::max(rmsOf(group.pairs), kFinestPick);
  std::vector<ClockShift> shifts;
  for (int round = 0; round < kRounds; ++round) {
    shifts = adjust(group, scatter, place);
    std::vector<double> left;
    for (const ReciprocalTimes& pair : group.pairs) {
      const double fitted = shifts[place[pair.first]].seconds - shifts[place[pair.second]].seconds;
      left.push_back(pair.difference() - fitted);
    }
    scatter = std::min(scatter, scatterOf(std::move(left), known));
  }
  shifts = adjust(group, scatter, place);
  std::vector<double> all;
  for (const ClockShift& shift : shifts) all.push_back(shift.seconds);
  const double usual = medianOf(all, 0.0);
  for (ClockShift& shift : shifts) shift.seconds -= usual;
  return shifts;
}

/// How far the shifts of a group lie from its median as a rule, seconds: where every record is a
/// little late or early, none is an exception for it.
double usualShift(const std::vector<ClockShift>& shifts) {
  std::vector<double> sizes;
  for (const ClockShift& shift : shifts) sizes.push_back(std::fabs(shift.seconds));
  return kNormal * medianOf(std::move(sizes), 0.0);
}

/// \param usual as of usualShift()
void judge(const TomoDocument& document, std::size_t shot, const ClockShift& shift, double usual,
           ShotReciprocity& own) {
  own.shift = shift.seconds;
  own.shiftError = shift.error;
  own.agreeing = shift.pairs;
  const double interval = sampleInterval(document, shot);
  const double least = std::max({kStandsOut * shift.error, kException * usual, interval});
  const bool most = 2 * shift.pairs > own.pairs && shift.pairs >= kFewestPairs;
  if (!most || std::fabs(shift.seconds) <= least) return;
  own.mend = interval > 0.0 ? std::round(shift.seconds / interval) * interval : shift.seconds;
}

void sumUp(ReciprocityTable& table) {
  for (const ReciprocalTimes& pair : table.pairs) {
    for (const std::size_t shot : {pair.first, pair.second}) {
      table.shots[shot].rms += pair.difference() * pair.difference();
      ++table.shots[shot].pairs;
    }
  }
  for (ShotReciprocity& shot : table.shots) {
    if (shot.pairs > 0) shot.rms = std::sqrt(shot.rms / static_cast<double>(shot.pairs));
  }
  table.rms = rmsOf(table.pairs);
}

}  // namespace

std::vector<std::size_t> ReciprocityTable::worstPairs(std::size_t most) const {
  std::vector<std::size_t> order(pairs.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::stable_sort(order.begin(), order.end(), [this](std::size_t a, std::size_t b) {
    return std::fabs(pairs[a].difference()) > std::fabs(pairs[b].difference());
  });
  order.resize(std::min(order.size(), most));
  return order;
}

ReciprocityTable reciprocityOf(const TomoDocument& document) {
  ReciprocityTable table;
  table.shots.resize(document.ttArray.size());
  for (std::size_t i = 0; i < table.shots.size(); ++i) {
    table.shots[i].x = document.ttArray[i].shotPos2d.x;
  }
  table.pairs = pairsOf(curvesOf(document));
  sumUp(table);
  for (const Group& group : groupsOf(table)) {
    const std::vector<ClockShift> shifts = shiftsOf(group);
    const double usual = usualShift(shifts);
    for (std::size_t i = 0; i < shifts.size(); ++i) {
      judge(document, group.shots[i], shifts[i], usual, table.shots[group.shots[i]]);
    }
  }
  return table;
}

std::optional<Finding> lateShot(const TomoDocument& document, const ReciprocityTable& table,
                                std::size_t shot) {
  const ShotReciprocity& own = table.shots[shot];
  if (!own.standsOut() || sampleInterval(document, shot) <= 0.0) return std::nullopt;
  Finding finding;
  finding.kind = Finding::Kind::kTriggerTime;
  finding.shot = shot;
  finding.text = describe(own);
  finding.confidence = 1.0 - 0.5 * kStandsOut * own.shiftError / std::fabs(own.shift);
  finding.proposal.emplace();
  finding.proposal->kind = Proposal::Kind::kTimeShift;
  finding.proposal->seconds = *own.mend;
  return finding;
}

Message describe(const ShotReciprocity& shot) {
  const auto rounded = [](double seconds) { return std::round(seconds / kTold) * kTold; };
  return lateByOthers(rounded(shot.shift), rounded(shot.shiftError), shot.agreeing);
}

Message whyNoPairs(const TomoDocument& document) {
  const auto picked = std::count_if(document.ttArray.begin(), document.ttArray.end(),
                                    [](const TravelTime& record) { return hasPicks(record); });
  if (picked == 0) return Message::tr("There are no picks yet.");
  if (picked == 1) return Message::tr("Only one shot has picks.");
  return Message::tr(
      "No two shots have picks within half a geophone spacing of each other's place.");
}

}  // namespace talvesk::doctor

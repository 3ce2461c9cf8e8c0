#include "model/Mending.h"

#include "model/MendedTraces.h"
#include "model/Recordings.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace talvesk {
namespace {

using Notes = std::vector<Message>*;

void tell(Notes notes, Message note) {
  if (notes != nullptr) notes->push_back(std::move(note));
}

/// The picks of a shot as its record has them. All lists are per channel.
struct PicksOfRecord {
  std::vector<RecordedPick> picks;  ///< those there are
  std::vector<double> unpicked;     ///< what stands where there is none: never picked, or removed
  std::vector<bool> active;         ///< whether its pick is one of the survey
};

std::size_t recordIndex(const TomoDocument& document, std::size_t set) {
  const auto found =
      std::find_if(document.ttArray.begin(), document.ttArray.end(), [set](const TravelTime& r) {
        return r.traceSetID >= 0 && static_cast<std::size_t>(r.traceSetID) == set;
      });
  return static_cast<std::size_t>(found - document.ttArray.begin());
}

const TravelTime* recordOf(const TomoDocument& document, std::size_t set) {
  const std::size_t index = recordIndex(document, set);
  return index < document.ttArray.size() ? &document.ttArray[index] : nullptr;
}

bool isWithin(double time, const Trace& trace) {
  const double end = static_cast<double>(trace.samples.size()) * trace.sampleInterval;
  return time > 0.0 && (trace.samples.empty() || !(time > end));
}

std::vector<const RecordedPick*> byChannel(const std::vector<RecordedPick>& picks,
                                           std::size_t channels) {
  std::vector<const RecordedPick*> list(channels, nullptr);
  for (const RecordedPick& pick : picks) {
    if (pick.channel < channels) list[pick.channel] = &pick;
  }
  return list;
}

/// By the mends that the set has. The pick that a shot has counts before the one that is kept.
PicksOfRecord picksOfRecord(const TomoDocument& document, std::size_t set) {
  const TraceSet& traces = document.recordings->traceSets[set];
  const ShotMends& mends = mendsOf(document.recordings->mends, set);
  const std::vector<const RecordedPick*> kept = byChannel(mends.picks, traces.size());
  PicksOfRecord result;
  result.unpicked.assign(traces.size(), kUnpicked);
  result.active.assign(traces.size(), false);
  const TravelTime* record = recordOf(document, set);
  for (std::size_t channel = 0; channel < traces.size(); ++channel) {
    const std::size_t j = channelAt(mends, channel, traces.size());  // its own inverse
    const bool hasTime = record != nullptr && j < record->ttMisurati.size();
    const double now = hasTime ? record->ttMisurati[j] : kUnpicked;
    const double shift = wholeSamples(mends.timeShift, traces[j]);
    const RecordedPick* memory = kept[channel];
    const bool hasPlace =
        memory != nullptr && takesPart(mends, j) && isWithin(memory->time - shift, traces[j]);
    if (hasPick(now)) {
      const bool same = hasPlace && memory->time - shift == now;
      result.picks.push_back({static_cast<std::uint32_t>(channel),
                              same ? memory->time : now + shift, record->waits(j),
                              record->errorOf(j)});
      result.active[channel] = true;
    } else {
      result.unpicked[channel] = now;
      if (memory != nullptr && !hasPlace) result.picks.push_back(*memory);
    }
  }
  return result;
}

struct Moved {
  std::size_t aside = 0;  ///< picks that have no place any more
  std::size_t back = 0;   ///< picks that have one again
};

/// Gives the picks their places among mended traces.
Moved placePicks(const PicksOfRecord& recorded, const ShotMends& mends, const TraceSet& traces,
                 TravelTime& record) {
  const std::vector<const RecordedPick*> picks = byChannel(recorded.picks, traces.size());
  std::vector<double> times = record.ttMisurati;
  if (times.size() < traces.size()) times.resize(traces.size(), kUnpicked);
  std::vector<double> errors(traces.size(), 0.0);
  Moved moved;
  for (std::size_t j = 0; j < traces.size(); ++j) {
    const std::size_t channel = channelAt(mends, j, traces.size());
    const RecordedPick* pick = picks[channel];
    bool active = false;
    times[j] = recorded.unpicked[channel];
    if (pick != nullptr) {
      const double time = pick->time - wholeSamples(mends.timeShift, traces[j]);
      active = takesPart(mends, j) && isWithin(time, traces[j]);
      times[j] = active ? time : takesPart(mends, j) ? kNoTime : kUnpicked;
    }
    record.setWaiting(j, active && pick->waits);
    if (active) errors[j] = pick->error;
    if (recorded.active[channel] && !active) ++moved.aside;
    if (!recorded.active[channel] && active) ++moved.back;
  }
  if (record.ttMisurati != times) record.ttMisurati = std::move(times);
  for (std::size_t j = 0; j < errors.size(); ++j) record.setError(j, errors[j]);
  return moved;
}

/// What did not change stays the same in memory, with its filtered copy. \return copies forgotten
std::size_t takeTraces(TraceSet made, TraceSet& traces) {
  std::size_t forgotten = 0;
  for (std::size_t j = 0; j < traces.size(); ++j) {
    Trace& old = traces[j];
    if (sameSamples(made[j], old)) {
      made[j].samples = old.samples;
      made[j].samplesDX = old.samplesDX;
      made[j].samplesSX = old.samplesSX;
      made[j].filtered = old.filtered;
    } else if (!old.filtered.empty()) {
      ++forgotten;
    }
  }
  traces = std::move(made);
  return forgotten;
}

void keepMends(Recordings& recordings, std::size_t set, ShotMends mends) {
  if (recordings.mends.size() <= set) recordings.mends.resize(set + 1);
  if (recordings.originals.size() <= set) recordings.originals.resize(set + 1);
  if (recordings.originals[set].empty()) {
    recordings.originals[set] = recordings.traceSets[set];
    for (Trace& trace : recordings.originals[set]) trace.filtered = {};
  }
  recordings.mends[set] = std::move(mends);
}

void change(std::size_t set, ShotMends mends, TomoDocument& document, Notes notes) {
  PicksOfRecord recorded = picksOfRecord(document, set);
  Recordings& recordings = document.recordings.edit();
  mends.picks = recorded.picks;
  keepMends(recordings, set, std::move(mends));
  const std::size_t forgotten =
      takeTraces(mendedTraces(recordings, set), recordings.traceSets[set]);
  const std::size_t index = recordIndex(document, set);
  if (index < document.ttArray.size()) {
    const Moved moved = placePicks(recorded, recordings.mends[set], recordings.traceSets[set],
                                   document.ttArray.edit()[index]);
    if (moved.aside > 0) {
      tell(notes, Message::tr("shot %1: picks that have no place any more and are set aside: %2")
                      .arg(set + 1)
                      .arg(moved.aside));
    }
    if (moved.back > 0) {
      tell(notes, Message::tr("shot %1: picks that were set aside and are back: %2")
                      .arg(set + 1)
                      .arg(moved.back));
    }
  }
  if (forgotten > 0) {
    tell(notes, Message::tr("shot %1: filtered copies of traces that have changed are forgotten: "
                            "%2; filter again if you need them")
                    .arg(set + 1)
                    .arg(forgotten));
  }
  if (recordings.mends[set].any()) return;
  recordings.mends[set] = {};
  recordings.originals[set] = {};
  dropEmptyEnds(recordings);
}

bool isStackedWith(const ShotMends& mends, std::size_t set) {
  return std::find(mends.stackedWith.begin(), mends.stackedWith.end(),
                   static_cast<std::int32_t>(set)) != mends.stackedWith.end();
}

void remakeStacksOf(std::size_t set, TomoDocument& document, Notes notes) {
  for (std::size_t other = 0; other < document.recordings->mends.size(); ++other) {
    const ShotMends mends = document.recordings->mends[other];
    if (isStackedWith(mends, set)) change(other, mends, document, notes);
  }
}

bool samePlace(const Point2D& a, const Point2D& b) {
  constexpr double kSame = 1e-3;  // nobody surveys finer, metres
  return std::fabs(a.x - b.x) <= kSame && std::fabs(a.z - b.z) <= kSame;
}

void takeWholeSamples(std::size_t set, const TraceSet& recorded, ShotMends& mends, Notes notes) {
  const double wanted = mends.timeShift;
  mends.timeShift = 0.0;
  for (const Trace& trace : recorded) {
    mends.timeShift = wholeSamples(wanted, trace);
    if (mends.timeShift != 0.0) break;
  }
  constexpr double kSame = 1e-9;  // seconds
  if (std::fabs(mends.timeShift - wanted) <= kSame) return;
  tell(notes, Message::tr("shot %1: its shift is taken as %2 ms, whole samples")
                  .arg(set + 1)
                  .arg(1e3 * mends.timeShift));
}

Status checkNewPartners(const TomoDocument& document, std::size_t set, const ShotMends& mends) {
  const ShotMends& before = mendsOf(document.recordings->mends, set);
  for (const std::int32_t other : mends.stackedWith) {
    const auto partner = static_cast<std::size_t>(other);
    if (isStackedWith(before, partner) || canBeStacked(document, set, partner)) continue;
    return Status::failure(
        Message::tr("shot %1 cannot be stacked with shot %2: they have other places, or geophones")
            .arg(partner + 1)
            .arg(set + 1));
  }
  return {};
}

}  // namespace

const ShotMends& mendsOf(const Recordings& recordings, std::size_t set) {
  return mendsOf(recordings.mends, set);
}

const ShotMends& mendsOfRecord(const TomoDocument& document, std::int32_t record) {
  static const ShotMends none;
  if (record < 0 || static_cast<std::size_t>(record) >= document.ttArray.size()) return none;
  const std::int32_t set = document.ttArray[static_cast<std::size_t>(record)].traceSetID;
  return set < 0 ? none : mendsOf(*document.recordings, static_cast<std::size_t>(set));
}

Status setMends(std::size_t set, ShotMends mends, TomoDocument& document,
                std::vector<Message>* notes) {
  while (!mends.traces.empty() && !mends.traces.back().any()) mends.traces.pop_back();
  Status status = checkMends(*document.recordings, set, mends);
  if (status.ok()) status = checkNewPartners(document, set, mends);
  if (!status.ok()) return status;
  takeWholeSamples(set, recordedTraces(*document.recordings, set), mends, notes);
  if (samePurpose(mends, mendsOf(document.recordings->mends, set))) return {};
  change(set, std::move(mends), document, notes);
  remakeStacksOf(set, document, notes);
  return {};
}

bool canBeStacked(const TomoDocument& document, std::size_t set, std::size_t other) {
  const TravelTime* a = recordOf(document, set);
  const TravelTime* b = recordOf(document, other);
  if (a == nullptr || b == nullptr || !samePlace(a->shotPos2d, b->shotPos2d)) return false;
  ShotMends stack;
  stack.stackedWith = {static_cast<std::int32_t>(other)};
  if (!checkMends(*document.recordings, set, stack).ok()) return false;
  const std::vector<Point2D> receivers = document.receiversOf(*a);
  const std::vector<Point2D> others = document.receiversOf(*b);
  return std::equal(receivers.begin(), receivers.end(), others.begin(), others.end(), samePlace);
}

void remakeMended(std::size_t set, TomoDocument& document, std::vector<Message>* notes) {
  const ShotMends mends = mendsOf(document.recordings->mends, set);
  const std::vector<TraceSet>& originals = document.recordings->originals;
  if (set < originals.size() && !originals[set].empty()) change(set, mends, document, notes);
  remakeStacksOf(set, document, notes);
}

void forgetMends(std::size_t set, TomoDocument& document) {
  if (document.recordings->mends.empty()) return;
  Recordings& recordings = document.recordings.edit();
  if (set < recordings.mends.size()) recordings.mends[set] = {};
  if (set < recordings.originals.size()) recordings.originals[set] = {};
  for (std::size_t other = 0; other < document.recordings->mends.size(); ++other) {
    ShotMends mends = document.recordings->mends[other];
    if (!isStackedWith(mends, set)) continue;
    mends.stackedWith.erase(std::find(mends.stackedWith.begin(), mends.stackedWith.end(),
                                      static_cast<std::int32_t>(set)));
    change(other, std::move(mends), document, nullptr);
  }
  dropEmptyEnds(document.recordings.edit());
}

std::vector<std::size_t> tracesWithoutPart(const TomoDocument& document, const TravelTime& record) {
  std::vector<std::size_t> traces;
  if (record.traceSetID < 0) return traces;
  const ShotMends& mends =
      mendsOf(document.recordings->mends, static_cast<std::size_t>(record.traceSetID));
  for (std::size_t j = 0; j < record.ttMisurati.size(); ++j) {
    if (!takesPart(mends, j)) traces.push_back(j);
  }
  return traces;
}

bool takesPart(const TomoDocument& document, std::int32_t record, std::size_t trace) {
  return takesPart(mendsOfRecord(document, record), trace);
}

bool isDisabled(const TomoDocument& document, std::int32_t record) {
  return mendsOfRecord(document, record).disabled;
}

std::size_t dropPicksWithoutPart(const TomoDocument& document, TravelTime& record) {
  std::size_t dropped = 0;
  for (const std::size_t trace : tracesWithoutPart(document, record)) {
    if (!hasPick(record.ttMisurati[trace])) continue;
    record.ttMisurati.edit()[trace] = kUnpicked;
    ++dropped;
  }
  return dropped;
}

}  // namespace talvesk

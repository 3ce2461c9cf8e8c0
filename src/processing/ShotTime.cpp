#include "processing/ShotTime.h"

#include "model/MendedTraces.h"
#include "model/Mending.h"
#include "model/Recordings.h"
#include "model/TomoDocument.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace talvesk {
namespace {

/// Samples recorded before the shot, or -1 where delay and interval make no number of them. Kept as
/// a double: absurd headers give numbers beyond every integer.
double leadOf(const Trace& trace) {
  if (trace.delay == 0.0) return 0.0;
  const double lead = std::round(-trace.delay / trace.sampleInterval);
  return trace.sampleInterval > 0.0 && std::isfinite(lead) && lead >= 0.0 ? lead : -1.0;
}

std::size_t recorded(const Trace& trace) {
  return std::max({trace.samples.size(), trace.samplesDX.size(), trace.samplesSX.size()}) +
         trace.droppedSamples;
}

/// Whether a record has both what came before the shot and what came after it.
bool holdsShot(const Trace& trace, double lead) {
  return lead >= 0.0 && lead < static_cast<double>(recorded(trace));
}

void countFromShot(Trace& trace, ShotTimeOutcome& outcome) {
  const double lead = leadOf(trace);
  if (lead == static_cast<double>(trace.droppedSamples)) return;
  if (!holdsShot(trace, lead)) {
    ++outcome.leftAsRecorded;
    return;
  }
  const auto total = static_cast<std::size_t>(lead);
  if (total <= trace.droppedSamples) return;
  const std::size_t now = total - trace.droppedSamples;
  dropFirstSamples(trace, now);
  // A filtered copy as long as the samples now are was kept from an earlier shortening.
  if (trace.filtered.size() != trace.samples.size()) {
    const auto dropped = static_cast<std::ptrdiff_t>(std::min(now, trace.filtered.size()));
    trace.filtered = {{trace.filtered.begin() + dropped, trace.filtered.end()}, trace.filtered};
  }
  trace.droppedSamples = total;
  ++outcome.shortened;
  outcome.mostDropped = std::max(outcome.mostDropped, now);
}

/// Moves a pick by what its trace has lost at its beginning.
void movePick(TravelTime& record, std::size_t trace, double earlier, ShotTimeOutcome& outcome) {
  if (earlier == 0.0 || !hasPick(record.ttMisurati[trace])) return;
  const double time = record.ttMisurati[trace] - earlier;
  const double error = record.errorOf(trace);
  record.ttMisurati.edit()[trace] = hasPick(time) ? time : kNoTime;
  record.setError(trace, error);
  if (hasPick(time)) return;
  record.setWaiting(trace, false);
  ++outcome.picksRemoved;
}

/// Seconds that counting from its shot takes off the front of a recorded trace.
double secondsBeforeShot(const Trace& trace) {
  if (!startsBeforeShot(trace)) return 0.0;
  return (leadOf(trace) - static_cast<double>(trace.droppedSamples)) * trace.sampleInterval;
}

/// The picks of a shot, those that its mends keep among them.
void movePicks(TravelTime& record, TomoDocument& document, ShotTimeOutcome& outcome) {
  const auto set = static_cast<std::size_t>(record.traceSetID);
  std::vector<double> earlier;  // by channel of the record
  for (const Trace& trace : recordedTraces(*document.recordings, set)) {
    earlier.push_back(secondsBeforeShot(trace));
  }
  const ShotMends& mends = mendsOf(*document.recordings, set);
  for (std::size_t j = 0; j < std::min(earlier.size(), record.ttMisurati.size()); ++j) {
    movePick(record, j, earlier[channelAt(mends, j, earlier.size())], outcome);
  }
  if (mends.picks.empty()) return;
  for (RecordedPick& pick : document.recordings.edit().mends[set].picks) {
    if (pick.channel < earlier.size()) pick.time -= earlier[pick.channel];
  }
}

}  // namespace

bool startsBeforeShot(const Trace& trace) {
  const double lead = leadOf(trace);
  return holdsShot(trace, lead) && lead > static_cast<double>(trace.droppedSamples);
}

ShotTimeOutcome countTimesAndPicksFromShot(TomoDocument& document) {
  ShotTimeOutcome moved;
  for (TravelTime& record : document.ttArray.edit()) {
    if (document.tracesOf(record) != nullptr) movePicks(record, document, moved);
  }
  ShotTimeOutcome outcome = countTimeFromShot(document);
  outcome.picksRemoved = moved.picksRemoved;
  return outcome;
}

ShotTimeOutcome countTimeFromShot(TomoDocument& document) {
  std::vector<std::size_t> all(document.recordings->traceSets.size());
  std::iota(all.begin(), all.end(), std::size_t{0});
  return countTimeFromShot(document, all);
}

ShotTimeOutcome countTimeFromShot(TomoDocument& document, const std::vector<std::size_t>& sets) {
  ShotTimeOutcome outcome;
  for (const std::size_t set : sets) {
    const std::size_t before = outcome.shortened;
    Recordings& recordings = document.recordings.edit();
    const bool mended = mendsOf(recordings, set).any();
    TraceSet& recorded = mended ? recordings.originals.at(set) : recordings.traceSets.at(set);
    for (Trace& trace : recorded) countFromShot(trace, outcome);
    if (outcome.shortened > before) remakeMended(set, document, &outcome.notes);
  }
  return outcome;
}

}  // namespace talvesk

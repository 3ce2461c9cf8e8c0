#include "processing/ShotTime.h"

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
    trace.filtered = std::vector<double>(trace.filtered.begin() + dropped, trace.filtered.end());
  }
  trace.droppedSamples = total;
  ++outcome.shortened;
  outcome.mostDropped = std::max(outcome.mostDropped, now);
}

/// Moves a pick by what its trace has lost at its beginning.
void movePick(TravelTime& record, std::size_t trace, double earlier, ShotTimeOutcome& outcome) {
  if (earlier == 0.0 || !hasPick(record.ttMisurati[trace])) return;
  const double time = record.ttMisurati[trace] - earlier;
  record.ttMisurati.edit()[trace] = hasPick(time) ? time : kNoTime;
  if (hasPick(time)) return;
  record.setWaiting(trace, false);
  ++outcome.picksRemoved;
}

}  // namespace

bool startsBeforeShot(const Trace& trace) {
  const double lead = leadOf(trace);
  return holdsShot(trace, lead) && lead > static_cast<double>(trace.droppedSamples);
}

ShotTimeOutcome countTimesAndPicksFromShot(TomoDocument& document) {
  const std::vector<TraceSet> before = document.recordings->traceSets;
  ShotTimeOutcome outcome = countTimeFromShot(document);
  for (TravelTime& record : document.ttArray.edit()) {
    const TraceSet* now = document.tracesOf(record);
    if (now == nullptr) continue;
    const TraceSet& then = before[static_cast<std::size_t>(record.traceSetID)];
    for (std::size_t i = 0; i < std::min(now->size(), record.ttMisurati.size()); ++i) {
      const auto dropped = static_cast<double>((*now)[i].droppedSamples - then[i].droppedSamples);
      movePick(record, i, dropped * (*now)[i].sampleInterval, outcome);
    }
  }
  return outcome;
}

ShotTimeOutcome countTimeFromShot(TomoDocument& document) {
  std::vector<std::size_t> all(document.recordings->traceSets.size());
  std::iota(all.begin(), all.end(), std::size_t{0});
  return countTimeFromShot(document.recordings.edit().traceSets, all);
}

ShotTimeOutcome countTimeFromShot(std::vector<TraceSet>& traceSets,
                                  const std::vector<std::size_t>& sets) {
  ShotTimeOutcome outcome;
  for (const std::size_t set : sets) {
    for (Trace& trace : traceSets.at(set)) countFromShot(trace, outcome);
  }
  return outcome;
}

}  // namespace talvesk

#include "processing/ShotTime.h"

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

void countFromShot(Trace& trace, ShotTimeOutcome& outcome) {
  const double lead = leadOf(trace);
  if (lead == static_cast<double>(trace.droppedSamples)) return;
  if (lead < 0.0 || lead >= static_cast<double>(recorded(trace))) {
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

}  // namespace

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

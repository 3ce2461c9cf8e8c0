#include "model/MendedTraces.h"

#include "model/PickLimits.h"
#include "model/SWavePair.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace talvesk {
namespace {

constexpr Samples Trace::*kRecorded[] = {&Trace::samples, &Trace::samplesDX, &Trace::samplesSX};

bool knowsInterval(const Trace& trace) {
  return trace.sampleInterval > 0.0 && trace.sampleInterval < std::numeric_limits<double>::max();
}

double samplesLate(double timeShift, const Trace& trace) {
  const double count = knowsInterval(trace) ? std::round(timeShift / trace.sampleInterval) : 0.0;
  return std::isfinite(count) ? count : 0.0;
}

/// Samples that a record which came late begins with go; one that came early begins with zeros.
Samples shifted(const Samples& recorded, double late) {
  const auto most = static_cast<double>(recorded.size());
  const auto count = static_cast<std::ptrdiff_t>(std::min(std::fabs(late), most));
  if (count == 0) return recorded;
  if (late > 0.0) return {{recorded.begin() + count, recorded.end()}, recorded};
  std::vector<double> samples(static_cast<std::size_t>(count), 0.0);
  samples.insert(samples.end(), recorded.begin(), recorded.end());
  return {std::move(samples), recorded};
}

void mendSamples(const TraceMend& mend, double interval, Samples& samples) {
  if (!mend.any() || samples.empty()) return;
  std::vector<double> values(samples.begin(), samples.end());
  if (mend.reversed) {
    for (double& value : values) value = -value;
  }
  if (mend.gain != 1.0) {
    for (double& value : values) value *= mend.gain;
  }
  for (std::size_t k = 0; k < values.size(); ++k) {
    const bool early = static_cast<double>(k) * interval < mend.mutedBefore;
    if (mend.killed || early) values[k] = 0.0;
  }
  samples = {std::move(values), samples};
}

/// A trace with its own mends, before others are stacked with it.
Trace mendedAlone(const Recordings& recordings, std::size_t set, std::size_t geophone) {
  const ShotMends& mends = mendsOf(recordings.mends, set);
  const TraceSet& recorded = recordedTraces(recordings, set);
  Trace trace = recorded[channelAt(mends, geophone, recorded.size())];
  trace.sourcePosition = recordings.traceSets[set][geophone].sourcePosition;
  trace.receiverPosition = recordings.traceSets[set][geophone].receiverPosition;
  trace.filtered = {};
  const TraceMend& mend = mendOf(mends, geophone);
  const double late = samplesLate(mends.timeShift, trace);
  if (late == 0.0 && !mend.any()) return trace;
  for (const auto member : kRecorded) {
    trace.*member = shifted(trace.*member, late);
    mendSamples(mend, trace.sampleInterval, trace.*member);
  }
  subtractRecordings(trace);
  return trace;
}

Samples mean(const std::vector<Trace>& traces, Samples Trace::*member) {
  std::size_t common = (traces.front().*member).size();
  for (const Trace& trace : traces) common = std::min(common, (trace.*member).size());
  std::vector<double> sum(common, 0.0);
  for (const Trace& trace : traces) {
    const Span<double> samples = trace.*member;
    for (std::size_t k = 0; k < common; ++k) sum[k] += samples[k];
  }
  for (double& value : sum) value /= static_cast<double>(traces.size());
  return {std::move(sum), traces.front().*member};
}

Trace mendedTrace(const Recordings& recordings, std::size_t set, std::size_t geophone) {
  const ShotMends& mends = mendsOf(recordings.mends, set);
  std::vector<Trace> stack = {mendedAlone(recordings, set, geophone)};
  if (!mendOf(mends, geophone).killed) {
    for (const std::int32_t other : mends.stackedWith) {
      const auto partner = static_cast<std::size_t>(other);
      if (mendOf(mendsOf(recordings.mends, partner), geophone).killed) continue;
      stack.push_back(mendedAlone(recordings, partner, geophone));
    }
  }
  Trace trace = stack.front();
  if (stack.size() == 1) return trace;
  for (const auto member : kRecorded) trace.*member = mean(stack, member);
  subtractRecordings(trace);
  return trace;
}

Status checkShift(const TraceSet& traces, double timeShift) {
  for (const Trace& trace : traces) {
    if (trace.samples.empty() || timeShift == 0.0) continue;
    if (!knowsInterval(trace)) {
      return Status::failure(
          Message::tr("a trace without a sample interval cannot be shifted in time"));
    }
    const double count = std::fabs(samplesLate(timeShift, trace));
    if (!(count < static_cast<double>(trace.samples.size()))) {
      return Status::failure(
          Message::tr("a shift of %1 ms is longer than the record").arg(1e3 * timeShift));
    }
  }
  return {};
}

bool alike(const Trace& a, const Trace& b) {
  return a.sampleInterval == b.sampleInterval && a.waveKind == b.waveKind;
}

Status checkStack(const Recordings& recordings, std::size_t set, const ShotMends& mends) {
  const TraceSet& own = recordedTraces(recordings, set);
  std::vector<std::int32_t> others = mends.stackedWith;
  std::sort(others.begin(), others.end());
  const bool twice = std::adjacent_find(others.begin(), others.end()) != others.end();
  for (const std::int32_t other : others) {
    const auto partner = static_cast<std::size_t>(other);
    if (twice || other < 0 || partner >= recordings.traceSets.size() || partner == set) {
      return Status::failure(
          Message::tr("a shot is stacked with other shots of the survey, each once"));
    }
    const TraceSet& traces = recordedTraces(recordings, partner);
    if (!std::equal(own.begin(), own.end(), traces.begin(), traces.end(), alike)) {
      return Status::failure(
          Message::tr("shot %1 cannot be stacked with it: its traces are of another number, "
                      "sample interval or kind")
              .arg(partner + 1));
    }
  }
  return {};
}

}  // namespace

const TraceSet& recordedTraces(const Recordings& recordings, std::size_t set) {
  const bool kept = set < recordings.originals.size() && !recordings.originals[set].empty();
  return kept ? recordings.originals[set] : recordings.traceSets[set];
}

bool sameSamples(const Trace& a, const Trace& b) {
  return a.samples == b.samples && a.samplesDX == b.samplesDX && a.samplesSX == b.samplesSX;
}

void dropEmptyEnds(Recordings& recordings) {
  while (!recordings.mends.empty() && !recordings.mends.back().any()) recordings.mends.pop_back();
  while (!recordings.originals.empty() && recordings.originals.back().empty()) {
    recordings.originals.pop_back();
  }
}

std::size_t channelAt(const ShotMends& mends, std::size_t geophone, std::size_t traces) {
  return mends.orderReversed && geophone < traces ? traces - 1 - geophone : geophone;
}

double wholeSamples(double timeShift, const Trace& trace) {
  const double count = samplesLate(timeShift, trace);
  return count == 0.0 ? 0.0 : count * trace.sampleInterval;
}

TraceSet mendedTraces(const Recordings& recordings, std::size_t set) {
  TraceSet traces;
  traces.reserve(recordings.traceSets[set].size());
  for (std::size_t j = 0; j < recordings.traceSets[set].size(); ++j) {
    traces.push_back(mendedTrace(recordings, set, j));
  }
  return traces;
}

Status checkMends(const Recordings& recordings, std::size_t set, const ShotMends& mends) {
  if (set >= recordings.traceSets.size()) {
    return Status::failure(Message::tr("shot %1 has no traces to mend").arg(set + 1));
  }
  const TraceSet& recorded = recordedTraces(recordings, set);
  if (recorded.size() != recordings.traceSets[set].size() ||
      mends.traces.size() > recorded.size()) {
    return Status::failure(Message::tr("shot %1 has %2 traces, and mends of %3")
                               .arg(set + 1)
                               .arg(recorded.size())
                               .arg(std::max(mends.traces.size(), recorded.size())));
  }
  for (const TraceMend& trace : mends.traces) {
    if (!(trace.mutedBefore >= 0.0 && trace.mutedBefore <= kLatestPick)) {
      return Status::failure(
          Message::tr("a trace cannot be muted before %1 ms").arg(1e3 * trace.mutedBefore));
    }
    if (!(trace.gain >= TraceMend::kLeastGain && trace.gain <= TraceMend::kMostGain)) {
      return Status::failure(Message::tr("a trace cannot have a gain of %1, only one from %2 to %3")
                                 .arg(trace.gain)
                                 .arg(TraceMend::kLeastGain)
                                 .arg(TraceMend::kMostGain));
    }
  }
  if (!(std::fabs(mends.timeShift) <= kLatestPick)) {
    return Status::failure(
        Message::tr("a record cannot be shifted by %1 ms").arg(1e3 * mends.timeShift));
  }
  Status status = checkShift(recorded, mends.timeShift);
  return status.ok() ? checkStack(recordings, set, mends) : status;
}

}  // namespace talvesk

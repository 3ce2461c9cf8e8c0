#include "model/PickLimits.h"

#include "base/TextNumber.h"

#include <cmath>
#include <cstddef>

namespace talvesk {
namespace {

/// More are counted only.
constexpr std::size_t kNamed = 8;

Message milliseconds(double seconds) {
  return Message::tr("%1 ms").arg(1e3 * seconds);
}

const Trace* traceOf(const TravelTime& record, std::size_t trace,
                     const std::vector<TraceSet>& traceSets) {
  const auto set = static_cast<std::size_t>(record.traceSetID);
  if (record.traceSetID < 0 || set >= traceSets.size()) return nullptr;
  return trace < traceSets[set].size() ? &traceSets[set][trace] : nullptr;
}

/// Why a time can be no first break; empty when it can. A trace without samples, as of a shot file
/// that is missing, says nothing of its length.
Message fault(double time, const Trace* trace) {
  if (!std::isfinite(time)) return Message::tr("not a finite time");
  if (time > kLatestPick) return Message::tr("%1, above an hour").arg(milliseconds(time));
  if (trace == nullptr || trace->samples.empty() || !(trace->sampleInterval > 0.0)) return {};
  const double end = static_cast<double>(trace->samples.size()) * trace->sampleInterval;
  if (time <= end) return {};
  return Message::tr("%1, beyond its record of %2").arg(milliseconds(time)).arg(milliseconds(end));
}

}  // namespace

Message dropImpossiblePicks(std::vector<TravelTime>& records,
                            const std::vector<TraceSet>& traceSets) {
  std::size_t dropped = 0;
  Message named;
  for (std::size_t shot = 0; shot < records.size(); ++shot) {
    const SharedVector<double>& times = records[shot].ttMisurati;
    for (std::size_t trace = 0; trace < times.size(); ++trace) {
      const Message why = fault(times[trace], traceOf(records[shot], trace, traceSets));
      if (why.empty()) continue;
      records[shot].ttMisurati.edit()[trace] = kNoTime;
      if (++dropped > kNamed) continue;
      Message one = Message::tr("shot %1, trace %2 (%3)").arg(shot + 1).arg(trace + 1).arg(why);
      named = named.empty() ? std::move(one)
                            : Message::tr("%1; %2").arg(std::move(named)).arg(std::move(one));
    }
  }
  if (dropped == 0) return {};
  if (dropped > kNamed) {
    named = Message::tr("%1; and %2 more").arg(std::move(named)).arg(dropped - kNamed);
  }
  return dropped == 1 ? Message::tr("a pick that cannot be was dropped: %1").arg(std::move(named))
                      : Message::tr("%1 picks that cannot be were dropped: %2")
                            .arg(dropped)
                            .arg(std::move(named));
}

}  // namespace talvesk

#include "model/PickLimits.h"

#include "base/TextNumber.h"

#include <cmath>
#include <cstddef>

namespace talvesk {
namespace {

/// More are counted only.
constexpr std::size_t kNamed = 8;

std::string milliseconds(double seconds) {
  return formatDouble(1e3 * seconds) + " ms";
}

const Trace* traceOf(const TravelTime& record, std::size_t trace,
                     const std::vector<TraceSet>& traceSets) {
  const auto set = static_cast<std::size_t>(record.traceSetID);
  if (record.traceSetID < 0 || set >= traceSets.size()) return nullptr;
  return trace < traceSets[set].size() ? &traceSets[set][trace] : nullptr;
}

/// Why a time can be no first break; empty when it can. A trace without samples, as of a shot file
/// that is missing, says nothing of its length.
std::string fault(double time, const Trace* trace) {
  if (!std::isfinite(time)) return "not a finite time";
  if (time > kLatestPick) return milliseconds(time) + ", above an hour";
  if (trace == nullptr || trace->samples.empty() || !(trace->sampleInterval > 0.0)) return {};
  const double end = static_cast<double>(trace->samples.size()) * trace->sampleInterval;
  if (time <= end) return {};
  return milliseconds(time) + ", beyond its record of " + milliseconds(end);
}

}  // namespace

std::string dropImpossiblePicks(std::vector<TravelTime>& records,
                                const std::vector<TraceSet>& traceSets) {
  std::size_t dropped = 0;
  std::string named;
  for (std::size_t shot = 0; shot < records.size(); ++shot) {
    std::vector<double>& times = records[shot].ttMisurati;
    for (std::size_t trace = 0; trace < times.size(); ++trace) {
      const std::string why = fault(times[trace], traceOf(records[shot], trace, traceSets));
      if (why.empty()) continue;
      times[trace] = kNoTime;
      if (++dropped > kNamed) continue;
      named += (named.empty() ? "shot " : "; shot ") + std::to_string(shot + 1) + ", trace " +
               std::to_string(trace + 1) + " (" + why + ")";
    }
  }
  if (dropped == 0) return {};
  if (dropped > kNamed) named += "; and " + std::to_string(dropped - kNamed) + " more";
  return (dropped == 1 ? "a pick that cannot be was dropped: "
                       : std::to_string(dropped) + " picks that cannot be were dropped: ") +
         named;
}

}  // namespace talvesk

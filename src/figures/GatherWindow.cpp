#include "figures/GatherWindow.h"

#include "figures/DrawableValues.h"
#include "model/TravelTime.h"
#include "view/GatherMapping.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

/// The least of 1, 1.2, 1.5, 2, 2.5, 3, 4, 5, 6, 8 times a power of ten that is not below `value`.
double roundUp(double value) {
  const double power = std::pow(10.0, std::floor(std::log10(value)));
  for (const double factor : {1.0, 1.2, 1.5, 2.0, 2.5, 3.0, 4.0, 5.0, 6.0, 8.0}) {
    if (factor * power >= value * (1.0 - 1e-12)) return factor * power;
  }
  return 10.0 * power;
}

/// Of reduced times: records begin before 0, and so may picks.
TimeWindow reducedWindow(const TraceSet& set, const TravelTime* record,
                         const GatherMapping& mapping) {
  const double beginMs = -1e3 * mapping.longestShift();
  double endMs = beginMs;
  double firstPickMs = 0.0;
  double lastPickMs = 0.0;
  double roomMs = 0.0;  // half as long again as the last pick takes
  for (std::size_t i = 0; i < set.size(); ++i) {
    const std::size_t samples = std::max(set[i].samples.size(), set[i].filtered.size());
    if (hasInterval(set[i]) && samples > 1) {
      const double recordMs = 1e3 * set[i].sampleInterval * static_cast<double>(samples - 1);
      endMs = std::max(endMs, std::min(recordMs, kLongestGatherMs) - 1e3 * mapping.shift(i));
    }
    if (record == nullptr || i >= record->ttMisurati.size()) continue;
    const double seconds = record->ttMisurati[i];
    if (!isDrawableTime(seconds)) continue;
    firstPickMs = std::min(firstPickMs, 1e3 * mapping.drawnTime(i, seconds));
    lastPickMs = std::max(lastPickMs, 1e3 * mapping.drawnTime(i, seconds));
    roomMs = std::max(roomMs, 0.5e3 * seconds);
  }
  if (!(roomMs > 0.0)) return {beginMs, endMs > beginMs ? endMs : beginMs + 1.0};
  // A little of the quiet before the first break, too.
  const double early = -roundUp(0.2 * roomMs - firstPickMs);
  const double late = roundUp(lastPickMs + roomMs);
  return {std::max(early, beginMs), endMs > lastPickMs ? std::min(late, endMs) : late};
}

}  // namespace

TimeWindow gatherWindow(const TraceSet& set, const TravelTime* record,
                        const GatherMapping& mapping) {
  if (mapping.isReduced()) return reducedWindow(set, record, mapping);
  double recordMs = 0.0;
  for (const Trace& trace : set) {
    if (!hasInterval(trace)) continue;
    const std::size_t samples = std::max(trace.samples.size(), trace.filtered.size());
    if (samples < 2) continue;
    recordMs = std::max(recordMs, 1e3 * trace.sampleInterval * static_cast<double>(samples - 1));
  }
  double lastPickMs = 0.0;
  if (record != nullptr) {
    const std::size_t count = std::min(set.size(), record->ttMisurati.size());
    for (std::size_t i = 0; i < count; ++i) {
      const double seconds = record->ttMisurati[i];
      if (isDrawableTime(seconds)) lastPickMs = std::max(lastPickMs, 1e3 * seconds);
    }
  }
  double endMs = std::min(recordMs, kLongestGatherMs);
  if (lastPickMs > 0.0) {
    const double wanted = roundUp(1.5 * lastPickMs);
    // A pick past the end of its record is an error that must show.
    endMs = endMs > 0.0 ? std::min(wanted, std::max(endMs, 1.05 * lastPickMs)) : wanted;
  }
  return {0.0, endMs > 0.0 ? endMs : 1.0};
}

}  // namespace talvesk

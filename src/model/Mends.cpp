#include "model/Mends.h"

#include <algorithm>

namespace talvesk {
namespace {

/// Entries that the shorter list lacks put nothing right.
bool sameTraces(const std::vector<TraceMend>& a, const std::vector<TraceMend>& b) {
  const std::vector<TraceMend>& longer = a.size() < b.size() ? b : a;
  const auto shared = static_cast<std::ptrdiff_t>(std::min(a.size(), b.size()));
  return std::equal(a.begin(), a.begin() + shared, b.begin()) &&
         std::none_of(longer.begin() + shared, longer.end(),
                      [](const TraceMend& trace) { return trace.any(); });
}

}  // namespace

bool operator==(const TraceMend& a, const TraceMend& b) {
  return a.killed == b.killed && a.reversed == b.reversed && a.mutedBefore == b.mutedBefore &&
         a.gain == b.gain;
}

bool ShotMends::any() const {
  return disabled || changesSamples();
}

bool ShotMends::changesSamples() const {
  return timeShift != 0.0 || orderReversed || !stackedWith.empty() ||
         std::any_of(traces.begin(), traces.end(),
                     [](const TraceMend& trace) { return trace.any(); });
}

bool samePurpose(const ShotMends& a, const ShotMends& b) {
  return a.timeShift == b.timeShift && a.disabled == b.disabled &&
         a.orderReversed == b.orderReversed && a.stackedWith == b.stackedWith &&
         sameTraces(a.traces, b.traces);
}

const ShotMends& mendsOf(const std::vector<ShotMends>& mends, std::size_t set) {
  static const ShotMends none;
  return set < mends.size() ? mends[set] : none;
}

const TraceMend& mendOf(const ShotMends& mends, std::size_t trace) {
  static const TraceMend none;
  return trace < mends.traces.size() ? mends.traces[trace] : none;
}

bool takesPart(const ShotMends& mends, std::size_t trace) {
  return !mends.disabled && !mendOf(mends, trace).killed;
}

}  // namespace talvesk

#include "base/IndexRanges.h"
#include "model/Mending.h"
#include "model/Recordings.h"

#include <algorithm>
#include <map>

namespace talvesk {
namespace {

template <typename Is>
std::string channels(const std::vector<TraceMend>& traces, Is is) {
  std::vector<std::size_t> found;
  for (std::size_t j = 0; j < traces.size(); ++j) {
    if (is(traces[j])) found.push_back(j);
  }
  return ranges(found);
}

void describeTraces(const std::vector<TraceMend>& traces, std::vector<Message>& lines) {
  const std::string killed = channels(traces, [](const TraceMend& t) { return t.killed; });
  const std::string reversed = channels(traces, [](const TraceMend& t) { return t.reversed; });
  if (!killed.empty()) lines.push_back(Message::tr("traces killed: %1").arg(killed));
  if (!reversed.empty()) {
    lines.push_back(Message::tr("traces with their polarity reversed: %1").arg(reversed));
  }
  std::map<double, std::vector<std::size_t>> muted;
  std::map<double, std::vector<std::size_t>> scaled;
  for (std::size_t j = 0; j < traces.size(); ++j) {
    if (traces[j].mutedBefore > 0.0) muted[traces[j].mutedBefore].push_back(j);
    if (traces[j].gain != 1.0) scaled[traces[j].gain].push_back(j);
  }
  for (const auto& [time, list] : muted) {
    lines.push_back(Message::tr("traces muted before %1 ms: %2").arg(1e3 * time).arg(ranges(list)));
  }
  for (const auto& [gain, list] : scaled) {
    lines.push_back(Message::tr("traces with a gain of %1: %2").arg(gain).arg(ranges(list)));
  }
}

}  // namespace

std::vector<Message> describeMends(const TomoDocument& document, std::size_t set) {
  const ShotMends& mends = mendsOf(document.recordings->mends, set);
  std::vector<Message> lines;
  if (mends.disabled) {
    lines.push_back(Message::tr("disabled: it has no picks and takes no part in anything"));
  }
  if (mends.timeShift > 0.0) {
    lines.push_back(
        Message::tr("shifted by %1 ms: its record was late").arg(1e3 * mends.timeShift));
  }
  if (mends.timeShift < 0.0) {
    lines.push_back(
        Message::tr("shifted by %1 ms: its record was early").arg(1e3 * mends.timeShift));
  }
  if (mends.orderReversed) {
    lines.push_back(Message::tr("order reversed: its channels ran against the geophones"));
  }
  if (!mends.stackedWith.empty()) {
    std::vector<std::size_t> others(mends.stackedWith.begin(), mends.stackedWith.end());
    std::sort(others.begin(), others.end());
    lines.push_back(Message::tr("stacked with shots: %1").arg(ranges(others)));
  }
  describeTraces(mends.traces, lines);
  return lines;
}

}  // namespace talvesk

#include "io/project/ProjectPicks.h"

#include "model/PickFingerprint.h"
#include "model/TomoDocument.h"

#include <algorithm>

namespace talvesk {
namespace {

bool fits(const UnconfirmedMember& member, const TomoDocument& document) {
  const std::vector<TravelTime>& records = document.ttArray;
  if (member.traces.size() != records.size() || member.picks != fingerprintOfPicks(records)) {
    return false;
  }
  for (std::size_t i = 0; i < records.size(); ++i) {
    const std::vector<double>& times = records[i].ttMisurati;
    const auto isPick = [&](std::uint32_t trace) {
      return trace < times.size() && hasPick(times[trace]);
    };
    if (!std::all_of(member.traces[i].begin(), member.traces[i].end(), isPick)) return false;
  }
  return true;
}

}  // namespace

std::optional<UnconfirmedMember> unconfirmedOf(const TomoDocument& document) {
  UnconfirmedMember member;
  bool any = false;
  for (const TravelTime& record : document.ttArray) {
    std::vector<std::uint32_t>& traces = member.traces.emplace_back();
    for (std::size_t trace = 0; trace < record.ttMisurati.size(); ++trace) {
      if (!record.waits(trace) || !hasPick(record.ttMisurati[trace])) continue;
      traces.push_back(static_cast<std::uint32_t>(trace));
      any = true;
    }
  }
  if (!any) return std::nullopt;
  member.picks = fingerprintOfPicks(document.ttArray);
  return member;
}

Status installUnconfirmed(const UnconfirmedMember& member, TomoDocument& document) {
  if (!fits(member, document)) {
    return Status::failure(Message::tr("it is about other picks than those of the project"));
  }
  std::vector<TravelTime>& records = document.ttArray.edit();
  for (std::size_t i = 0; i < records.size(); ++i) {
    for (const std::uint32_t trace : member.traces[i]) records[i].setWaiting(trace, true);
  }
  return {};
}

}  // namespace talvesk

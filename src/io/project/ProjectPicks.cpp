#include "io/project/ProjectPicks.h"

#include "model/PickFingerprint.h"
#include "model/Recordings.h"
#include "model/TomoDocument.h"

#include <algorithm>

namespace talvesk {
namespace {

std::vector<StoredError> errorsOf(const TravelTime& record) {
  std::vector<StoredError> errors;
  for (std::size_t trace = 0; trace < record.pickErrors.size(); ++trace) {
    const double sigma = record.errorOf(trace);
    if (sigma > 0.0)
      errors.push_back({static_cast<std::uint32_t>(trace), record.ttMisurati[trace], sigma});
  }
  return errors;
}

std::vector<StoredError> errorsOf(const ShotMends& mends) {
  std::vector<StoredError> errors;
  for (const RecordedPick& pick : mends.picks) {
    if (pick.error > 0.0) errors.push_back({pick.channel, pick.time, pick.error});
  }
  return errors;
}

bool hasAny(const std::vector<std::vector<StoredError>>& errors) {
  return std::any_of(errors.begin(), errors.end(), [](const auto& some) { return !some.empty(); });
}

bool canBe(const std::vector<std::vector<StoredError>>& errors) {
  return std::all_of(errors.begin(), errors.end(), [](const auto& some) {
    return std::all_of(some.begin(), some.end(),
                       [](const StoredError& error) { return isPickError(error.sigma); });
  });
}

void install(const std::vector<StoredError>& errors, TravelTime& record) {
  for (const StoredError& error : errors) {
    const bool about =
        error.of < record.ttMisurati.size() && record.ttMisurati[error.of] == error.time;
    if (about) record.setError(error.of, error.sigma);
  }
}

void install(const std::vector<StoredError>& errors, ShotMends& mends) {
  for (const StoredError& error : errors) {
    for (RecordedPick& pick : mends.picks) {
      if (pick.channel == error.of && pick.time == error.time) pick.error = error.sigma;
    }
  }
}

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

std::optional<PickErrorsMember> pickErrorsOf(const TomoDocument& document) {
  PickErrorsMember member;
  for (const TravelTime& record : document.ttArray) member.errors.push_back(errorsOf(record));
  for (const ShotMends& mends : document.recordings->mends) {
    member.recorded.push_back(errorsOf(mends));
  }
  if (!hasAny(member.errors) && !hasAny(member.recorded)) return std::nullopt;
  return member;
}

Status installPickErrors(const PickErrorsMember& member, TomoDocument& document) {
  if (!canBe(member.errors) || !canBe(member.recorded)) {
    return Status::failure(Message::tr("it tells errors of picks that cannot be"));
  }
  std::vector<TravelTime>& records = document.ttArray.edit();
  for (std::size_t i = 0; i < std::min(records.size(), member.errors.size()); ++i) {
    install(member.errors[i], records[i]);
  }
  if (!hasAny(member.recorded)) return {};
  std::vector<ShotMends>& mends = document.recordings.edit().mends;
  for (std::size_t set = 0; set < std::min(mends.size(), member.recorded.size()); ++set) {
    install(member.recorded[set], mends[set]);
  }
  return {};
}

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

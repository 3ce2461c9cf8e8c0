#include "session/PickEdits.h"

#include "model/Mending.h"
#include "model/TomoDocument.h"

#include <algorithm>

namespace talvesk {
namespace {

bool hasShot(const TomoDocument& document, std::int32_t shot) {
  return shot >= 0 && static_cast<std::size_t>(shot) < document.ttArray.size();
}

}  // namespace

void changePicks(TomoDocument& document, std::int32_t shot,
                 const std::vector<PickChange>& changes) {
  if (!hasShot(document, shot)) return;
  TravelTime& record = document.ttArray.edit()[static_cast<std::size_t>(shot)];
  for (const PickChange& change : changes) {
    const auto trace = static_cast<std::size_t>(change.trace);
    if (change.trace < 0 || trace >= record.ttMisurati.size()) continue;
    if (hasPick(change.time) && !takesPart(document, shot, trace)) continue;
    if (record.ttMisurati[trace] != change.time) record.ttMisurati.edit()[trace] = change.time;
    record.setWaiting(trace, change.waits);
    if (change.error) record.setError(trace, *change.error);
  }
}

Status mayPick(const TomoDocument& document, std::int32_t shot,
               const std::vector<PickChange>& changes) {
  for (const PickChange& change : changes) {
    if (!hasPick(change.time) || change.trace < 0) continue;
    if (takesPart(document, shot, static_cast<std::size_t>(change.trace))) continue;
    return Status::failure(
        isDisabled(document, shot)
            ? Message::tr("Shot %1 is disabled and takes no picks; Mend recording enables it.")
                  .arg(shot + 1)
            : Message::tr("Trace %1 is killed and takes no pick; Mend recording brings it back.")
                  .arg(change.trace + 1));
  }
  return {};
}

void markPicksAutomatic(TomoDocument& document, std::int32_t shot) {
  if (!hasShot(document, shot)) return;
  TravelTime& record = document.ttArray.edit()[static_cast<std::size_t>(shot)];
  for (std::size_t trace = 0; trace < record.ttMisurati.size(); ++trace) {
    record.setWaiting(trace, hasPick(record.ttMisurati[trace]));
  }
}

std::vector<std::int32_t> shotsWithOtherPicks(const TomoDocument& before,
                                              const TomoDocument& after) {
  std::vector<std::int32_t> shots;
  for (std::size_t i = 0; i < after.ttArray.size(); ++i) {
    const TravelTime& now = after.ttArray[i];
    if (i < before.ttArray.size() && before.ttArray[i].ttMisurati == now.ttMisurati &&
        before.ttArray[i].unconfirmed == now.unconfirmed &&
        before.ttArray[i].pickErrors == now.pickErrors) {
      continue;
    }
    shots.push_back(static_cast<std::int32_t>(i));
  }
  return shots;
}

bool hasNewPick(const TomoDocument& before, const TomoDocument& after) {
  for (std::size_t i = 0; i < std::min(before.ttArray.size(), after.ttArray.size()); ++i) {
    const SharedVector<double>& old = before.ttArray[i].ttMisurati;
    const SharedVector<double>& now = after.ttArray[i].ttMisurati;
    if (now.isSharedWith(old)) continue;
    for (std::size_t t = 0; t < now.size(); ++t) {
      if (hasPick(now[t]) && !(t < old.size() && hasPick(old[t]))) return true;
    }
  }
  return false;
}

}  // namespace talvesk

#include "session/TakeShifts.h"

#include "io/Survey.h"
#include "model/Mending.h"
#include "session/Session.h"

#include <algorithm>

namespace talvesk {

TakenShifts takeShifts(const std::vector<ShotShift>& shifts, Session& session) {
  TakenShifts taken;
  const bool any = std::any_of(shifts.begin(), shifts.end(),
                               [](const ShotShift& each) { return each.recording; });
  if (!any) return taken;
  const Status status = session.apply(
      Edit::kMend,
      [&](Survey& survey) {
        for (const ShotShift& each : shifts) {
          if (!each.recording) continue;
          const auto record = static_cast<std::int32_t>(each.record);
          ShotMends mends = mendsOfRecord(survey.document, record);
          mends.timeShift += each.late;
          const auto set =
              static_cast<std::size_t>(survey.document.ttArray[each.record].traceSetID);
          const Status one = setMends(set, std::move(mends), survey.document, &taken.notes);
          if (one.ok()) {
            ++taken.done;
          } else {
            taken.failures.push_back(
                Message::tr("shot %1: %2").arg(each.record + 1).arg(one.text()));
          }
        }
        return Status();
      },
      Message::tr("Take over time shifts"));
  if (!status.ok()) taken = {0, {}, {status.text()}};
  return taken;
}

}  // namespace talvesk

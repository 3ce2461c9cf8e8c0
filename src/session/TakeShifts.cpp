#include "session/TakeShifts.h"

#include "io/Survey.h"
#include "model/KeptRun.h"
#include "model/Mending.h"
#include "model/TomographyOutcome.h"
#include "session/Session.h"

#include <optional>
#include <utility>

namespace talvesk {

namespace {

Message failureOf(const ShotShift& shift, const Message& why) {
  return Message::tr("shot %1: %2").arg(shift.record + 1).arg(why);
}

Status shiftRecording(const ShotShift& shift, TomoDocument& document, std::vector<Message>& notes) {
  const auto record = static_cast<std::int32_t>(shift.record);
  ShotMends mends = mendsOfRecord(document, record);
  mends.timeShift += shift.late;
  const auto set = static_cast<std::size_t>(document.ttArray[shift.record].traceSetID);
  return setMends(set, std::move(mends), document, &notes);
}

/// No mend tells of the shift of a shot without a recording: the fits forget what they have found.
void forgetShift(std::size_t record, TomoDocument& document) {
  const auto forget = [record](std::optional<FitRecord>& fit) {
    if (fit && record < fit->shifts.size()) fit->shifts[record].late = 0.0;
  };
  auto& last = document.result.edit().lastInversion;
  if (last) forget(last->fit);
  for (KeptRun& run : document.runs.edit()) forget(run.record.fit);
}

Status shiftPicks(const ShotShift& shift, TomoDocument& document) {
  TravelTime record = document.ttArray[shift.record];
  for (std::size_t trace = 0; trace < record.ttMisurati.size(); ++trace) {
    const double time = record.ttMisurati[trace];
    if (!hasPick(time)) continue;
    if (!(time > shift.late)) {
      return Status::failure(
          Message::tr("with %1 ms less, the pick of receiver %2 would come before the shot")
              .arg(1e3 * shift.late)
              .arg(trace + 1));
    }
    const double sigma = record.errorOf(trace);
    record.ttMisurati.edit()[trace] = time - shift.late;
    record.setError(trace, sigma);
  }
  document.ttArray.edit()[shift.record] = std::move(record);
  forgetShift(shift.record, document);
  return {};
}

Status shiftOne(const ShotShift& shift, TomoDocument& document, TakenShifts& taken) {
  if (shift.recording) return shiftRecording(shift, document, taken.notes);
  const Status status = shiftPicks(shift, document);
  if (status.ok()) ++taken.picksOnly;
  return status;
}

}  // namespace

TakenShifts takeShifts(const std::vector<ShotShift>& shifts, Session& session) {
  TakenShifts taken;
  const Status status = session.apply(Edit::kTakeShifts, [&](Survey& survey) {
    for (const ShotShift& each : shifts) {
      const Status one = shiftOne(each, survey.document, taken);
      if (one.ok()) {
        ++taken.done;
      } else {
        taken.failures.push_back(failureOf(each, one.text()));
      }
    }
    return Status();
  });
  if (!status.ok()) taken = {0, 0, {}, {status.text()}};
  return taken;
}

}  // namespace talvesk

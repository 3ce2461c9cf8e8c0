#include "app/presenters/ShotTimeQuestion.h"

#include "app/Messages.h"
#include "app/presenters/Desk.h"
#include "io/Survey.h"
#include "model/Recordings.h"
#include "processing/ShotTime.h"

#include <algorithm>

namespace talvesk {
namespace {

/// \param work the survey with the times that count from the shot
/// \return whether anything has changed
bool take(Desk& desk, const TomoDocument& work, const ShotTimeOutcome& outcome) {
  const auto change = [&](Survey& survey) { survey.document = work; };
  if (outcome.shortened > 0 && !desk.edit(Edit::kShotTime, change)) return false;
  if (outcome.leftAsRecorded > 0) {
    showNote(&desk.window, Desk::tr("Recording delay"),
             Desk::tr("%n trace(s) end before the shot and stay as recorded.", nullptr,
                      static_cast<int>(outcome.leftAsRecorded)));
  }
  return outcome.shortened > 0;
}

}  // namespace

void askForShotTime(Desk& desk, const std::vector<std::size_t>& sets) {
  double earliest = 0.0;
  for (const std::size_t set : sets) {
    for (const Trace& trace : desk.document().recordings->traceSets[set])
      earliest = std::min(earliest, trace.delay);
  }
  if (earliest >= 0.0) return;
  const bool yes = askYesNo(
      &desk.window, Desk::tr("Recording delay"),
      Desk::tr("The records start before the shot, by up to %1 ms.").arg(-1000.0 * earliest),
      Desk::tr(
          "Do you want to count times from the shot? What was recorded before it is then dropped."),
      true);
  if (!yes) return;
  // Only the new records: picks on the older ones count from where those start now.
  TomoDocument work = desk.document();
  const ShotTimeOutcome outcome = countTimeFromShot(work, sets);
  take(desk, work, outcome);
}

void countTimesFromShot(Desk& desk) {
  TomoDocument work = desk.document();
  const ShotTimeOutcome outcome = countTimesAndPicksFromShot(work);
  if (!take(desk, work, outcome)) return;
  QString text = Desk::tr("The times of %n trace(s) count from the shot now.", nullptr,
                          static_cast<int>(outcome.shortened));
  if (outcome.picksRemoved > 0) {
    text += QLatin1Char(' ') + Desk::tr("%n pick(s) lay before it and are removed.", nullptr,
                                        static_cast<int>(outcome.picksRemoved));
  }
  desk.tell(text);
}

}  // namespace talvesk

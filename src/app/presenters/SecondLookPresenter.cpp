#include "app/presenters/SecondLookPresenter.h"

#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/dialogs/SecondLookDialog.h"
#include "session/TakeShifts.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/traces/editTravelTimesWidget.h"

namespace talvesk {

SecondLookPresenter::SecondLookPresenter(Desk& desk) : mDesk(desk) {
  mSubscription = desk.session.subscribe([this](const SurveyChange& change) {
    if (change.kind == SurveyChange::Kind::kView || change.kind == SurveyChange::Kind::kSaved) {
      return;
    }
    if (mDialog != nullptr && mDialog->isVisible()) refresh();
  });
}

void SecondLookPresenter::show() {
  if (mDialog == nullptr) {
    mDialog = new SecondLookDialog(&mDesk.window);
    connect(mDialog, &SecondLookDialog::pickWanted, this, &SecondLookPresenter::showPick);
    connect(mDialog, &SecondLookDialog::shotWanted, this, [this](int shot) { showPick(shot, -1); });
    connect(mDialog, &SecondLookDialog::takeOverWanted, this, [this] { takeOver(); });
  }
  refresh();
  mDialog->show();
  mDialog->raise();
}

void SecondLookPresenter::showIfAny() {
  const SecondLook look = secondLook(mDesk.document());
  if (!look.suspects.empty() || !look.shifts.empty()) show();
}

void SecondLookPresenter::refresh() {
  mDialog->setLook(secondLook(mDesk.document()));
}

/// \param trace -1: none in particular
void SecondLookPresenter::showPick(int shot, int trace) {
  mDesk.ui.tabWidget->setCurrentWidget(mDesk.ui.tab_3);
  mDesk.shot.show(shot);
  if (trace >= 0) mDesk.ui.showTracesWidget->setCurrentTrace(trace);
}

void SecondLookPresenter::takeOver() {
  if (mDesk.inversionRuns) return;
  const std::vector<ShotShift> wanted = mDialog->taken();
  if (wanted.empty()) return;
  const TakenShifts taken = takeShifts(wanted, mDesk.session);
  for (const Message& note : taken.notes) mDesk.log.write(note, 0);
  for (const Message& failure : taken.failures) mDesk.log.write(failure, 1);
  QString told = tr("Time shifts taken over: %1 of %2. Invert again to see what they change.")
                     .arg(taken.done)
                     .arg(wanted.size());
  if (taken.picksOnly > 0) {
    told += QLatin1Char(' ') +
            tr("Shots without a recording, whose picks were shifted: %1.").arg(taken.picksOnly);
  }
  mDesk.tell(told);
  if (taken.failures.empty()) return;
  showErrors(mDialog, mDialog->windowTitle(), tr("Some time shifts have not been taken over."),
             linesOf(taken.failures));
}

}  // namespace talvesk

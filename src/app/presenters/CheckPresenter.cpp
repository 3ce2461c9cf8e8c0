#include "app/presenters/CheckPresenter.h"

#include "app/LossQuestion.h"
#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/dialogs/CheckDialog.h"
#include "doctor/Doctor.h"
#include "session/TakeProposals.h"
#include "ui_Talvesk_MainWindows.h"

#include <algorithm>

namespace talvesk {

void CheckPresenter::check() {
  CheckDialog dialog(&mDesk.window);
  connect(&dialog, &CheckDialog::carryOutWanted, this, [&] { carryOut(dialog); });
  connect(&dialog, &CheckDialog::shotWanted, this, [this](int shot) {
    mDesk.ui.tabWidget->setCurrentWidget(mDesk.ui.tab_3);
    mDesk.shot.show(shot);
  });
  dialog.check(mDesk.document());
  dialog.exec();
}

void CheckPresenter::carryOut(CheckDialog& dialog) {
  const std::vector<TakenProposal> taken = dialog.taken();
  const bool geometry = std::any_of(taken.begin(), taken.end(), [](const TakenProposal& each) {
    return doctor::changesGeometry(each.proposal);
  });
  Losses losses;
  losses.model = ModelLoss::kGrid;
  losses.interpretation = isInterpreted(mDesk.interpretation());
  if (geometry && !mayLose(&dialog, mDesk.document(), losses)) return;
  const TakenOutcome outcome = takeProposals(taken, mDesk.session);
  for (const Message& note : outcome.notes) mDesk.log.write(note, 0);
  for (const Message& failure : outcome.failures) mDesk.log.write(failure, 1);
  QStringList told = {tr("Proposals carried out: %1 of %2.").arg(outcome.done).arg(taken.size())};
  mDesk.tell(told.front());
  if (!outcome.notes.empty()) told << shortList(linesOf(outcome.notes));
  dialog.check(mDesk.document(), told.join(QLatin1Char('\n')));
  if (outcome.failures.empty()) return;
  showErrors(&dialog, dialog.windowTitle(), tr("Some proposals have not been carried out."),
             linesOf(outcome.failures));
}

}  // namespace talvesk

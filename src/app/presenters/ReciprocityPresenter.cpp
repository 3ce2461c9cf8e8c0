#include "app/presenters/ReciprocityPresenter.h"

#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/dialogs/ReciprocityDialog.h"
#include "app/presenters/FileExport.h"
#include "export/ReciprocityText.h"
#include "session/TakeProposals.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/traces/editTravelTimesWidget.h"

namespace talvesk {
namespace {

constexpr int kSoon = 200;  // milliseconds

}  // namespace

ReciprocityPresenter::ReciprocityPresenter(Desk& desk) : mDesk(desk) {
  mSoon.setSingleShot(true);
  mSoon.setInterval(kSoon);
  connect(&mSoon, &QTimer::timeout, this, &ReciprocityPresenter::refresh);
  mSubscription = desk.session.subscribe([this](const SurveyChange& change) {
    const auto has = [&change](Part part) { return change.parts.has(part); };
    const bool opened = change.kind == SurveyChange::Kind::kOpened;
    const bool about = has(Part::kPicks) || has(Part::kGeometry) || has(Part::kRecordings);
    if (mDialog && (opened || about)) mSoon.start();
  });
}

void ReciprocityPresenter::show() {
  if (!mDialog) {
    mDialog = new ReciprocityDialog(&mDesk.window);
    mDialog->setAttribute(Qt::WA_DeleteOnClose);
    mDialog->offerWhereEmpty({mDesk.ui.actionAutoPick_survey, mDesk.ui.actionGeometry});
    connect(mDialog, &ReciprocityDialog::pickWanted, this, &ReciprocityPresenter::goTo);
    connect(mDialog, &ReciprocityDialog::mendWanted, this, &ReciprocityPresenter::mend);
    connect(mDialog, &ReciprocityDialog::saveWanted, this, &ReciprocityPresenter::save);
  }
  refresh();
  mDialog->show();
  mDialog->raise();
  mDialog->activateWindow();
}

void ReciprocityPresenter::retranslate() {
  refresh();
}

void ReciprocityPresenter::refresh() {
  mSoon.stop();
  if (mDialog) mDialog->showSurvey(mDesk.document());
}

/// The keys stay where they are, so that one can go on to the next pair.
void ReciprocityPresenter::goTo(int shot, int trace) {
  mDesk.ui.tabWidget->setCurrentWidget(mDesk.ui.tab_3);
  if (mDesk.shot.index() != shot) mDesk.shot.show(shot);
  for (editTravelTimesWidget* editor : mDesk.editors()) editor->goToTrace(trace);
}

void ReciprocityPresenter::mend(const doctor::Finding& finding) {
  const TakenOutcome outcome = takeProposals({{finding, *finding.proposal}}, mDesk.session);
  for (const Message& note : outcome.notes) mDesk.log.write(note, 0);
  for (const Message& failure : outcome.failures) mDesk.log.write(failure, 1);
  refresh();
  if (outcome.done > 0) {
    QStringList told = {
        tr("The record of shot %1 is mended; Undo takes it back.").arg(*finding.shot + 1)};
    told << linesOf(outcome.notes);
    mDesk.tell(told.join(QLatin1Char(' ')));
    return;
  }
  showErrors(mDialog, mDialog->windowTitle(), tr("The recording has not been mended."),
             linesOf(outcome.failures));
}

void ReciprocityPresenter::save() {
  const QString file =
      askForExport(mDesk, tr("Save Reciprocal Times"), tr("Table (*.csv);;All Files (*)"), "csv");
  if (file.isEmpty() || !mDialog) return;
  exportTo(mDesk, file,
           [this](const std::string& path) { return writeReciprocity(path, mDialog->table()); });
}

}  // namespace talvesk

#include "app/BackgroundInversion.h"
#include "app/CommandLock.h"
#include "app/InversionTexts.h"
#include "app/LeftOutText.h"
#include "app/Messages.h"
#include "app/Outcomes.h"
#include "app/Talvesk_MainWindows.h"
#include "app/progressTomographyDialog.h"
#include "app/runTomography_Dialog.h"
#include "model/GroundModel.h"
#include "model/LeftOut.h"
#include "model/TomographyOutcome.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/TravelTimePlot.h"
#include "widgets/editTravelTimesWidget.h"

#include <QComboBox>
#include <QStatusBar>
#include <chrono>

// The inversion, from the question whether to run it to its results.

namespace talvesk {
void Talvesk_MainWindows::on_actionRun_tomography_inversion_triggered() {
  logSlot(__func__);
  const auto asked = std::chrono::steady_clock::now();
  if (!document().picksComplete() &&
      !askYesNo(this, tr("Warning:"), tr("Uncomplete set of picks. \n \n"),
                tr("Do you want to run tomography inversion anyway? "), false)) {
    return;
  }
  runTomography_Dialog dialog(document().model->minVelocity, document().model->maxVelocity, this);
  if (document().model->grid == nullptr) {
    mLog.write("grid does not exist; ask for parameter");
    if (!makeGrid()) return;
  }
  dialog.setStartingModel(startingModelOf(document()));
  if (dialog.exec() != QDialog::Accepted) return;
  TomographyParameters parameters = dialog.parameters();
  parameters.asked = asked;
  const TomographyResult result = runInversionBeside(parameters);
  if (mCloseAfterInversion) {
    mCloseAfterInversion = false;
    QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
    return;
  }
  showInversion(result);
}

/// The inversion works on a copy, and whatever could change the document is out of reach until it
/// is through; the views stay, to be looked at.
TomographyResult Talvesk_MainWindows::runInversionBeside(const TomographyParameters& parameters) {
  BackgroundInversion inversion(document(), parameters, mLog);
  progressTomographyDialog progress(this);
  connect(&progress, &progressTomographyDialog::stopped, this,
          &Talvesk_MainWindows::on_tomo_stopped);
  progress.setTotal(parameters.externalIterations);
  OpenEdit edit(mSession, Edit::kInversion);
  mInversion = &inversion;
  mInversionProgress = &progress;
  TomographyResult result;
  {
    const CommandLock lock(*this, {mUi->actionExit}, documentEditors());
    progress.show();
    statusBar()->showMessage(tr("An inversion is under way; the survey cannot be edited."));
    result = inversion.run([&](const TomographyProgress& state, const TomoDocument& copy) {
      progress.addCompleted();
      progress.addMisfit(state);
      tellUnlessDone(edit.preview([&](Survey& survey) {
        survey.document = copy;
        return Status();
      }));
    });
  }
  mInversion = nullptr;
  mInversionProgress = nullptr;
  progress.hide();
  statusBar()->clearMessage();
  tellUnlessDone(edit.commit([&](Survey& survey) {
    if (result.iterationsDone > 0) survey.document = inversion.copy();
    // The limits are those that were asked for last, however the run has ended.
    survey.document.model.edit().minVelocity = parameters.minVelocity;
    survey.document.model.edit().maxVelocity = parameters.maxVelocity;
    return Status();
  }));
  return result;
}

/// The widgets through which the document can be edited.
std::vector<QWidget*> Talvesk_MainWindows::documentEditors() const {
  std::vector<QWidget*> widgets = {mShotChooser,      mUi->showAllPicksCB,   mUi->show_filtered_cb,
                                   mUi->showSimTT_CB, mUi->showTravelTimeCB, mUi->mainToolBar,
                                   mUi->toolBar};
  for (editTravelTimesWidget* editor : editors()) widgets.push_back(editor);
  for (TravelTimePlot* plot : plots()) widgets.push_back(plot);
  return widgets;
}

void Talvesk_MainWindows::on_tomo_stopped() {
  if (mInversion != nullptr) mInversion->requestStop();
  if (mInversionProgress != nullptr) mInversionProgress->showStopping();
}

/// While an inversion runs the window can only ask it to stop, and close when it has.
void Talvesk_MainWindows::askToStopAndClose() {
  if (mCloseAfterInversion) return;  // it was asked and will be done
  const bool stop =
      askYesNo(this, tr("Tomography inversion"), tr("The inversion is still running."),
               tr("Do you want to stop it when the iteration under way is completed, "
                  "and close then?"),
               false);
  if (!stop) return;
  if (mInversion == nullptr) {  // it ended while the question was open
    QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
    return;
  }
  mCloseAfterInversion = true;
  on_tomo_stopped();
}

/// What a box says of it below the figures, which are those of the rest.
QString Talvesk_MainWindows::leftOutBox(const QStringList& names) {
  if (names.isEmpty()) return {};
  return tr("Left out of the inversion:") + QLatin1Char('\n') + shortList(names);
}

void Talvesk_MainWindows::showInversion(const TomographyResult& result) {
  if (!result.status.ok()) {
    tellFailure(this, mLog, tr("The inversion could not be completed."), result.status);
  }
  if (result.iterationsDone == 0) return;
  mUi->tabWidget->setCurrentWidget(mUi->vtk_tab);
  const QStringList left = leftOutNames(leftOut(document(), document().result->excluded));
  QString outcome = tr("%n external iteration(s) completed.", nullptr, result.iterationsDone);
  if (!left.isEmpty()) {
    outcome += QLatin1Char(' ') + tr("Left out: %1.").arg(left.join(QStringLiteral("; ")));
  }
  statusBar()->showMessage(outcome, kMessageTime);
  if (result.misfit.count == 0) {
    if (!left.isEmpty()) showWarning(this, tr("Inversion results"), leftOutBox(left));
    return;
  }
  showNote(this, tr("Inversion results"), inversionResultsText(result), leftOutBox(left));
}

}  // namespace talvesk

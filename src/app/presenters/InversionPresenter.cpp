#include "app/presenters/InversionPresenter.h"

#include "app/BackgroundInversion.h"
#include "app/CommandLock.h"
#include "app/InversionTexts.h"
#include "app/LeftOutText.h"
#include "app/MessageText.h"
#include "app/Messages.h"
#include "app/dialogs/progressTomographyDialog.h"
#include "app/dialogs/runTomography_Dialog.h"
#include "app/presenters/ModelPresenter.h"
#include "io/Survey.h"
#include "model/GroundModel.h"
#include "model/LeftOut.h"
#include "model/TomographyOutcome.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/TravelTimePlot.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <chrono>

namespace talvesk {
namespace {

/// What a box says of it below the figures, which are those of the rest.
QString leftOutBox(const QStringList& names) {
  if (names.isEmpty()) return {};
  return Desk::tr("Left out of the inversion:") + QLatin1Char('\n') + shortList(names);
}

}  // namespace

void InversionPresenter::run() {
  const auto asked = std::chrono::steady_clock::now();
  if (!mDesk.document().picksComplete() &&
      !askYesNo(&mDesk.window, tr("Warning:"), tr("Uncomplete set of picks. \n \n"),
                tr("Do you want to run tomography inversion anyway? "), false)) {
    return;
  }
  runTomography_Dialog dialog(mDesk.document().model->minVelocity,
                              mDesk.document().model->maxVelocity, &mDesk.window);
  if (mDesk.document().model->grid == nullptr) {
    mDesk.log.write("grid does not exist; ask for parameter");
    if (!mModels.makeGrid()) return;
  }
  dialog.setStartingModel(startingModelOf(mDesk.document()));
  if (dialog.exec() != QDialog::Accepted) return;
  TomographyParameters parameters = dialog.parameters();
  parameters.asked = asked;
  const TomographyResult result = runBeside(parameters);
  if (mCloseAfterwards) {
    mCloseAfterwards = false;
    closeLater();
    return;
  }
  showResult(result);
}

/// The inversion works on a copy, and whatever could change the document is out of reach until it
/// is through; the views stay, to be looked at.
TomographyResult InversionPresenter::runBeside(const TomographyParameters& parameters) {
  BackgroundInversion inversion(mDesk.document(), parameters, mDesk.log);
  progressTomographyDialog progress(&mDesk.window);
  connect(&progress, &progressTomographyDialog::stopped, this, stopWanted);
  progress.setTotal(parameters.externalIterations);
  OpenEdit edit(mDesk.session, Edit::kInversion, true);
  mRunning = &inversion;
  mDesk.inversionRuns = true;
  mProgress = &progress;
  TomographyResult result;
  {
    const CommandLock lock(mDesk.window, {mDesk.ui.actionExit}, documentEditors());
    progress.show();
    mDesk.ui.statusBar->showMessage(tr("An inversion is under way; the survey cannot be edited."));
    result = inversion.run([&](const TomographyProgress& state, const TomoDocument& copy) {
      progress.addCompleted();
      progress.addMisfit(state);
      mDesk.tellUnlessDone(edit.preview([&](Survey& survey) {
        survey.document = copy;
        return Status();
      }));
    });
  }
  mRunning = nullptr;
  mDesk.inversionRuns = false;
  mProgress = nullptr;
  progress.hide();
  mDesk.ui.statusBar->clearMessage();
  mDesk.tellUnlessDone(edit.commit([&](Survey& survey) {
    if (result.iterationsDone > 0) survey.document = inversion.copy();
    // The limits are those that were asked for last, however the run has ended.
    const GroundModel& model = *survey.document.model;
    if (model.minVelocity != parameters.minVelocity ||
        model.maxVelocity != parameters.maxVelocity) {
      survey.document.model.edit().minVelocity = parameters.minVelocity;
      survey.document.model.edit().maxVelocity = parameters.maxVelocity;
    }
    return Status();
  }));
  return result;
}

/// The widgets through which the document can be edited.
std::vector<QWidget*> InversionPresenter::documentEditors() const {
  std::vector<QWidget*> widgets = {mDesk.ui.showAllPicksCB, mDesk.ui.show_filtered_cb,
                                   mDesk.ui.showSimTT_CB,   mDesk.ui.showTravelTimeCB,
                                   mDesk.ui.mainToolBar,    mDesk.ui.toolBar};
  for (editTravelTimesWidget* editor : mDesk.editors()) widgets.push_back(editor);
  for (TravelTimePlot* plot : mDesk.plots()) widgets.push_back(plot);
  return widgets;
}

void InversionPresenter::stop() {
  if (mRunning != nullptr) mRunning->requestStop();
  if (mProgress != nullptr) mProgress->showStopping();
}

/// While an inversion runs the window can only ask it to stop, and close when it has.
void InversionPresenter::askToStopAndClose() {
  if (mCloseAfterwards) return;  // it was asked and will be done
  const bool yes =
      askYesNo(&mDesk.window, tr("Tomography inversion"), tr("The inversion is still running."),
               tr("Do you want to stop it when the iteration under way is completed, "
                  "and close then?"),
               false);
  if (!yes) return;
  if (mRunning == nullptr) {  // it ended while the question was open
    closeLater();
    return;
  }
  mCloseAfterwards = true;
  stop();
}

void InversionPresenter::showResult(const TomographyResult& result) {
  if (!result.status.ok()) {
    mDesk.tellFailure(tr("The inversion could not be completed."), result.status);
  }
  if (result.iterationsDone == 0) return;
  mDesk.showSection();
  const QStringList left =
      leftOutNames(leftOut(mDesk.document(), mDesk.document().result->excluded));
  QString outcome = tr("%n external iteration(s) completed.", nullptr, result.iterationsDone);
  if (!left.isEmpty()) {
    outcome += QLatin1Char(' ') + tr("Left out: %1.").arg(left.join(QStringLiteral("; ")));
  }
  for (const Message& gone : result.runsGone) {
    outcome += QLatin1Char(' ') +
               tr("The list of inversion runs is full; \"%1\" has gone.").arg(textOf(gone));
  }
  mDesk.tell(outcome);
  if (result.misfit.count == 0) {
    if (!left.isEmpty()) showWarning(&mDesk.window, tr("Inversion results"), leftOutBox(left));
    return;
  }
  showNote(&mDesk.window, tr("Inversion results"), inversionResultsText(result), leftOutBox(left));
}

void InversionPresenter::closeLater() {
  QMetaObject::invokeMethod(&mDesk.window, &QWidget::close, Qt::QueuedConnection);
}

}  // namespace talvesk

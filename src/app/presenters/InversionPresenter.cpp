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
#include "app/presenters/SecondLookPresenter.h"
#include "io/Survey.h"
#include "model/ChiSquare.h"
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
  const Grid& grid = *mDesk.document().model->grid;
  dialog.setProposal(proposeRun(mDesk.document()), grid.righe() * grid.aLato());
  std::vector<GivenModel> given;
  const std::optional<GivenModel> layers =
      layersModel(mDesk.survey().interpretation->refractData, mDesk.document());
  if (layers) given.push_back(*layers);
  dialog.setSurvey(mDesk.document(), std::move(given));
  if (dialog.exec() != QDialog::Accepted) return;
  if (dialog.fits()) {
    FittedSettings settings = dialog.fitSettings();
    settings.asked = asked;
    fit(settings);
  } else {
    TomographyParameters parameters = dialog.parameters();
    parameters.asked = asked;
    invert(parameters);
  }
}

void InversionPresenter::invert(const TomographyParameters& parameters) {
  const TomographyResult result = runBeside(parameters);
  if (!closesAfterwards()) showResult(result);
}

void InversionPresenter::fit(const FittedSettings& settings) {
  const FittedRunResult result = fitBeside(settings);
  if (!closesAfterwards()) showFit(result);
}

/// The inversion works on a copy, and whatever could change the document is out of reach until it
/// is through; the views stay, to be looked at.
TomographyResult InversionPresenter::runBeside(const TomographyParameters& parameters) {
  BackgroundInversion inversion(mDesk.document(), mDesk.log);
  progressTomographyDialog progress(&mDesk.window);
  progress.setTotal(parameters.externalIterations);
  OpenEdit edit(mDesk.session, Edit::kInversion, true);
  TomographyResult result;
  beside(inversion, progress, [&] {
    result =
        inversion.run(parameters, [&](const TomographyProgress& state, const TomoDocument& copy) {
          progress.addCompleted();
          progress.addMisfit(state);
          mDesk.tellUnlessDone(edit.preview([&](Survey& survey) {
            survey.document = copy;
            return Status();
          }));
        });
  });
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

/// The same of a fit, which has nothing to show before it has ended. Its limits of the velocities
/// are its own, and the survey keeps those of the solver.
FittedRunResult InversionPresenter::fitBeside(const FittedSettings& settings) {
  BackgroundInversion inversion(mDesk.document(), mDesk.log);
  progressTomographyDialog progress(&mDesk.window);
  progress.beginFit(settings.fit.mostIterations);
  OpenEdit edit(mDesk.session, Edit::kInversion);
  FittedRunResult result;
  beside(inversion, progress, [&] {
    result =
        inversion.fit(settings, [&](const FittedRunProgress& state) { progress.addFit(state); })
            .fit;
  });
  if (!found(result)) return result;
  const bool done = mDesk.tellUnlessDone(edit.commit([&](Survey& survey) {
    survey.document = inversion.copy();
    return Status();
  }));
  if (!done) result = {};
  return result;
}

/// Runs an inversion with its progress in view while nothing can be edited.
void InversionPresenter::beside(BackgroundInversion& inversion, progressTomographyDialog& progress,
                                const std::function<void()>& work) {
  connect(&progress, &progressTomographyDialog::stopped, this, stopWanted);
  mRunning = &inversion;
  mDesk.inversionRuns = true;
  mProgress = &progress;
  {
    const CommandLock lock(mDesk.window, {mDesk.ui.actionExit, mDesk.ui.actionFind_command},
                           documentEditors());
    progress.show();
    mDesk.ui.statusBar->showMessage(tr("An inversion is under way; the survey cannot be edited."));
    work();
  }
  mRunning = nullptr;
  mDesk.inversionRuns = false;
  mProgress = nullptr;
  progress.hide();
  mDesk.ui.statusBar->clearMessage();
}

bool InversionPresenter::closesAfterwards() {
  if (!mCloseAfterwards) return false;
  mCloseAfterwards = false;
  closeLater();
  return true;
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
  QStringList left;
  const QString completed =
      tr("%n external iteration(s) completed.", nullptr, result.iterationsDone);
  if (!tellOutcome(result, result.iterationsDone > 0, completed, left)) return;
  if (result.misfit.count == 0) {
    if (!left.isEmpty()) showWarning(&mDesk.window, tr("Inversion results"), leftOutBox(left));
    return;
  }
  showNote(&mDesk.window, tr("Inversion results"), inversionResultsText(result, mDesk.document()),
           leftOutBox(left));
}

void InversionPresenter::showFit(const FittedRunResult& result) {
  QStringList left;
  if (!tellOutcome(result.run, found(result), textOf(result.outcome), left)) return;
  showNote(&mDesk.window, tr("Inversion results"), fitResultsText(result, mDesk.document()),
           leftOutBox(left));
  mSecondLook.showIfAny();
}

/// Shows the section that was found, if there is one, and says so in the status bar.
/// \param left out: what took no part \return false when there is nothing to show
bool InversionPresenter::tellOutcome(const TomographyResult& result, bool hasSection,
                                     const QString& completed, QStringList& left) {
  if (!result.status.ok()) {
    mDesk.tellFailure(tr("The inversion could not be completed."), result.status);
  }
  if (!hasSection) {
    if (result.status.ok()) {
      mDesk.tell(tr("Stopped before anything was found; the section is as it was."));
    }
    return false;
  }
  mDesk.showSection();
  left = leftOutNames(leftOut(mDesk.document(), mDesk.document().result->excluded));
  QString outcome = completed;
  if (!left.isEmpty()) {
    outcome += QLatin1Char(' ') + tr("Left out: %1.").arg(left.join(QStringLiteral("; ")));
  }
  for (const Message& gone : result.runsGone) {
    outcome += QLatin1Char(' ') +
               tr("The list of inversion runs is full; \"%1\" has gone.").arg(textOf(gone));
  }
  mDesk.tell(outcome);
  return true;
}

void InversionPresenter::closeLater() {
  QMetaObject::invokeMethod(&mDesk.window, &QWidget::close, Qt::QueuedConnection);
}

}  // namespace talvesk

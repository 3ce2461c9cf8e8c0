#include "app/presenters/ModelPresenter.h"

#include "app/Messages.h"
#include "app/WaitCursor.h"
#include "app/dialogs/gridDialog.h"
#include "app/dialogs/select_speed_Dialog.h"
#include "app/dialogs/smoothingDialog.h"
#include "app/presenters/GeometryPresenter.h"
#include "grid/GridBuilder.h"
#include "io/Survey.h"
#include "model/GroundModel.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"
#include "tomo/ForwardPass.h"
#include "tomo/GridSetup.h"
#include "ui_Talvesk_MainWindows.h"

#include <QEventLoop>
#include <QThread>
#include <memory>

namespace talvesk {

bool ModelPresenter::makeGrid() {
  SurveyProfile profile;
  GridSettings settings = proposedGrid(profile);
  while (!profile.hasGeometry()) {
    showUrgentWarning(
        &mDesk.window, tr("Warning"),
        tr("Geophones do not have geometry! \n") + tr("Please set the position of geophones\n"));
    if (!mGeometry.ask()) return false;
    settings = proposedGrid(profile);
  }
  gridDialog dialog(mDesk.document(), profile, settings, searchThreads(), &mDesk.window);
  while (dialog.exec() == QDialog::Accepted) {
    if (isPresent(profile, dialog.settings()) && !askForSameGrid()) return true;
    const Status status = whileWaiting([&] {
      return mDesk.session.apply(Edit::kGrid, [&](Survey& survey) {
        return setUpGrid(survey.document, dialog.settings(), mDesk.log);
      });
    });
    if (status.ok()) {
      mDesk.showSection();
      mDesk.tell(tr("Grid of %1 rows and %2 columns built.")
                     .arg(mDesk.document().model->grid->righe())
                     .arg(mDesk.document().model->grid->col()));
      return true;
    }
    mDesk.tellFailure(tr("The grid could not be built."), status);
  }
  return false;
}

/// What is proposed first stays the proposal, whether or not a grid is built.
GridSettings ModelPresenter::proposedGrid(SurveyProfile& profile) {
  GridSettings settings;
  mDesk.session.amend(
      [&](Survey& survey) { settings = proposeGrid(survey.document, profile, mDesk.log); });
  return settings;
}

/// Whether a grid of these settings would have the cells that there are.
bool ModelPresenter::isPresent(const SurveyProfile& profile, const GridSettings& settings) const {
  if (mDesk.document().model->grid == nullptr) return false;
  const GridSize wanted =
      gridSizeFor(profile.arrayLength, settings.maxDepth, settings.cellSize, settings.nodes);
  const GridSize& present = mDesk.document().model->grid->geometry().size();
  return wanted.righe == present.righe && wanted.col == present.col && wanted.nV == present.nV &&
         wanted.aLato == present.aLato;
}

/// Leaving a dialog as it came changes nothing, unless that is wanted.
bool ModelPresenter::askForSameGrid() {
  return askYesNo(&mDesk.window, tr("Warning"), tr("The grid has these cells already."),
                  tr("Do you want to build it anew, with the default velocities?"), false);
}

void ModelPresenter::defineVelocity() {
  TomoDocument work = mDesk.document();
  if (select_speed_Dialog(work, &mDesk.window).exec() != QDialog::Accepted) return;
  if (!mDesk.edit(Edit::kStartingModel, [&](Survey& survey) { survey.document = work; })) return;
  mDesk.showSection();
  mDesk.tell(tr("The grid has the velocities of the layers."));
}

void ModelPresenter::smooth() {
  smoothingDialog dialog(mDesk.document().result->has_tomographic_info ? SmoothingType::kRayBased
                                                                       : SmoothingType::kUniform,
                         &mDesk.window);
  if (dialog.exec() != QDialog::Accepted) return;
  const Status status = smoothBeside(dialog);
  if (!status.ok()) {
    mDesk.tellFailure(tr("The grid could not be smoothed."), status);
    return;
  }
  mDesk.showSection();
  mDesk.tell(tr("The velocities of the grid are smoothed."));
}

/// Tracing the smoothed section takes as long as a pass of an inversion: a thread works on a copy
/// while the window goes on drawing itself.
Status ModelPresenter::smoothBeside(const smoothingDialog& dialog) {
  const WaitCursor waiting;
  TomoDocument copy = mDesk.document();
  Status status;
  const std::unique_ptr<QThread> thread(QThread::create([&] {
    status = smoothGrid(copy, dialog.type(), dialog.radius(), dialog.symmetric(), mDesk.log);
  }));
  QEventLoop loop;
  connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
  mDesk.ui.statusBar->showMessage(tr("Smoothing, and tracing rays anew ..."));
  thread->start();
  loop.exec(QEventLoop::ExcludeUserInputEvents);
  thread->wait();
  mDesk.ui.statusBar->clearMessage();
  if (!status.ok()) return status;
  return mDesk.session.apply(Edit::kSmoothing, [&](Survey& survey) {
    survey.document = std::move(copy);
    return Status();
  });
}

}  // namespace talvesk

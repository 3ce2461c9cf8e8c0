#include "app/Messages.h"
#include "app/Outcomes.h"
#include "app/Talvesk_MainWindows.h"
#include "app/WaitCursor.h"
#include "app/gridDialog.h"
#include "app/select_speed_Dialog.h"
#include "app/smoothingDialog.h"
#include "grid/GridBuilder.h"
#include "model/GroundModel.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"
#include "tomo/ForwardPass.h"
#include "tomo/GridSetup.h"
#include "ui_Talvesk_MainWindows.h"

#include <QApplication>
#include <QEventLoop>
#include <QStatusBar>
#include <QThread>
#include <memory>

// The commands that make and change the model of the ground: grid, starting model, smoothing.

namespace talvesk {

void Talvesk_MainWindows::on_actionGrid_triggered() {
  logSlot(__func__);
  makeGrid();
}

/// Asks for a grid and builds it; without geometry asks for that first, as long as the user gives
/// one. False when there is no grid as the user wants it.
bool Talvesk_MainWindows::makeGrid() {
  SurveyProfile profile;
  GridSettings settings = proposedGrid(profile);
  while (!profile.hasGeometry()) {
    showUrgentWarning(
        this, tr("Warning"),
        tr("Geophones do not have geometry! \n") + tr("Please set the position of geophones\n"));
    if (!askGeometry()) return false;
    settings = proposedGrid(profile);
  }
  gridDialog dialog(document(), profile, settings, searchThreads(), this);
  while (dialog.exec() == QDialog::Accepted) {
    if (isPresentGrid(profile, dialog.settings()) && !askForSameGrid()) return true;
    const Status status = whileWaiting([&] {
      return mSession.apply(Edit::kGrid, [&](Survey& survey) {
        return setUpGrid(survey.document, dialog.settings(), mLog);
      });
    });
    if (status.ok()) {
      mUi->tabWidget->setCurrentWidget(mUi->vtk_tab);
      statusBar()->showMessage(tr("Grid of %1 rows and %2 columns built.")
                                   .arg(document().model->grid->righe())
                                   .arg(document().model->grid->col()),
                               kMessageTime);
      return true;
    }
    tellFailure(this, mLog, tr("The grid could not be built."), status);
  }
  return false;
}

/// What is proposed first stays the proposal, whether or not a grid is built.
GridSettings Talvesk_MainWindows::proposedGrid(SurveyProfile& profile) {
  GridSettings settings;
  mSession.amend([&](Survey& survey) { settings = proposeGrid(survey.document, profile, mLog); });
  return settings;
}

/// Whether a grid of these settings would have the cells that there are.
bool Talvesk_MainWindows::isPresentGrid(const SurveyProfile& profile,
                                        const GridSettings& settings) const {
  if (document().model->grid == nullptr) return false;
  const GridSize wanted =
      gridSizeFor(profile.arrayLength, settings.maxDepth, settings.cellSize, settings.nodes);
  const GridSize& present = document().model->grid->geometry().size();
  return wanted.righe == present.righe && wanted.col == present.col && wanted.nV == present.nV &&
         wanted.aLato == present.aLato;
}

/// Leaving a dialog as it came changes nothing, unless that is wanted.
bool Talvesk_MainWindows::askForSameGrid() {
  return askYesNo(this, tr("Warning"), tr("The grid has these cells already."),
                  tr("Do you want to build it anew, with the default velocities?"), false);
}

void Talvesk_MainWindows::on_actionDefine_model_velocity_triggered() {
  logSlot(__func__);
  TomoDocument work = document();
  if (select_speed_Dialog(work, this).exec() != QDialog::Accepted) return;
  edit(Edit::kStartingModel, [&](Survey& survey) { survey.document = work; });
  mUi->tabWidget->setCurrentWidget(mUi->vtk_tab);
  statusBar()->showMessage(tr("The grid has the velocities of the layers."), kMessageTime);
}

void Talvesk_MainWindows::on_actionApply_smoothing_triggered() {
  logSlot(__func__);
  smoothingDialog dialog(
      document().result->has_tomographic_info ? SmoothingType::kRayBased : SmoothingType::kUniform,
      this);
  if (dialog.exec() != QDialog::Accepted) return;
  const Status status = smoothBeside(dialog);
  if (!status.ok()) {
    tellFailure(this, mLog, tr("The grid could not be smoothed."), status);
    return;
  }
  mUi->tabWidget->setCurrentWidget(mUi->vtk_tab);
  statusBar()->showMessage(tr("The velocities of the grid are smoothed."), kMessageTime);
}

/// Tracing the smoothed section takes as long as a pass of an inversion: a thread works on a copy
/// while the window goes on drawing itself.
Status Talvesk_MainWindows::smoothBeside(const smoothingDialog& dialog) {
  const WaitCursor waiting;
  TomoDocument copy = document();
  Status status;
  const std::unique_ptr<QThread> thread(QThread::create([&] {
    status = smoothGrid(copy, dialog.type(), dialog.radius(), dialog.symmetric(), mLog);
  }));
  QEventLoop loop;
  connect(thread.get(), &QThread::finished, &loop, &QEventLoop::quit);
  statusBar()->showMessage(tr("Smoothing, and tracing rays anew ..."));
  thread->start();
  loop.exec(QEventLoop::ExcludeUserInputEvents);
  thread->wait();
  statusBar()->clearMessage();
  if (!status.ok()) return status;
  return mSession.apply(Edit::kSmoothing, [&](Survey& survey) {
    survey.document = std::move(copy);
    return Status();
  });
}

void Talvesk_MainWindows::refreshTomographyCommands() {
  const bool survey = !document().ttArray.empty();
  const bool cells = document().model->grid && document().model->grid->cellCount() > 0;
  mUi->actionGrid->setEnabled(survey || !document().line->goephonesStringSet.empty());
  mUi->actionDefine_model_velocity->setEnabled(cells);
  mUi->actionRun_tomography_inversion->setEnabled(survey);
  mUi->actionApply_smoothing->setEnabled(cells);
}

}  // namespace talvesk

#include "app/Outcomes.h"
#include "app/Talvesk_MainWindows.h"
#include "figures/TravelTimeFigure.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/TravelTimePlot.h"
#include "widgets/editTravelTimesWidget.h"

namespace talvesk {

std::array<TravelTimePlot*, 2> Talvesk_MainWindows::plots() const {
  return {mUi->travelTimePreview, mUi->travelTimeCurves};
}

void Talvesk_MainWindows::connectPlots() {
  mUi->travelTimePreview->setRole(TravelTimePlot::Role::CurrentShot);
  mUi->travelTimeCurves->setRole(TravelTimePlot::Role::AllShots);
  for (TravelTimePlot* plot : plots()) {
    plot->setDocument(&document());
    // A pick dragged in a plot is undone with the others, so the trace view makes the edit.
    plot->setEditor([this](int shot, int trace, double seconds) {
      mUi->showTracesWidget->editPick(shot, trace, seconds);
    });
    connect(plot, &TravelTimePlot::shotChosen, this, &Talvesk_MainWindows::showFile);
    connect(plot, &TravelTimePlot::exportRequested, this, &Talvesk_MainWindows::exportCurves);
  }
}

void Talvesk_MainWindows::refreshPlots() {
  for (TravelTimePlot* plot : plots()) {
    plot->refresh();
    plot->setCurrentShot(mCurrentFile);
  }
  mUi->travelTimePreview->setShowComputed(mUi->showSimTT_CB->isChecked());
}

void Talvesk_MainWindows::exportCurves() {
  logSlot(__func__);
  const QString file = askForExport(tr("Save travel-time curves"),
                                    tr("Pictures (*.png *.svg *.pdf);;All Files (*)"), "png");
  if (file.isEmpty()) return;
  TravelTimeFigureOptions options;
  options.computed = mUi->travelTimeCurves->showsComputed();
  if (const Status status = writeTravelTimeFigure(document(), options, file.toStdString());
      !status.ok()) {
    tellFailure(this, mLog, tr("The picture has not been saved."), status);
    return;
  }
  mUi->statusBar->showMessage(tr("Picture saved in %1").arg(file), kMessageTime);
}

}  // namespace talvesk

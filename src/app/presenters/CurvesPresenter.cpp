#include "app/presenters/CurvesPresenter.h"

#include "app/LayeredModel.h"
#include "app/presenters/FileExport.h"
#include "figures/TravelTimeFigure.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/TravelTimePlot.h"
#include "widgets/traces/TraceViewOptions.h"
#include "widgets/traces/editTravelTimesWidget.h"

namespace talvesk {

CurvesPresenter::CurvesPresenter(Desk& desk, LayeredModel& layered)
    : mDesk(desk), mLayered(layered) {
  desk.ui.travelTimePreview->setRole(TravelTimePlot::Role::CurrentShot);
  desk.ui.travelTimeCurves->setRole(TravelTimePlot::Role::AllShots);
  for (TravelTimePlot* plot : desk.plots()) {
    plot->setDocument(&desk.document());
    // A pick dragged in a plot is undone with the others, so the trace view makes the edit.
    plot->setEditor([&traces = *desk.ui.showTracesWidget](int shot, int trace, double seconds) {
      traces.editPick(shot, trace, seconds);
    });
    connect(plot, &TravelTimePlot::shotChosen, &desk.shot, &ShotInView::show);
    connect(plot, &TravelTimePlot::exportRequested, this, &CurvesPresenter::exportPicture);
  }
  connect(desk.ui.travelTimeCurves, &TravelTimePlot::layeredToggled, this,
          &CurvesPresenter::followLayers);
  connect(&layered, &LayeredModel::found, this, &CurvesPresenter::takeLayers);
  connect(&desk.shot, &ShotInView::changed, this, &CurvesPresenter::refresh);
  mSubscription = desk.session.subscribe([this](const SurveyChange& change) {
    if (change.kind == SurveyChange::Kind::kOpened) {
      for (TravelTimePlot* plot : mDesk.plots()) plot->setDocument(&mDesk.document());
    }
    followLayers();
    if (!change.parts.has(Part::kGeometry) && !change.parts.has(Part::kResult)) return;
    refresh();
  });
}

void CurvesPresenter::refresh() {
  for (TravelTimePlot* plot : mDesk.plots()) {
    plot->refresh();
    plot->setCurrentShot(mDesk.shot.index());
  }
  mDesk.ui.travelTimePreview->setShowComputed(mDesk.settings.showComputedTimes &&
                                              mDesk.document().result->has_tomographic_info);
}

void CurvesPresenter::followLayers() {
  TravelTimePlot& plot = *mDesk.ui.travelTimeCurves;
  const bool possible = mLayered.isOfPicks();
  plot.setLayeredPossible(possible);
  plot.setLayered(mLayered.fit() != nullptr ? mLayered.fit()->times
                                            : std::vector<std::vector<double>>());
  if (possible && plot.showsLayered()) mLayered.find();
}

void CurvesPresenter::takeLayers() {
  TravelTimePlot& plot = *mDesk.ui.travelTimeCurves;
  if (mLayered.fit()->times.empty() && plot.showsLayered()) {
    mDesk.tell(tr("There are no times through the layers: build the profiles anew."));
    plot.setShowLayered(false);
  }
  followLayers();
}

void CurvesPresenter::exportPicture() {
  mDesk.logSlot("exportCurves");
  const QString file = askForExport(mDesk, tr("Save travel-time curves"),
                                    tr("Pictures (*.png *.svg *.pdf);;All Files (*)"), "png");
  if (file.isEmpty()) return;
  TravelTimeFigureOptions options;
  options.computed = mDesk.ui.travelTimeCurves->showsComputed();
  options.errorBars = mDesk.ui.travelTimeCurves->showsErrorBars();
  if (mDesk.ui.travelTimeCurves->showsLayered()) {
    options.layered = mDesk.ui.travelTimeCurves->layered();
  }
  if (const Status status = writeTravelTimeFigure(mDesk.document(), options, file.toStdString());
      !status.ok()) {
    mDesk.tellFailure(tr("The picture has not been saved."), status);
    return;
  }
  mDesk.tell(tr("Picture saved in %1").arg(file));
}

}  // namespace talvesk

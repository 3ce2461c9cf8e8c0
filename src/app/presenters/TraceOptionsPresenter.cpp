#include "app/presenters/TraceOptionsPresenter.h"

#include "ui_Talvesk_MainWindows.h"
#include "widgets/TravelTimePlot.h"
#include "widgets/traces/TraceViewOptions.h"
#include "widgets/traces/editTravelTimesWidget.h"

namespace talvesk {
namespace {

constexpr double kGainStep = 1.5;

}  // namespace

TraceOptionsPresenter::TraceOptionsPresenter(Desk& desk)
    : mDesk(desk), mSubscription(desk.session.subscribe([this](const SurveyChange& change) {
        // Whoever makes a filtered copy turns the views over to it.
        if (change.parts.has(Part::kRecordings)) refresh();
      })) {}

void TraceOptionsPresenter::refresh() {
  change([&settings = mDesk.settings](TraceViewOptions& view) {
    view.fillWiggle = settings.fillWiggle;
    view.zoomIn = settings.zoomIn;
    view.cutHorizontal = settings.cutHorizontal;
    view.showFiltered = settings.showFiltered;
    view.showAllTraces = settings.showAllTraces;
    view.twoColors = settings.twoColors;
    view.errorBars = settings.errorBars;
    view.showComputedTimes = settings.showComputedTimes;
    view.showNeighbour = settings.showNeighbour;
    view.showReciprocal = settings.showReciprocalTimes;
  });
  for (TravelTimePlot* plot : mDesk.plots()) plot->setErrorBars(mDesk.settings.errorBars);
}

void TraceOptionsPresenter::change(const std::function<void(TraceViewOptions&)>& change) {
  for (editTravelTimesWidget* editor : mDesk.editors()) {
    TraceViewOptions options = editor->options();
    change(options);
    editor->setOptions(options);
  }
}

void TraceOptionsPresenter::setSetting(bool Settings::*setting, bool on) {
  mDesk.settings.*setting = on;
  refresh();
  mDesk.saveSettings();
}

void TraceOptionsPresenter::setOption(bool TraceViewOptions::*option, bool on) {
  change([=](TraceViewOptions& view) { view.*option = on; });
}

void TraceOptionsPresenter::setTrueAmplitudes(bool on) {
  change([=](TraceViewOptions& view) {
    view.normalise = on ? TraceNormalise::WholeShot : TraceNormalise::EachTrace;
  });
}

void TraceOptionsPresenter::setOnlyTraces(bool on) {
  setOption(&TraceViewOptions::showOnlyTraces, on);
  mDesk.ui.travelTimePreview->setVisible(!on);
}

void TraceOptionsPresenter::gainUp() {
  change([](TraceViewOptions& view) { view.gain *= kGainStep; });
}

void TraceOptionsPresenter::gainDown() {
  change([](TraceViewOptions& view) { view.gain /= kGainStep; });
}

void TraceOptionsPresenter::setSnap(PickSnap snap) {
  change([=](TraceViewOptions& view) { view.snap = snap; });
}

void TraceOptionsPresenter::setTool(TraceTool tool) {
  for (editTravelTimesWidget* editor : mDesk.editors()) editor->setTool(tool);
}

}  // namespace talvesk

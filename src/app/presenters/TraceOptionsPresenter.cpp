#include "app/presenters/TraceOptionsPresenter.h"

#include "base/LengthUnit.h"
#include "model/GatherParameters.h"
#include "ui_Talvesk_MainWindows.h"
#include "widgets/TravelTimePlot.h"
#include "widgets/traces/TraceViewOptions.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <QInputDialog>
#include <cmath>

namespace talvesk {
namespace {

constexpr double kGainStep = 1.5;
constexpr double kVelocityStep = 50.0;  ///< of the unit shown
constexpr double kExponentStep = 0.25;

void setNumber(QInputDialog& box, const Parameter<double>::Limits& limits, double value,
               double step) {
  box.setInputMode(QInputDialog::DoubleInput);
  box.setDoubleDecimals(limits.decimals);
  box.setDoubleRange(limits.least, limits.most);
  box.setDoubleStep(step);
  box.setDoubleValue(value);
}

}  // namespace

TraceOptionsPresenter::TraceOptionsPresenter(Desk& desk)
    : mDesk(desk), mSubscription(desk.session.subscribe([this](const SurveyChange& change) {
        // Whoever makes a filtered copy turns the views over to it.
        if (change.parts.has(Part::kRecordings)) refresh();
      })) {
  for (editTravelTimesWidget* editor : desk.editors()) {
    connect(editor, &editTravelTimesWidget::reductionWanted, this,
            &TraceOptionsPresenter::askReduction);
    connect(editor, &editTravelTimesWidget::timeGainWanted, this,
            &TraceOptionsPresenter::askTimeGain);
  }
}

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

void TraceOptionsPresenter::setByDistance(bool on) {
  change([=](TraceViewOptions& view) {
    view.byDistance = on;
    view.manner.byOffset = OffsetOrder::kNone;
  });
}

std::optional<double> TraceOptionsPresenter::ask(
    QInputDialog& box, const std::function<void(GatherManner&, double)>& change) {
  editTravelTimesWidget& view = *mDesk.ui.showTracesWidget;
  const TraceViewOptions before = view.options();
  const auto show = [&](double value) {
    TraceViewOptions options = before;
    change(options.manner, value);
    view.setOptions(options);
  };
  show(box.doubleValue());
  connect(&box, &QInputDialog::doubleValueChanged, this, show);
  const bool chosen = box.exec() == QDialog::Accepted;
  view.setOptions(before);
  return chosen ? std::optional(box.doubleValue()) : std::nullopt;
}

void TraceOptionsPresenter::askReduction() {
  editTravelTimesWidget& view = *mDesk.ui.showTracesWidget;
  Parameter<double>::Limits limits = parameters::kReduction.limits;
  limits.least = shownLength(limits.least);
  limits.most = shownLength(limits.most);
  const double velocity = view.proposedReduction();
  QInputDialog box(&mDesk.window);
  box.setWindowTitle(tr("Reduced time"));
  box.setLabelText(tr("Velocity V of t - |x|/V (%1):").arg(QLatin1String(velocityUnitName())));
  const double offered = std::round(shownLength(velocity));
  setNumber(box, limits, offered, kVelocityStep);
  // What is left as it was offered stays the velocity that it was rounded from.
  const auto meant = [=](double shown) { return shown == offered ? velocity : metresOf(shown); };
  const auto chosen =
      ask(box, [=](GatherManner& manner, double shown) { manner.reduction = meant(shown); });
  if (chosen) view.setReduction(meant(*chosen));
}

void TraceOptionsPresenter::askTimeGain() {
  editTravelTimesWidget& view = *mDesk.ui.showTracesWidget;
  const double exponent = view.options().manner.timeGain;
  QInputDialog box(&mDesk.window);
  box.setWindowTitle(tr("Gain with time"));
  box.setLabelText(tr("Exponent n of t^n, 0 for none:"));
  setNumber(box, parameters::kTimeGain.limits,
            exponent > 0.0 ? exponent : parameters::kTimeGain.initial, kExponentStep);
  const auto chosen = ask(box, [](GatherManner& manner, double value) { manner.timeGain = value; });
  if (chosen) view.setTimeGain(*chosen);
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

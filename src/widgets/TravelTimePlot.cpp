#include "widgets/TravelTimePlot.h"

#include "figures/FigureWords.h"
#include "figures/ShownLength.h"
#include "model/TomoDocument.h"
#include "widgets/TravelTimePlot_state.h"
#include "widgets/traces/TraceColors.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QToolButton>
#include <algorithm>
#include <utility>

#include <qwt_graphic.h>
#include <qwt_plot.h>
#include <qwt_plot_item.h>

namespace talvesk {
namespace {

constexpr QSize kIcon(22, 12);

QIcon iconOf(const QwtPlotItem& item) {
  return QIcon(item.legendIcon(0, kIcon).toPixmap());
}

}  // namespace

void TravelTimePlot::State::build() {
  widget.canvas()->setObjectName(QStringLiteral("travelTimeCanvas"));
  measured = travel_time_items::measured(curves.curves, look);
  computed = travel_time_items::computed(curves.curves, look);
  layered = travel_time_items::layered(curves.curves, look);
  shots = travel_time_items::shots(curves.curves, look);
  for (QwtPlotItem* item : {measured, computed, layered, shots}) widget.add(item);
  buildLegend();
  widget.addBelow(bar);
}

void TravelTimePlot::State::buildLegend() {
  bar = new QWidget(&widget);
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(8, 2, 8, 6);
  measuredBox = new QCheckBox(bar);
  computedBox = new QCheckBox(bar);
  layeredBox = new QCheckBox(bar);
  for (QCheckBox* box : {measuredBox, computedBox, layeredBox}) {
    box->setChecked(box != layeredBox);
    box->setIconSize(kIcon);
    row->addWidget(box);
  }
  measuredBox->setObjectName(QStringLiteral("measuredBox"));
  computedBox->setObjectName(QStringLiteral("computedBox"));
  layeredBox->setObjectName(QStringLiteral("layeredBox"));
  layeredBox->setEnabled(layeredPossible);
  shotIcon = new QLabel(bar);
  shotLabel = new QLabel(bar);
  row->addWidget(shotIcon);
  row->addWidget(shotLabel);
  currentLabel = new QLabel(bar);
  currentLabel->setObjectName(QStringLiteral("currentLabel"));
  currentLabel->setTextFormat(Qt::PlainText);
  row->addWidget(currentLabel, 1, Qt::AlignCenter);
  fitButton = new QToolButton(bar);
  exportButton = new QToolButton(bar);
  exportButton->setObjectName(QStringLiteral("exportButton"));
  for (QToolButton* button : {fitButton, exportButton}) {
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    button->setFocusPolicy(Qt::StrongFocus);
    row->addWidget(button);
  }
  connect(measuredBox, &QCheckBox::toggled, &widget, &TravelTimePlot::setShowMeasured);
  connect(computedBox, &QCheckBox::toggled, &widget, &TravelTimePlot::setShowComputed);
  connect(layeredBox, &QCheckBox::toggled, &widget, &TravelTimePlot::setShowLayered);
  connect(fitButton, &QToolButton::clicked, &widget, &TravelTimePlot::fit);
  connect(exportButton, &QToolButton::clicked, &widget, &TravelTimePlot::exportRequested);
}

void TravelTimePlot::dress() {
  PlotPage::dress();
  State& s = *mState;
  const TraceColors colors = traceColors(palette(), false);
  s.look.ground = colors.background;
  s.look.icons = colors.text;
  s.measuredBox->setIcon(iconOf(*s.measured));
  s.computedBox->setIcon(iconOf(*s.computed));
  s.layeredBox->setIcon(iconOf(*s.layered));
  s.shotIcon->setPixmap(iconOf(*s.shots).pixmap(kIcon));
  repaintPlot();
}

void TravelTimePlot::retranslate() {
  State& s = *mState;
  setAccessibleName(tr("Travel-time curves"));
  setEmptyText(
      tr("No travel times yet.\n\nPick first breaks in the traces, by hand or with AutoPick, or "
         "import travel times."));
  setTexts({}, tr("Distance [%1]").arg(lengthUnitText()), tr("Time [ms]"));
  s.measuredBox->setText(tr("&Measured"));
  s.computedBox->setText(tr("&Computed"));
  s.layeredBox->setText(tr("&Layers"));
  s.describeLayered();
  s.shotLabel->setText(tr("Shots"));
  s.fitButton->setText(tr("&Fit"));
  s.fitButton->setToolTip(tr("Show all curves"));
  s.exportButton->setText(tr("Export &picture..."));
  s.exportButton->setToolTip(tr("Save the curves as PNG, SVG or PDF"));
  s.describeCurrent();
}

void TravelTimePlot::State::readDocument() {
  curves =
      document == nullptr ? TravelTimeCurves() : travelTimeCurves(*document, true, layeredTimes);
  const auto count = document == nullptr ? 0 : static_cast<int>(document->ttArray.size());
  if (current >= count) current = -1;
  look.current = current < 0 ? TravelTimeLook::kNone : static_cast<std::size_t>(current);
  hovered.reset();
  computedBox->setEnabled(curves.computedTimes > 0);
  followVisibility();
  describeCurrent();
}

/// Lines through the picks would hide computed ones close to them.
void TravelTimePlot::State::followVisibility() {
  const bool computedLines = computedShown && curves.computedTimes > 0;
  const bool layeredLines = layeredShown && curves.layeredTimes > 0;
  const bool lines = computedLines || layeredLines;
  if (look.joined == lines) {
    look.joined = !lines;
    measuredBox->setIcon(iconOf(*measured));
  }
  measured->setVisible(measuredShown);
  computed->setVisible(computedLines);
  layered->setVisible(layeredLines);
  const double latest = curves.latestMs > 0.0 ? curves.latestMs : 1e3;
  widget.setWhole({curves.low, 0.0, curves.high - curves.low, latest}, curves.curves.empty());
}

void TravelTimePlot::State::describeLayered() {
  layeredBox->setEnabled(layeredPossible);
  layeredBox->setToolTip(
      layeredPossible
          ? TravelTimePlot::tr("Times computed through the layers of the refraction interpretation")
          : TravelTimePlot::tr("There are no layers of these picks: build the profiles of the "
                               "refraction interpretation (anew)."));
}

void TravelTimePlot::State::describeCurrent() {
  QString text;
  if (curveOf(current) != nullptr) {
    const double x = document->ttArray[static_cast<std::size_t>(current)].shotPos2d.x;
    text = TravelTimePlot::tr("Shot %1 at %2")
               .arg(current + 1)
               .arg(withLengthUnit(QLocale().toString(shownLength(x), 'f', 1)));
    const PickGrades grades = gradesOf(document->ttArray[static_cast<std::size_t>(current)]);
    if (grades.any()) text += QStringLiteral(": ") + FigureWords::grades(grades);
  } else if (current >= 0) {
    text = TravelTimePlot::tr("Shot %1 has no travel times yet").arg(current + 1);
  } else {
    text = TravelTimePlot::tr("Click a curve to choose its shot");
  }
  currentLabel->setText(text);
  widget.setAccessibleDescription(text);
}

void TravelTimePlot::State::chooseShot(int shot) {
  if (shot == current) return;
  widget.setCurrentShot(shot);
  emit widget.shotChosen(shot);
}

void TravelTimePlot::State::walk(int steps) {
  const auto& all = curves.curves;
  if (all.empty()) return;
  const auto at = std::find_if(all.begin(), all.end(), [this](const TravelTimeCurve& curve) {
    return static_cast<int>(curve.record) >= current;
  });
  auto index = static_cast<int>(at - all.begin());
  const bool here = at != all.end() && static_cast<int>(at->record) == current;
  if (steps < 0 || here) index += steps;
  index = std::clamp(index, 0, static_cast<int>(all.size()) - 1);
  chooseShot(static_cast<int>(all[static_cast<std::size_t>(index)].record));
}

TravelTimePlot::TravelTimePlot(QWidget* parent)
    : PlotPage(parent), mState(std::make_unique<State>(*this)) {
  mState->build();
  retranslate();
  dress();
  mState->readDocument();
}

TravelTimePlot::~TravelTimePlot() {
  plot().detachItems();  // they look at the curves
}

void TravelTimePlot::setRole(Role role) {
  mState->role = role;
  mState->look.othersFaint = role == Role::CurrentShot;
  mState->bar->setVisible(role == Role::AllShots);
  repaintPlot();
}

TravelTimePlot::Role TravelTimePlot::role() const {
  return mState->role;
}

void TravelTimePlot::setDocument(const TomoDocument* document) {
  State& s = *mState;
  gestures().giveUpDrag();
  gestures().viewport().clearHistory();
  gestures().viewport().followHome();
  s.document = document;
  s.current = -1;
  s.highlighted = -1;
  s.layeredTimes.clear();
  s.readDocument();
}

int TravelTimePlot::currentShot() const {
  return mState->current;
}

void TravelTimePlot::setEditor(EditPick edit) {
  mState->edit = std::move(edit);
}

void TravelTimePlot::setHighlightedTrace(int trace) {
  if (mState->highlighted == trace) return;
  mState->highlighted = trace;
  repaintLive();
}

bool TravelTimePlot::showsComputed() const {
  return mState->computedShown;
}

bool TravelTimePlot::showsLayered() const {
  return mState->layeredShown;
}

const std::vector<std::vector<double>>& TravelTimePlot::layered() const {
  return mState->layeredTimes;
}

void TravelTimePlot::setLayered(std::vector<std::vector<double>> times) {
  if (times.empty() && mState->layeredTimes.empty()) return;
  mState->layeredTimes = std::move(times);
  mState->readDocument();
}

void TravelTimePlot::setLayeredPossible(bool possible) {
  mState->layeredPossible = possible;
  mState->describeLayered();
}

bool TravelTimePlot::isEmpty() const {
  return mState->curves.curves.empty();
}

void TravelTimePlot::setCurrentShot(int shot) {
  State& s = *mState;
  if (shot != s.current) {
    gestures().giveUpDrag();
    s.highlighted = -1;
  }
  s.current = std::max(shot, -1);
  s.readDocument();
}

void TravelTimePlot::refresh() {
  mState->readDocument();
}

void TravelTimePlot::setShowMeasured(bool show) {
  mState->measuredShown = show;
  mState->measuredBox->setChecked(show);
  mState->followVisibility();
}

bool TravelTimePlot::showsErrorBars() const {
  return mState->look.errorBars;
}

void TravelTimePlot::setErrorBars(bool show) {
  if (mState->look.errorBars == show) return;
  mState->look.errorBars = show;
  repaintPlot();
}

void TravelTimePlot::setShowComputed(bool show) {
  mState->computedShown = show;
  mState->computedBox->setChecked(show);
  mState->followVisibility();
}

void TravelTimePlot::setShowLayered(bool show) {
  if (mState->layeredShown == show) return;
  mState->layeredShown = show;
  mState->layeredBox->setChecked(show);
  mState->followVisibility();
  emit layeredToggled(show);
}

QSize TravelTimePlot::sizeHint() const {
  return {480, 400};
}

QSize TravelTimePlot::minimumSizeHint() const {
  return {160, 140};
}

}  // namespace talvesk

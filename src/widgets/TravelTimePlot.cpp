#include "widgets/TravelTimePlot.h"

#include "model/TomoDocument.h"
#include "widgets/PlotDress.h"
#include "widgets/PlotOverlay.h"
#include "widgets/TraceColors.h"
#include "widgets/TravelTimePlot_state.h"

#include <QCheckBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QStackedLayout>
#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include <qwt_graphic.h>
#include <qwt_plot.h>
#include <qwt_plot_canvas.h>
#include <qwt_plot_grid.h>
#include <qwt_plot_item.h>

namespace talvesk {
namespace {

constexpr QSize kIcon(22, 12);

QIcon iconOf(const QwtPlotItem& item) {
  return QIcon(item.legendIcon(0, kIcon).toPixmap());
}

}  // namespace

void TravelTimePlot::State::build() {
  pages = new QStackedLayout(&widget);
  plotPage = new QWidget(&widget);
  emptyPage = new QLabel(&widget);
  emptyPage->setAlignment(Qt::AlignCenter);
  emptyPage->setWordWrap(true);
  emptyPage->setMargin(16);
  emptyPage->setTextFormat(Qt::PlainText);
  pages->addWidget(plotPage);
  pages->addWidget(emptyPage);

  plot = new QwtPlot(plotPage);
  plot->setAutoDelete(true);
  plot->setFocusPolicy(Qt::NoFocus);
  QWidget* canvas = plot->canvas();
  canvas->setObjectName(QStringLiteral("travelTimeCanvas"));
  canvas->setMouseTracking(true);
  canvas->setCursor(Qt::ArrowCursor);
  canvas->installEventFilter(&widget);
  if (auto* framed = qobject_cast<QwtPlotCanvas*>(canvas)) {
    framed->setFocusIndicator(QwtPlotCanvas::NoFocusIndicator);
  }
  using namespace travel_time_items;
  grid = new QwtPlotGrid;
  grid->attach(plot);
  measured = travel_time_items::measured(curves.curves, look);
  computed = travel_time_items::computed(curves.curves, look);
  shots = travel_time_items::shots(curves.curves, look);
  for (QwtPlotItem* item : {measured, computed, shots}) item->attach(plot);
  overlay = new PlotOverlay(canvas, [this](QPainter& painter) { paintOverlay(painter); });

  auto* column = new QVBoxLayout(plotPage);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(plot, 1);
  buildLegend();
  column->addWidget(bar);
}

void TravelTimePlot::State::buildLegend() {
  bar = new QWidget(plotPage);
  auto* row = new QHBoxLayout(bar);
  row->setContentsMargins(8, 2, 8, 6);
  measuredBox = new QCheckBox(bar);
  computedBox = new QCheckBox(bar);
  for (QCheckBox* box : {measuredBox, computedBox}) {
    box->setChecked(true);
    box->setIconSize(kIcon);
    row->addWidget(box);
  }
  measuredBox->setObjectName(QStringLiteral("measuredBox"));
  computedBox->setObjectName(QStringLiteral("computedBox"));
  shotIcon = new QLabel(bar);
  shotLabel = new QLabel(bar);
  row->addWidget(shotIcon);
  row->addWidget(shotLabel);
  currentLabel = new QLabel(bar);
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
  connect(fitButton, &QToolButton::clicked, &widget, &TravelTimePlot::fit);
  connect(exportButton, &QToolButton::clicked, &widget, &TravelTimePlot::exportRequested);
}

void TravelTimePlot::State::dress() {
  dressPlot(*plot);
  const TraceColors colors = traceColors(widget.palette(), false);
  look.ground = colors.background;
  look.icons = colors.text;
  grid->setPen(QPen(colors.faint, 0.0));
  measuredBox->setIcon(iconOf(*measured));
  computedBox->setIcon(iconOf(*computed));
  shotIcon->setPixmap(iconOf(*shots).pixmap(kIcon));
  plot->replot();
}

void TravelTimePlot::State::retranslate() {
  emptyPage->setText(TravelTimePlot::tr(
      "No travel times yet.\n\nPick first breaks in the traces, by hand or with AutoPick, or "
      "import travel times."));
  plot->setAxisTitle(QwtPlot::xBottom, TravelTimePlot::tr("Distance [m]"));
  plot->setAxisTitle(QwtPlot::yLeft, TravelTimePlot::tr("Time [ms]"));
  measuredBox->setText(TravelTimePlot::tr("&Measured"));
  computedBox->setText(TravelTimePlot::tr("&Computed"));
  shotLabel->setText(TravelTimePlot::tr("Shots"));
  fitButton->setText(TravelTimePlot::tr("&Fit"));
  fitButton->setToolTip(TravelTimePlot::tr("Show all curves"));
  exportButton->setText(TravelTimePlot::tr("Export &picture..."));
  exportButton->setToolTip(TravelTimePlot::tr("Save the curves as PNG, SVG or PDF"));
  describeCurrent();
}

void TravelTimePlot::State::readDocument() {
  curves = document == nullptr ? TravelTimeCurves() : travelTimeCurves(*document, true);
  const auto count = document == nullptr ? 0 : static_cast<int>(document->ttArray.size());
  if (current >= count) current = -1;
  look.current = current < 0 ? TravelTimeLook::kNone : static_cast<std::size_t>(current);
  hovered.reset();
  pages->setCurrentWidget(curves.curves.empty() ? emptyPage : plotPage);
  computedBox->setEnabled(curves.computedTimes > 0);
  followVisibility();
  describeCurrent();
}

/// Lines through the picks would hide computed ones close to them.
void TravelTimePlot::State::followVisibility() {
  const bool lines = computedShown && curves.computedTimes > 0;
  if (look.joined == lines) {
    look.joined = !lines;
    measuredBox->setIcon(iconOf(*measured));
  }
  measured->setVisible(measuredShown);
  computed->setVisible(lines);
  show(movedByUser ? window : wholeWindow(), Step::Silent);
}

void TravelTimePlot::State::describeCurrent() {
  QString text;
  if (curveOf(current) != nullptr) {
    const double x = document->ttArray[static_cast<std::size_t>(current)].shotPos2d.x;
    text =
        TravelTimePlot::tr("Shot %1 at %2 m").arg(current + 1).arg(QLocale().toString(x, 'f', 1));
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
    : QWidget(parent), mState(std::make_unique<State>(*this)) {
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(tr("Travel-time curves"));
  mState->build();
  mState->retranslate();
  mState->dress();
  mState->readDocument();
}

TravelTimePlot::~TravelTimePlot() {
  // The plot's items look at the curves, and its canvas sends a last event when it goes.
  mState->plot->canvas()->removeEventFilter(this);
  delete mState->plot;
}

void TravelTimePlot::setRole(Role role) {
  mState->role = role;
  mState->look.othersFaint = role == Role::CurrentShot;
  mState->bar->setVisible(role == Role::AllShots);
  mState->plot->replot();
}

TravelTimePlot::Role TravelTimePlot::role() const {
  return mState->role;
}

void TravelTimePlot::setDocument(const TomoDocument* document) {
  State& s = *mState;
  s.cancelDrag();
  s.document = document;
  s.current = -1;
  s.highlighted = -1;
  s.movedByUser = false;
  s.history.clear();
  s.readDocument();
  emit viewChanged();
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
  mState->overlay->update();
}

bool TravelTimePlot::showsComputed() const {
  return mState->computedShown;
}

bool TravelTimePlot::isEmpty() const {
  return mState->curves.curves.empty();
}

void TravelTimePlot::setCurrentShot(int shot) {
  State& s = *mState;
  if (shot != s.current) {
    s.cancelDrag();
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

void TravelTimePlot::setShowComputed(bool show) {
  mState->computedShown = show;
  mState->computedBox->setChecked(show);
  mState->followVisibility();
}

void TravelTimePlot::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  followChange(
      *event, [this] { mState->retranslate(); }, [this] { mState->dress(); });
}

}  // namespace talvesk

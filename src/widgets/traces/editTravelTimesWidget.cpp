#include "widgets/traces/editTravelTimesWidget.h"

#include "model/TomoDocument.h"
#include "widgets/traces/TraceGuides.h"
#include "widgets/traces/editTravelTimesWidget_state.h"

#include <QEvent>
#include <QScrollBar>
#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

namespace talvesk {
namespace {

double within(double value, double low, double high, double otherwise) {
  return std::isfinite(value) ? std::clamp(value, low, high) : otherwise;
}

/// Options come from files and other widgets; none may break the picture.
TraceViewOptions sane(TraceViewOptions options) {
  options.gain = within(options.gain, TraceViewOptions::kMinGain, TraceViewOptions::kMaxGain, 1.0);
  options.snapRadius = within(options.snapRadius, 0.0, 10.0, TraceViewOptions().snapRadius);
  options.pickError = within(options.pickError, 0.0, kLargestPickError, 0.0);
  options.airVelocity = within(options.airVelocity, 1.0, 1e5, TraceViewOptions().airVelocity);
  options.manner = confined(options.manner);
  return options;
}

}  // namespace

editTravelTimesWidget::editTravelTimesWidget(QWidget* parent)
    : QWidget(parent), mState(std::make_unique<State>(*this)) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAccessibleName(tr("Seismic traces"));
  State& s = *mState;
  s.across = new QScrollBar(Qt::Horizontal, this);
  s.down = new QScrollBar(Qt::Vertical, this);
  for (QScrollBar* bar : {s.across, s.down}) {
    bar->setFocusPolicy(Qt::NoFocus);
    bar->setCursor(Qt::ArrowCursor);
  }
  connect(s.across, &QScrollBar::valueChanged, this, [&s](int v) { s.scrolled(true, v); });
  connect(s.down, &QScrollBar::valueChanged, this, [&s](int v) { s.scrolled(false, v); });
  setTool(TraceTool::Pick);
  s.rebuildShot(true);
}

editTravelTimesWidget::~editTravelTimesWidget() = default;

void editTravelTimesWidget::setDocument(const TomoDocument* document) {
  mState->session = nullptr;
  mState->subscription.reset();
  mState->show(document);
}

void editTravelTimesWidget::setSession(Session& session) {
  State& s = *mState;
  s.session = &session;
  s.subscription = session.subscribe([&s](const SurveyChange& change) { s.surveyChanged(change); });
  s.show(&session.document());
}

void editTravelTimesWidget::State::show(const TomoDocument* shown) {
  cancelDrag();
  gestures.viewport().clearHistory();
  gestures.viewport().followHome();
  document = shown;
  shot = -1;
  rebuildShot(true);
}

const TomoDocument* editTravelTimesWidget::document() const {
  return mState->document;
}

void editTravelTimesWidget::setShot(int shot) {
  State& s = *mState;
  const bool exists = s.document != nullptr && shot >= 0 &&
                      static_cast<std::size_t>(shot) < s.document->ttArray.size();
  s.cancelDrag();
  s.shot = exists ? shot : -1;
  s.rebuildShot(true);
}

int editTravelTimesWidget::shot() const {
  return mState->shot;
}

void editTravelTimesWidget::setOptions(const TraceViewOptions& options) {
  State& s = *mState;
  const TraceViewOptions before = s.options;
  s.options = sane(options);
  if (s.options == before) return;
  const GatherManner& manner = s.options.manner;
  const bool otherOrder =
      s.options.byDistance != before.byDistance || manner.byOffset != before.manner.byOffset;
  const bool otherTimes = (manner.reduction > 0.0) != (before.manner.reduction > 0.0);
  if (s.options.showOnlyTraces || manner != before.manner) s.cancelDrag();
  const bool reopen = s.options.zoomIn != before.zoomIn ||
                      s.options.showAllTraces != before.showAllTraces || otherOrder || otherTimes;
  if (otherOrder) s.ruler.reset();  // it stands at positions
  if (otherOrder || otherTimes) s.gestures.viewport().clearHistory();
  if (reopen) s.gestures.viewport().followHome();
  if (reopen || s.options.showFiltered != before.showFiltered || manner != before.manner) {
    s.rebuildShot(false);
  }
  s.redrawAll();
}

const TraceViewOptions& editTravelTimesWidget::options() const {
  return mState->options;
}

void editTravelTimesWidget::setTool(TraceTool tool) {
  State& s = *mState;
  const bool changed = s.tool != tool;
  s.cancelDrag();
  s.tool = tool;
  switch (tool) {
    case TraceTool::Pan:
      setCursor(Qt::OpenHandCursor);
      break;
    case TraceTool::Select:
      setCursor(Qt::SizeHorCursor);
      break;
    default:
      setCursor(Qt::CrossCursor);
  }
  if (changed) emit toolChanged();
}

TraceTool editTravelTimesWidget::tool() const {
  return mState->tool;
}

void editTravelTimesWidget::documentChanged() {
  setShot(mState->shot);
}

int editTravelTimesWidget::currentTrace() const {
  return mState->current;
}

void editTravelTimesWidget::setCurrentTrace(int trace) {
  mState->setCurrent(trace);
}

void editTravelTimesWidget::goToTrace(int trace) {
  mState->goTo(trace);
}

const ViewWindow& editTravelTimesWidget::window() const {
  return mState->window();
}

void editTravelTimesWidget::setWindow(const ViewWindow& window) {
  mState->gestures.show(window, State::Step::New);
}

bool editTravelTimesWidget::canZoomBack() const {
  return mState->gestures.viewport().canGoBack();
}

bool editTravelTimesWidget::canZoomForward() const {
  return mState->gestures.viewport().canGoForward();
}

QPointF editTravelTimesWidget::pointOf(int trace, double time) const {
  const State& s = *mState;
  if (trace < 0 || trace >= s.layout.count()) return {};
  return s.mapping().point(s.layout.position(trace), s.traces.drawnTime(trace, time));
}

int editTravelTimesWidget::traceAt(const QPointF& point) const {
  return mState->traceAt(point);
}

double editTravelTimesWidget::timeAt(const QPointF& point) const {
  return mState->trueTimeAt(point);
}

std::optional<double> editTravelTimesWidget::rulerVelocity() const {
  const State& s = *mState;
  if (!s.ruler) return std::nullopt;
  return apparentVelocity(s.traces, s.layout, s.ruler->first, s.ruler->second);
}

QSize editTravelTimesWidget::sizeHint() const {
  return {800, 600};
}

QSize editTravelTimesWidget::minimumSizeHint() const {
  return {200, 160};
}

void editTravelTimesWidget::setMagnifier(bool show) {
  TraceViewOptions changed = options();
  changed.magnifier = show;
  setOptions(changed);
}

void editTravelTimesWidget::setGain(double gain) {
  TraceViewOptions changed = options();
  changed.gain = gain;
  setOptions(changed);
}

void editTravelTimesWidget::zoomIn() {
  mState->gestures.zoom(PlotGestures::kZoomStep);
}

void editTravelTimesWidget::zoomOut() {
  mState->gestures.zoom(1.0 / PlotGestures::kZoomStep);
}

void editTravelTimesWidget::fit() {
  mState->gestures.fit();
}

void editTravelTimesWidget::home() {
  mState->gestures.home();
}

void editTravelTimesWidget::zoomBack() {
  mState->gestures.goBack();
}

void editTravelTimesWidget::zoomForward() {
  mState->gestures.goForward();
}

void editTravelTimesWidget::confirmPicks() {
  mState->confirmRange();
}

void editTravelTimesWidget::setPickErrors(double sigma) {
  mState->setErrors(sigma);
}

void editTravelTimesWidget::removePicks() {
  mState->removeRange(false);
}

void editTravelTimesWidget::removeUnconfirmedPicks() {
  mState->removeRange(true);
}

void editTravelTimesWidget::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  mState->placePlot();
}

void editTravelTimesWidget::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  switch (event->type()) {
    case QEvent::LanguageChange:
      setAccessibleName(tr("Seismic traces"));
      mState->describe();
      mState->placePlot();
      break;
    case QEvent::PaletteChange:
    case QEvent::FontChange:
    case QEvent::StyleChange:
    case QEvent::EnabledChange:
      mState->placePlot();
      break;
    default:
      break;
  }
}

}  // namespace talvesk

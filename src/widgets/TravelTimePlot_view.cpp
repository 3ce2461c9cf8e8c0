#include "model/TomoDocument.h"
#include "widgets/TravelTimePlot_state.h"

#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include <qwt_plot.h>
#include <qwt_scale_map.h>

namespace talvesk {
namespace {

constexpr double kPadding = 12.0;  ///< pixels between the curves and the frame
constexpr double kMostMagnified = 1e4;
constexpr double kZoomStep = 1.5;
constexpr double kPanStep = 0.1;     ///< of what is seen
constexpr qint64 kOneGesture = 400;  ///< milliseconds; steps closer than that are one
constexpr double kRing = 6.0;        ///< radius, pixels

double padding(double room, double span) {
  return span * kPadding / std::max(room - 2.0 * kPadding, kPadding);
}

}  // namespace

ViewWindow TravelTimePlot::State::wholeWindow() const {
  const QRect canvas = plot->canvas()->contentsRect();
  const double span = curves.high > curves.low ? curves.high - curves.low : 2.0;
  const double middle = 0.5 * (curves.low + curves.high);
  const double side = 0.5 * span + padding(canvas.width(), span);
  const double latest = curves.latestMs > 0.0 ? 1e-3 * curves.latestMs : 1.0;
  const double above = padding(canvas.height(), latest);
  return {middle - side, middle + side, -above, latest + above};
}

void TravelTimePlot::State::show(const ViewWindow& wanted, Step step) {
  const ViewWindow whole = wholeWindow();
  const ViewWindow next =
      confined(wanted, whole, whole.width() / kMostMagnified, whole.height() / kMostMagnified);
  if (step != Step::Silent && next != window) {
    const bool same =
        step == Step::Continuing && sinceStep.isValid() && sinceStep.elapsed() < kOneGesture;
    if (!same) history.leave(window);
    movedByUser = true;
    if (step == Step::Continuing) sinceStep.start();
  }
  const bool changed = next != window;
  window = next;
  applyWindow();
  if (changed) emit widget.viewChanged();
}

void TravelTimePlot::State::applyWindow() {
  const QRect canvas = plot->canvas()->contentsRect();
  plot->setAxisMaxMajor(QwtPlot::xBottom, std::clamp(canvas.width() / 70, 2, 12));
  plot->setAxisMaxMajor(QwtPlot::yLeft, std::clamp(canvas.height() / 40, 2, 12));
  plot->setAxisScale(QwtPlot::xBottom, window.left, window.right);
  plot->setAxisScale(QwtPlot::yLeft, 1e3 * window.top, 1e3 * window.bottom);
  plot->replot();
  overlay->update();
}

/// Numbers at the axes change the size of the canvas, and the canvas the numbers: once round is
/// enough.
void TravelTimePlot::State::canvasResized() {
  overlay->resize(plot->canvas()->size());
  if (layingOut) return;
  layingOut = true;
  show(movedByUser ? window : wholeWindow(), Step::Silent);
  layingOut = false;
}

QPointF TravelTimePlot::State::point(const Point2D& metresAndMs) const {
  return {plot->canvasMap(QwtPlot::xBottom).transform(metresAndMs.x),
          plot->canvasMap(QwtPlot::yLeft).transform(metresAndMs.z)};
}

double TravelTimePlot::State::metresAt(double x) const {
  return plot->canvasMap(QwtPlot::xBottom).invTransform(x);
}

double TravelTimePlot::State::timeAt(double y) const {
  return 1e-3 * plot->canvasMap(QwtPlot::yLeft).invTransform(y);
}

void TravelTimePlot::State::zoomAbout(const QPointF& at, double byPosition, double byTime,
                                      Step step) {
  show(zoomed(window, metresAt(at.x()), timeAt(at.y()), byPosition, byTime), step);
}

void TravelTimePlot::State::zoomAboutMiddle(double by) {
  zoomAbout(QRectF(plot->canvas()->contentsRect()).center(), by, by, Step::Continuing);
}

void TravelTimePlot::State::pan(double partOfWidth, double partOfHeight) {
  show(moved(window, partOfWidth * window.width(), partOfHeight * window.height()),
       Step::Continuing);
}

void TravelTimePlot::State::goInHistory(bool back) {
  if (back ? !history.canGoBack() : !history.canGoForward()) return;
  movedByUser = true;
  show(back ? history.back(window) : history.forward(window), Step::Silent);
}

void TravelTimePlot::State::paintRing(QPainter& painter, const QPointF& middle,
                                      const QColor& color) const {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(look.ground, 4.0));
  painter.drawEllipse(middle, kRing, kRing);
  painter.setPen(QPen(color, 1.8));
  painter.drawEllipse(middle, kRing, kRing);
}

void TravelTimePlot::State::paintOverlay(QPainter& painter) const {
  painter.setRenderHint(QPainter::Antialiasing);
  if (drag == Drag::Band) {
    QColor veil = widget.palette().color(QPalette::Highlight);
    painter.setPen(QPen(veil, 1.0));
    veil.setAlphaF(0.15);
    painter.setBrush(veil);
    painter.drawRect(QRectF(pressed, dragged).normalized());
    return;
  }
  if (drag == Drag::Pick && grabbed) {
    const auto from = pickPoint(grabbed->shot, grabbed->trace);
    if (!from) return;
    const QColor color = travel_time_items::colorOf(static_cast<std::size_t>(grabbed->shot), look);
    const QPointF start = point(*from);
    const QPointF at(start.x(), dragged.y());
    painter.setPen(QPen(color, 1.0, Qt::DashLine));
    painter.drawLine(start, at);
    paintRing(painter, at, color);
    painter.setPen(look.icons);
    painter.drawText(at + QPointF(1.6 * kRing, -kRing),
                     TravelTimePlot::tr("%1 ms").arg(
                         QLocale().toString(1e3 * std::max(timeAt(at.y()), 0.0), 'f', 2)));
    return;
  }
  const PickAt marked = hovered ? *hovered : PickAt{current, highlighted};
  if (const auto pick = pickPoint(marked.shot, marked.trace)) {
    paintRing(painter, point(*pick),
              travel_time_items::colorOf(static_cast<std::size_t>(marked.shot), look));
  }
}

const ViewWindow& TravelTimePlot::window() const {
  return mState->window;
}

bool TravelTimePlot::canZoomBack() const {
  return mState->history.canGoBack();
}

bool TravelTimePlot::canZoomForward() const {
  return mState->history.canGoForward();
}

std::optional<QPointF> TravelTimePlot::pointOf(int shot, int trace) const {
  const auto pick = mState->pickPoint(shot, trace);
  if (!pick) return std::nullopt;
  return mState->point(*pick);
}

QWidget* TravelTimePlot::canvas() const {
  return mState->plot->canvas();
}

QSize TravelTimePlot::sizeHint() const {
  return {480, 400};
}

QSize TravelTimePlot::minimumSizeHint() const {
  return {160, 140};
}

void TravelTimePlot::zoomIn() {
  mState->zoomAboutMiddle(kZoomStep);
}

void TravelTimePlot::zoomOut() {
  mState->zoomAboutMiddle(1.0 / kZoomStep);
}

void TravelTimePlot::fit() {
  mState->show(mState->wholeWindow(), State::Step::New);
  mState->movedByUser = false;
}

void TravelTimePlot::zoomBack() {
  mState->goInHistory(true);
}

void TravelTimePlot::zoomForward() {
  mState->goInHistory(false);
}

void TravelTimePlot::keyPressEvent(QKeyEvent* event) {
  State& s = *mState;
  switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      return zoomIn();
    case Qt::Key_Minus:
      return zoomOut();
    case Qt::Key_F:
    case Qt::Key_Home:
      return fit();
    case Qt::Key_Backspace:
      return s.goInHistory(!(event->modifiers() & Qt::ShiftModifier));
    case Qt::Key_Left:
      return s.pan(-kPanStep, 0.0);
    case Qt::Key_Right:
      return s.pan(kPanStep, 0.0);
    case Qt::Key_Up:
      return s.pan(0.0, kPanStep);
    case Qt::Key_Down:
      return s.pan(0.0, -kPanStep);
    case Qt::Key_PageUp:
      return s.walk(-1);
    case Qt::Key_PageDown:
      return s.walk(1);
    case Qt::Key_Escape:
      if (s.drag != State::Drag::None) return s.cancelDrag();
      break;
    default:
      break;
  }
  QWidget::keyPressEvent(event);
}

}  // namespace talvesk

#include "model/Recordings.h"
#include "model/TomoDocument.h"
#include "widgets/TravelTimePlot_state.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QLocale>
#include <QMenu>
#include <QMouseEvent>
#include <QToolTip>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <limits>

#include <qwt_plot.h>

namespace talvesk {
namespace {

constexpr double kReach = 7.0;      ///< how far from a pick or curve the mouse may be, pixels
constexpr double kLeastBand = 6.0;  ///< a smaller rectangle is a slip of the hand
constexpr double kWheelStep = 1.25;
constexpr double kWheelClick = 120.0;

double distance(const QPointF& a, const QPointF& b) {
  return std::hypot(a.x() - b.x(), a.y() - b.y());
}

double distanceToLine(const QPointF& p, const QPointF& a, const QPointF& b) {
  const QPointF along = b - a;
  const double square = QPointF::dotProduct(along, along);
  if (square <= 0.0) return distance(p, a);
  const double part = std::clamp(QPointF::dotProduct(p - a, along) / square, 0.0, 1.0);
  return distance(p, a + part * along);
}

/// A pick at 0 would be none, and after the last sample of its record there is nothing to pick.
double withinRecord(const TomoDocument& document, int shot, int trace, double seconds) {
  constexpr double kEarliest = 1e-6;
  const auto set =
      static_cast<std::size_t>(document.ttArray[static_cast<std::size_t>(shot)].traceSetID);
  if (set < document.recordings->traceSets.size() &&
      static_cast<std::size_t>(trace) < document.recordings->traceSets[set].size()) {
    const Trace& recorded = document.recordings->traceSets[set][static_cast<std::size_t>(trace)];
    const double end =
        (static_cast<double>(recorded.samples.size()) - 1.0) * recorded.sampleInterval;
    if (end > 0.0) seconds = std::min(seconds, end);
  }
  return std::max(seconds, kEarliest);
}

QString milliseconds(double seconds) {
  return QLocale().toString(1e3 * seconds, 'f', 2);
}

}  // namespace

const TravelTimeCurve* TravelTimePlot::State::curveOf(int shot) const {
  for (const TravelTimeCurve& curve : curves.curves) {
    if (shot >= 0 && curve.record == static_cast<std::size_t>(shot)) return &curve;
  }
  return nullptr;
}

std::optional<Point2D> TravelTimePlot::State::pickPoint(int shot, int trace) const {
  const TravelTimeCurve* curve = curveOf(shot);
  if (curve == nullptr || trace < 0 || !measuredShown) return std::nullopt;
  for (const auto& pick : curve->picks) {
    if (pick.geophone == static_cast<std::size_t>(trace)) return pick.point;
  }
  return std::nullopt;
}

/// The nearest pick in reach; one of the current shot comes before all others.
std::optional<TravelTimePlot::State::PickAt> TravelTimePlot::State::pickAt(
    const QPointF& at) const {
  std::optional<PickAt> found;
  if (!measuredShown) return found;
  double nearest = kReach;
  bool ofCurrent = false;
  for (const TravelTimeCurve& curve : curves.curves) {
    const auto shot = static_cast<int>(curve.record);
    for (const auto& pick : curve.picks) {
      const double away = distance(at, point(pick.point));
      const bool mine = shot == current;
      if (away > kReach || (ofCurrent && !mine)) continue;
      if (away > nearest && mine == ofCurrent) continue;
      nearest = away;
      ofCurrent = mine;
      found = PickAt{shot, static_cast<int>(pick.geophone)};
    }
  }
  return found;
}

int TravelTimePlot::State::curveAt(const QPointF& at) const {
  if (const auto pick = pickAt(at)) return pick->shot;
  double nearest = kReach;
  int found = -1;
  const auto lookAt = [&](const std::vector<std::vector<Point2D>>& lines, int shot) {
    for (const auto& line : lines) {
      for (std::size_t i = 1; i < line.size(); ++i) {
        const double away = distanceToLine(at, point(line[i - 1]), point(line[i]));
        if (away >= nearest) continue;
        nearest = away;
        found = shot;
      }
    }
  };
  for (const TravelTimeCurve& curve : curves.curves) {
    const auto shot = static_cast<int>(curve.record);
    if (measuredShown && look.joined) lookAt(curve.measuredLines, shot);
    if (computedShown) lookAt(curve.computedLines, shot);
    if (!curve.hasShot) continue;
    const double away = distance(at, point(curve.shot));
    if (away < nearest) {
      nearest = away;
      found = shot;
    }
  }
  return found;
}

bool TravelTimePlot::State::press(const QMouseEvent& event) {
  if (drag != Drag::None) return true;
  if (event.button() != Qt::LeftButton && event.button() != Qt::MiddleButton) return false;
  widget.setFocus(Qt::MouseFocusReason);
  dragButton = event.button();
  dragModifiers = event.modifiers();
  pressed = dragged = event.localPos();
  pressedWindow = window;
  hovered.reset();
  grabbed.reset();
  drag = Drag::Press;
  const bool plain = !(dragModifiers & (Qt::ControlModifier | Qt::ShiftModifier));
  if (dragButton == Qt::LeftButton && plain) grabbed = pickAt(pressed);
  return true;
}

void TravelTimePlot::State::startDragging(const QPointF& at) {
  if (distance(at, pressed) < QApplication::startDragDistance()) return;
  if (dragButton == Qt::MiddleButton || (dragModifiers & Qt::ShiftModifier)) {
    drag = Drag::Pan;
    plot->canvas()->setCursor(Qt::ClosedHandCursor);
  } else if (grabbed && edit) {
    const PickAt pick = *grabbed;
    chooseShot(pick.shot);
    grabbed = pick;  // another shot in view ends what was under way
    drag = Drag::Pick;
  } else {
    drag = Drag::Band;
  }
}

void TravelTimePlot::State::move(const QMouseEvent& event) {
  if (drag == Drag::None) {
    hoverAt(event.localPos());
    return;
  }
  dragged = event.localPos();
  if (drag == Drag::Press) startDragging(dragged);
  if (drag == Drag::Pan) {
    const QRectF canvas = plot->canvas()->contentsRect();
    show(moved(pressedWindow, (pressed.x() - dragged.x()) / canvas.width() * window.width(),
               (dragged.y() - pressed.y()) / canvas.height() * window.height()),
         Step::Continuing);
  }
  overlay->update();
}

void TravelTimePlot::State::release(const QMouseEvent& event) {
  if (drag == Drag::None || event.button() != dragButton) return;
  move(event);  // a quick hand may have left no moves between
  const Drag finished = drag;
  const auto pick = grabbed;
  const QPointF at = event.localPos();
  cancelDrag();
  if (finished == Drag::Press && event.button() == Qt::LeftButton) {
    if (const int shot = curveAt(at); shot >= 0) chooseShot(shot);
  } else if (finished == Drag::Band) {
    finishBand(at);
  } else if (finished == Drag::Pick && pickPoint(pick ? pick->shot : -1, pick ? pick->trace : -1)) {
    movePick(*pick, withinRecord(*document, pick->shot, pick->trace, timeAt(at.y())));
  }
}

void TravelTimePlot::State::finishBand(const QPointF& at) {
  const QRectF band = QRectF(pressed, at).normalized();
  if (band.width() < kLeastBand || band.height() < kLeastBand) return;
  show({metresAt(band.left()), metresAt(band.right()), timeAt(band.bottom()), timeAt(band.top())},
       Step::New);
}

void TravelTimePlot::State::movePick(PickAt pick, double seconds) {
  if (!edit) return;
  edit(pick.shot, pick.trace, seconds);
  readDocument();
  emit widget.pickEdited(pick.shot, pick.trace);
}

void TravelTimePlot::State::cancelDrag() {
  drag = Drag::None;
  grabbed.reset();
  plot->canvas()->setCursor(Qt::ArrowCursor);
  overlay->update();
}

void TravelTimePlot::State::hoverAt(const QPointF& at) {
  const auto now = pickAt(at);
  const bool same = now.has_value() == hovered.has_value() &&
                    (!now || (now->shot == hovered->shot && now->trace == hovered->trace));
  if (same) return;
  hovered = now;
  plot->canvas()->setCursor(!now   ? Qt::ArrowCursor
                            : edit ? Qt::SizeVerCursor
                                   : Qt::PointingHandCursor);
  overlay->update();
}

void TravelTimePlot::State::wheel(const QWheelEvent& event) {
  const QPoint turned = event.angleDelta();
  // Some desktops turn a wheel with Alt or Shift held into one across.
  const double clicks = (turned.y() != 0 ? turned.y() : turned.x()) / kWheelClick;
  const double by = std::pow(kWheelStep, clicks);
  zoomAbout(event.position(), event.modifiers() & Qt::ControlModifier ? 1.0 : by,
            event.modifiers() & Qt::ShiftModifier ? 1.0 : by, Step::Continuing);
}

void TravelTimePlot::State::tell(const QHelpEvent& event) {
  const auto pick = pickAt(event.pos());
  if (!pick || document == nullptr) {
    QToolTip::hideText();
    return;
  }
  const TravelTime& record = document->ttArray[static_cast<std::size_t>(pick->shot)];
  const auto trace = static_cast<std::size_t>(pick->trace);
  if (trace >= record.ttMisurati.size()) return;
  QString text = TravelTimePlot::tr("Shot %1, trace %2: %3 ms")
                     .arg(pick->shot + 1)
                     .arg(pick->trace + 1)
                     .arg(milliseconds(record.ttMisurati[trace]));
  if (trace < record.ttCalcolati.size() && record.ttCalcolati[trace] >= 0.0 &&
      curves.computedTimes > 0) {
    text += QLatin1Char('\n') +
            TravelTimePlot::tr("Computed: %1 ms").arg(milliseconds(record.ttCalcolati[trace]));
  }
  QToolTip::showText(event.globalPos(), text, plot->canvas());
}

void TravelTimePlot::State::openMenu(const QPoint& global, const QPointF& at) {
  auto* menu = new QMenu(&widget);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  if (const auto pick = pickAt(at); pick && edit) {
    menu->addAction(TravelTimePlot::tr("&Remove pick"), &widget,
                    [this, pick] { movePick(*pick, kNoTime); });
    menu->addSeparator();
  }
  menu->addAction(TravelTimePlot::tr("&Fit"), &widget, &TravelTimePlot::fit);
  menu->addAction(TravelTimePlot::tr("Zoom &back"), &widget, &TravelTimePlot::zoomBack)
      ->setEnabled(history.canGoBack());
  menu->addAction(TravelTimePlot::tr("Zoom for&ward"), &widget, &TravelTimePlot::zoomForward)
      ->setEnabled(history.canGoForward());
  menu->addSeparator();
  menu->addAction(TravelTimePlot::tr("Export &picture..."), &widget,
                  &TravelTimePlot::exportRequested);
  menu->popup(global);
}

bool TravelTimePlot::eventFilter(QObject* watched, QEvent* event) {
  State& s = *mState;
  if (watched != s.plot->canvas()) return QWidget::eventFilter(watched, event);
  switch (event->type()) {
    case QEvent::Resize:
      s.canvasResized();
      return false;
    case QEvent::MouseButtonPress:
      return s.press(static_cast<const QMouseEvent&>(*event));
    case QEvent::MouseMove:
      s.move(static_cast<const QMouseEvent&>(*event));
      return true;
    case QEvent::MouseButtonRelease:
      s.release(static_cast<const QMouseEvent&>(*event));
      return true;
    case QEvent::MouseButtonDblClick:
      if (static_cast<const QMouseEvent&>(*event).button() == Qt::LeftButton) fit();
      return true;
    case QEvent::Leave:
      s.hoverAt({-1e3, -1e3});
      return false;
    case QEvent::Wheel:
      s.wheel(static_cast<const QWheelEvent&>(*event));
      return true;
    case QEvent::ToolTip:
      s.tell(static_cast<const QHelpEvent&>(*event));
      return true;
    case QEvent::ContextMenu: {
      const auto& menu = static_cast<const QContextMenuEvent&>(*event);
      s.openMenu(menu.globalPos(), menu.pos());
      return true;
    }
    default:
      return QWidget::eventFilter(watched, event);
  }
}

}  // namespace talvesk

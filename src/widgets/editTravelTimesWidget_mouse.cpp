#include "widgets/editTravelTimesWidget_state.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr double kGrab = 5.0;        ///< pixels from a pick within which a drag moves it alone
constexpr double kLeastBand = 5.0;   ///< pixels; a smaller rectangle is a click
constexpr double kWheelStep = 1.25;  ///< zoom by one notch
constexpr double kNotch = 120.0;     ///< eighths of a degree

}  // namespace

int editTravelTimesWidget::State::traceAt(const QPointF& point) const {
  return layout.traceAt(mapping().positionAt(point.x()));
}

PickStroke::Place editTravelTimesWidget::State::placeAt(const QPointF& point) const {
  const TraceMapping map = mapping();
  return {map.positionAt(point.x()), map.timeAt(point.y())};
}

bool editTravelTimesWidget::State::nearPick(const QPointF& point, int trace) const {
  const double pick = traces.measured(trace);
  return hasPick(pick) && std::fabs(mapping().y(pick) - point.y()) <= kGrab;
}

void editTravelTimesWidget::State::beginDrag(Drag kind, const QPointF& point, bool snapping) {
  const TraceMapping map = mapping();
  pressed = point;
  pressedWindow = window;
  strayed = false;
  pressedTrace = kind == Drag::Select ? layout.nearest(map.positionAt(point.x())) : traceAt(point);
  if (kind == Drag::Pick || kind == Drag::Remove) {
    if (!canEdit() || !traces.canPick(pressedTrace)) return;
    const auto stroked = kind == Drag::Remove            ? PickStroke::Kind::Remove
                         : nearPick(point, pressedTrace) ? PickStroke::Kind::Move
                                                         : PickStroke::Kind::Run;
    stroke.begin(stroked, pressedTrace, placeAt(point), layout, adjuster(snapping));
    setCurrent(pressedTrace);
    redrawMarks();
  }
  drag = kind;
  const QPointF place(map.positionAt(point.x()), map.timeAt(point.y()));
  if (kind == Drag::Ruler) ruler = {place, place};
  if (kind == Drag::Select) select(pressedTrace, pressedTrace);
  if (kind == Drag::Pan) widget.setCursor(Qt::ClosedHandCursor);
}

void editTravelTimesWidget::State::continueDrag(const QPointF& point, bool snapping) {
  const TraceMapping map = mapping();
  const double x = std::clamp(point.x(), plot.left(), plot.right());
  const double y = std::clamp(point.y(), plot.top(), plot.bottom());
  switch (drag) {
    case Drag::None:
      return;
    case Drag::Pick:
    case Drag::Remove: {
      // A hand that shakes while it clicks between two traces must not pick both.
      strayed = strayed || std::fabs(point.x() - pressed.x()) >= QApplication::startDragDistance();
      const int trace = strayed ? layout.traceAt(map.positionAt(x)) : pressedTrace;
      stroke.moveTo(trace, placeAt({x, y}), layout, adjuster(snapping));
      if (stroke.kind() != PickStroke::Kind::Move && trace >= 0) setCurrent(trace);
      redrawMarks();
      break;
    }
    case Drag::Pan: {
      const TraceMapping start{plot, pressedWindow};
      show(moved(pressedWindow, start.positionAt(pressed.x()) - start.positionAt(point.x()),
                 start.timeAt(pressed.y()) - start.timeAt(point.y())),
           strayed ? Step::Silent : Step::New);
      strayed = true;
      break;
    }
    case Drag::Ruler:
      ruler->second = {map.positionAt(x), map.timeAt(y)};
      break;
    case Drag::Select:
      select(pressedTrace, layout.nearest(map.positionAt(x)));
      break;
    case Drag::Band:
      break;
  }
  widget.update();
}

void editTravelTimesWidget::State::finishDrag(const QPointF& point) {
  const Drag finished = drag;
  drag = Drag::None;
  if (finished == Drag::Pick || finished == Drag::Remove) {
    const std::map<int, double> times = stroke.times();
    const bool had = hasPick(traces.measured(pressedTrace));
    stroke.clear();
    const Message text = finished == Drag::Remove ? (times.size() > 1 ? Message::tr("Remove picks")
                                                                      : Message::tr("Remove pick"))
                         : times.size() > 1       ? Message::tr("Draw picks")
                         : had                    ? Message::tr("Move pick")
                                                  : Message::tr("Set pick");
    edit(text, times);
    redrawMarks();
  }
  if (finished == Drag::Band) finishBand(point);
  if (finished == Drag::Ruler && ruler &&
      mapping().point(ruler->first.x(), ruler->first.y()) ==
          mapping().point(ruler->second.x(), ruler->second.y())) {
    ruler.reset();
  }
  if (finished == Drag::Pan) widget.setTool(tool);
  widget.update();
}

void editTravelTimesWidget::State::finishBand(const QPointF& point) {
  const QRectF band = QRectF(pressed, point).normalized().intersected(plot);
  const bool wide = band.width() >= kLeastBand;
  const bool high = band.height() >= kLeastBand;
  if (!wide && !high) {
    if (tool == TraceTool::Zoom) zoomAbout(point, 2.0, 2.0, Step::New);
    return;
  }
  // A flat or narrow rectangle means one axis.
  const TraceMapping map = mapping();
  TraceWindow wanted = window;
  if (wide) {
    wanted.left = map.positionAt(band.left());
    wanted.right = map.positionAt(band.right());
  }
  if (high) {
    wanted.top = map.timeAt(band.top());
    wanted.bottom = map.timeAt(band.bottom());
  }
  show(wanted, Step::New);
}

void editTravelTimesWidget::State::cancelDrag() {
  if (drag == Drag::None) return;
  const Drag given = drag;
  drag = Drag::None;
  stroke.clear();
  if (given == Drag::Pan) {
    show(pressedWindow, Step::Silent);
    widget.setTool(tool);
  }
  if (given == Drag::Ruler) ruler.reset();
  redrawMarks();
}

TraceCursor editTravelTimesWidget::State::cursorFor(int trace, std::optional<double> time) const {
  TraceCursor cursor;
  cursor.trace = trace;
  cursor.time = time;
  if (trace < 0 || trace >= layout.count()) return cursor;
  if (std::isfinite(traces.offset(trace))) cursor.offset = traces.offset(trace);
  if (std::isfinite(traces.receiverX(trace))) cursor.distance = traces.receiverX(trace);
  if (time) {
    const std::vector<double>& samples = traces.samples(trace);
    const double nearest = std::round(*time / traces.interval(trace));
    if (nearest >= 0.0 && nearest < static_cast<double>(samples.size())) {
      cursor.amplitude = samples[static_cast<std::size_t>(nearest)];
    }
  }
  if (hasPick(traces.measured(trace))) cursor.pick = traces.measured(trace);
  cursor.pickIsAutomatic = waits(trace);
  return cursor;
}

void editTravelTimesWidget::State::hoverAt(const QPointF& point) {
  const bool over = layout.count() > 0 && plot.contains(point);
  const int trace = over ? traceAt(point) : -1;
  const bool was = hover.has_value();
  hover = over ? std::optional<QPointF>(point) : std::nullopt;
  if (trace != hoverTrace) {
    hoverTrace = trace;
    emit widget.mouse_moved(trace);
  }
  if (over || was) {
    tellsCurrent = false;
    emit widget.cursorMoved(
        cursorFor(trace, over ? std::optional(mapping().timeAt(point.y())) : std::nullopt));
    widget.update();
  }
}

/// What was told of a trace is no longer so once its pick, the shot or its samples have changed.
void editTravelTimesWidget::State::tellAgain() {
  if (tellsCurrent) return tellCurrent();
  if (hover) emit widget.cursorMoved(cursorFor(traceAt(*hover), mapping().timeAt(hover->y())));
}

void editTravelTimesWidget::State::tellCurrent() {
  tellsCurrent = true;
  const double pick = current >= 0 ? traces.measured(current) : kNoTime;
  emit widget.cursorMoved(cursorFor(current, hasPick(pick) ? std::optional(pick) : std::nullopt));
}

void editTravelTimesWidget::State::changeGain(double factor) {
  const double before = options.gain;
  widget.setGain(options.gain * factor);
  if (options.gain != before) emit widget.optionsChanged();
}

void editTravelTimesWidget::mousePressEvent(QMouseEvent* event) {
  State& s = *mState;
  using Drag = State::Drag;
  if (s.layout.count() == 0) {
    event->ignore();
    return;
  }
  const QPointF point = event->localPos();
  if (s.drag != Drag::None) {  // another button gives the drag up
    s.cancelDrag();
    return;
  }
  if (event->button() == Qt::BackButton) return zoomBack();
  if (event->button() == Qt::ForwardButton) return zoomForward();
  const bool above = point.y() < s.plot.top() && point.x() >= s.plot.left();
  if (!s.plot.contains(point) && !above) return;
  Drag kind = Drag::None;
  if (event->button() == Qt::MiddleButton) kind = Drag::Pan;
  if (event->button() == Qt::RightButton && !above) kind = Drag::Remove;
  if (event->button() == Qt::LeftButton) {
    const Qt::KeyboardModifiers keys = event->modifiers();
    switch (s.tool) {
      case TraceTool::Pick:
        kind = Drag::Pick;
        break;
      case TraceTool::Zoom:
        kind = Drag::Band;
        break;
      case TraceTool::Pan:
        kind = Drag::Pan;
        break;
      case TraceTool::Ruler:
        kind = Drag::Ruler;
        break;
      case TraceTool::Select:
        kind = Drag::Select;
        break;
    }
    if (keys & Qt::ControlModifier) kind = Drag::Band;
    if (above || (keys & Qt::ShiftModifier)) kind = Drag::Select;
  }
  if (kind == Drag::None) return;
  s.dragButton = event->button();
  s.beginDrag(kind, point, !(event->modifiers() & Qt::AltModifier));
  s.hoverAt(point);
}

void editTravelTimesWidget::mouseMoveEvent(QMouseEvent* event) {
  State& s = *mState;
  s.continueDrag(event->localPos(), !(event->modifiers() & Qt::AltModifier));
  s.hoverAt(event->localPos());
}

void editTravelTimesWidget::mouseReleaseEvent(QMouseEvent* event) {
  State& s = *mState;
  if (s.drag == State::Drag::None || event->button() != s.dragButton) return;
  s.finishDrag(event->localPos());
  s.hoverAt(event->localPos());
}

void editTravelTimesWidget::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  mState->hoverAt({-1.0, -1.0});
}

void editTravelTimesWidget::wheelEvent(QWheelEvent* event) {
  State& s = *mState;
  if (s.layout.count() == 0) {
    event->ignore();
    return;
  }
  event->accept();
  const QPoint turned = event->angleDelta();
  const Qt::KeyboardModifiers keys = event->modifiers();
  const bool sideways = std::abs(turned.x()) > std::abs(turned.y());
  if (sideways && !(keys & Qt::AltModifier)) {
    s.show(moved(s.window, -0.1 * turned.x() / kNotch * s.window.width(), 0.0),
           State::Step::Continuing);
    return;
  }
  // Some systems turn a wheel with Alt held into one that turns sideways.
  const double notches = (sideways ? turned.x() : turned.y()) / kNotch;
  if (notches == 0.0) return;
  const double factor = std::pow(kWheelStep, notches);
  if (keys & Qt::AltModifier) {
    s.changeGain(factor);
    return;
  }
  s.zoomAbout(event->position(), keys & Qt::ControlModifier ? 1.0 : factor,
              keys & Qt::ShiftModifier ? 1.0 : factor, State::Step::Continuing);
  s.hoverAt(event->position());
}

}  // namespace talvesk

#include "model/Mending.h"
#include "model/TravelTime.h"
#include "widgets/traces/editTravelTimesWidget_state.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr double kWheelGain = 1.25;  ///< by one notch

}  // namespace

QPointF editTravelTimesWidget::State::placeAt(const QPointF& point) const {
  const TraceMapping map = mapping();
  return {map.positionAt(point.x()), map.timeAt(point.y())};
}

double editTravelTimesWidget::State::trueTimeAt(const QPointF& point) const {
  const QPointF place = placeAt(point);
  const int trace = layout.nearest(place.x());
  return trace < 0 ? place.y() : traces.trueTime(trace, place.y());
}

int editTravelTimesWidget::State::traceAt(const QPointF& point) const {
  return layout.traceAt(mapping().positionAt(point.x()));
}

PlotTool* editTravelTimesWidget::State::toolFor(Qt::MouseButton button, Qt::KeyboardModifiers keys,
                                                const QPointF& point) {
  const bool within = plot.contains(point);
  const bool above = isAbove(point);
  if (button == Qt::RightButton && within) return removeTool.get();
  if (button != Qt::LeftButton || (!within && !above)) return nullptr;
  if (within && (keys & Qt::ControlModifier)) return errorTool.get();
  if (above || (keys & Qt::ShiftModifier)) return selectTool.get();
  switch (tool) {
    case TraceTool::Pick:
      return pickTool.get();
    case TraceTool::Zoom:
      return zoomTool.get();
    case TraceTool::Pan:
      return gestures.panTool();
    case TraceTool::Ruler:
      return rulerTool.get();
    case TraceTool::Select:
      return selectTool.get();
    case TraceTool::Guide:
      return guideTool.get();
  }
  return nullptr;
}

PlotTool* editTravelTimesWidget::State::toolBeside(const QPointF& point) {
  return isAbove(point) ? selectTool.get() : nullptr;
}

bool editTravelTimesWidget::State::isAbove(const QPointF& point) const {
  return point.y() < plot.top() && point.x() >= plot.left();
}

TraceCursor editTravelTimesWidget::State::cursorFor(int trace, std::optional<double> time) const {
  TraceCursor cursor;
  cursor.trace = trace;
  cursor.time = time;
  if (trace < 0 || trace >= layout.count()) return cursor;
  if (std::isfinite(traces.offset(trace))) cursor.offset = traces.offset(trace);
  if (std::isfinite(traces.receiverX(trace))) cursor.distance = traces.receiverX(trace);
  if (time) {
    if (traces.mapping().isReduced()) cursor.reduced = traces.drawnTime(trace, *time);
    const Span<double> samples = traces.samples(trace);
    const double nearest = std::round(*time / traces.interval(trace));
    if (nearest >= 0.0 && nearest < static_cast<double>(samples.size())) {
      cursor.amplitude = samples[static_cast<std::size_t>(nearest)];
    }
  }
  if (hasPick(traces.measured(trace))) cursor.pick = traces.measured(trace);
  if (traces.error(trace) > 0.0) cursor.pickError = traces.error(trace);
  cursor.takesPart =
      document == nullptr || takesPart(*document, shot, static_cast<std::size_t>(trace));
  cursor.pickIsAutomatic = waits(trace);
  return cursor;
}

void editTravelTimesWidget::State::hovered(const std::optional<QPointF>& point) {
  const bool over = layout.count() > 0 && point && plot.contains(*point);
  const int trace = over ? traceAt(*point) : -1;
  const bool was = hover.has_value();
  hover = over ? point : std::nullopt;
  if (trace != hoverTrace) {
    hoverTrace = trace;
    emit widget.mouse_moved(trace);
  }
  if (over || was) {
    tellsCurrent = false;
    emit widget.cursorMoved(
        cursorFor(trace, over ? std::optional(trueTimeAt(*point)) : std::nullopt));
    widget.update();
  }
}

/// What was told of a trace is no longer so once its pick, the shot or its samples have changed.
void editTravelTimesWidget::State::tellAgain() {
  if (tellsCurrent) return tellCurrent();
  if (hover) emit widget.cursorMoved(cursorFor(traceAt(*hover), trueTimeAt(*hover)));
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

bool editTravelTimesWidget::State::wheelTurned(double notches, Qt::KeyboardModifiers keys) {
  if (!(keys & Qt::AltModifier)) return false;
  changeGain(std::pow(kWheelGain, notches));
  return true;
}

}  // namespace talvesk

#include "widgets/traces/editTravelTimesWidget_state.h"

#include <QKeyEvent>
#include <algorithm>

namespace talvesk {
namespace {

constexpr double kMillisecond = 1e-3;
constexpr double kKeyGain = 1.4142135623730951;  ///< two steps double

}  // namespace

void editTravelTimesWidget::State::walk(int steps, bool selecting) {
  const int from = current;
  const int to = layout.stepped(current, steps);
  if (to < 0) return;
  if (selecting) {
    const bool started = selection.anchor() >= 0 && selection.has(from);
    const int anchor = started ? selection.anchor() : from;
    select(anchor < 0 ? to : anchor, to);
    setCurrent(to);
    reveal(to);
    tellCurrent();
  } else {
    goTo(to);
  }
}

bool editTravelTimesWidget::State::walkKey(const QKeyEvent& event) {
  const bool selecting = (event.modifiers() & Qt::ShiftModifier) != 0;
  switch (event.key()) {
    case Qt::Key_Left:
      walk(-1, selecting);
      return true;
    case Qt::Key_Right:
      walk(1, selecting);
      return true;
    case Qt::Key_Home:
      walk(-layout.count(), selecting);
      return true;
    case Qt::Key_End:
      walk(layout.count(), selecting);
      return true;
    default:
      return false;
  }
}

bool editTravelTimesWidget::State::pickKey(const QKeyEvent& event) {
  const Qt::KeyboardModifiers keys = event.modifiers();
  switch (event.key()) {
    case Qt::Key_Up:
    case Qt::Key_Down: {
      double step = current >= 0 ? traces.interval(current) : 0.0;
      if (keys & Qt::ShiftModifier) step *= 10.0;
      if (keys & Qt::ControlModifier) step = kMillisecond;
      nudge(event.key() == Qt::Key_Up ? -step : step, event.isAutoRepeat());
      return true;
    }
    case Qt::Key_Delete:
      removeRange(false);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      pickLikeNeighbour();
      return true;
    case Qt::Key_C:
      confirmRange();
      return true;
    default:
      return errorKey(event);
  }
}

bool editTravelTimesWidget::State::lookKey(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_BracketLeft:
      changeGain(1.0 / kKeyGain);
      return true;
    case Qt::Key_BracketRight:
      changeGain(kKeyGain);
      return true;
    case Qt::Key_M:
      widget.setMagnifier(!options.magnifier);
      emit widget.optionsChanged();
      return true;
    case Qt::Key_R:
      widget.setTool(tool == TraceTool::Ruler ? TraceTool::Pick : TraceTool::Ruler);
      return true;
    case Qt::Key_G:
      widget.setTool(tool == TraceTool::Guide ? TraceTool::Pick : TraceTool::Guide);
      return true;
    default:
      return false;
  }
}

/// Gives up, one thing after the other. \return whether there was anything
bool editTravelTimesWidget::State::escape() {
  if (ruler) {
    ruler.reset();
    widget.update();
  } else if (!selection.empty()) {
    select({});
  } else if (tool != TraceTool::Pick) {
    widget.setTool(TraceTool::Pick);
  } else {
    return false;
  }
  return true;
}

bool editTravelTimesWidget::State::keyPressed(const QKeyEvent& event) {
  if (event.key() == Qt::Key_Escape) return escape();
  const bool plain =
      !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
  const bool nudging = event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
  if ((plain || nudging) && pickKey(event)) return true;
  if (plain && (mendKey(event) || mannerKey(event))) return true;
  return plain && (walkKey(event) || lookKey(event));
}

void editTravelTimesWidget::keyPressEvent(QKeyEvent* event) {
  State& s = *mState;
  if (s.session != nullptr) {
    if (event->matches(QKeySequence::Undo)) return s.session->undo();
    if (event->matches(QKeySequence::Redo)) return s.session->redo();
  }
  QWidget::keyPressEvent(event);
}

}  // namespace talvesk

#include "widgets/PlotTool.h"
#include "widgets/traces/editTravelTimesWidget_state.h"

#include <QContextMenuEvent>
#include <QPainter>
#include <algorithm>
#include <iterator>

namespace talvesk {
namespace {

constexpr double kHeadAlpha = 0.45;  ///< of the band over the numbers of selected traces

}  // namespace

int editTravelTimesWidget::selectedFirst() const {
  return mState->selection.first();
}

int editTravelTimesWidget::selectedLast() const {
  return mState->selection.last();
}

const std::vector<int>& editTravelTimesWidget::selectedTraces() const {
  return mState->selection.traces();
}

void editTravelTimesWidget::selectTraces(int first, int last) {
  mState->select(first, last);
}

std::vector<int> editTravelTimesWidget::State::range() const {
  if (!selection.empty()) return selection.traces();
  return current >= 0 ? std::vector<int>{current} : std::vector<int>();
}

std::vector<int> editTravelTimesWidget::State::between(int first, int last) const {
  const int count = layout.count();
  if (first < 0 || last < 0 || first >= count || last >= count) return {};
  const int from = std::min(layout.rank(first), layout.rank(last));
  const int to = std::max(layout.rank(first), layout.rank(last));
  return {layout.order().begin() + from, layout.order().begin() + to + 1};
}

void editTravelTimesWidget::State::select(int first, int last) {
  select(TraceSelection(between(first, last), first));
}

void editTravelTimesWidget::State::select(TraceSelection chosen) {
  const bool same = chosen == selection;
  selection = std::move(chosen);
  if (same) return;
  redrawMarks();
  emit widget.selectionChanged();
}

/// Bands over the selected traces and, stronger, their numbers, and over the current one.
void editTravelTimesWidget::State::paintSelection(QPainter& painter) const {
  const TraceMapping map = mapping();
  const auto band = [&](int trace, double top, double bottom, const QColor& color) {
    const double x = layout.position(trace);
    const double left = std::max(map.x(x - 0.5 * layout.leftRoom(trace)), plot.left());
    const double right = std::min(map.x(x + 0.5 * layout.rightRoom(trace)), plot.right());
    if (left < right) painter.fillRect(QRectF(left, top, right - left, bottom - top), color);
  };
  QColor head = colors.focus;
  head.setAlphaF(kHeadAlpha);
  for (const int trace : selection.traces()) {
    band(trace, 0.0, plot.top(), head);
    band(trace, plot.top(), plot.bottom(), colors.selection);
  }
  if (current >= 0 && !options.showOnlyTraces) {
    band(current, plot.top(), plot.bottom(), colors.current);
  }
}

/// Selects the traces between press and mouse. Over the numbers above the traces, Shift goes on
/// from where the selection began, and Ctrl turns over what it is drawn across.
class editTravelTimesWidget::State::SelectTool : public PlotTool {
 public:
  explicit SelectTool(State& state) : mState(state) {}

  bool press(const ToolEvent& event) override {
    const bool above = mState.isAbove(event.at);
    mBefore = mState.selection;
    mCurrent = mState.current;
    mTurns = above && (event.keys & Qt::ControlModifier);
    mFrom = nearest(event.at);
    const int pressed = mFrom;
    if (above && !mTurns && (event.keys & Qt::ShiftModifier)) {
      mFrom = mBefore.anchor() >= 0 ? mBefore.anchor() : mCurrent >= 0 ? mCurrent : mFrom;
    }
    if (above) mState.setCurrent(pressed);
    show(pressed);
    return true;
  }
  void move(const ToolEvent& event) override {
    show(
        nearest({std::clamp(event.at.x(), mState.plot.left(), mState.plot.right()), event.at.y()}));
  }
  void release(const ToolEvent&) override {}
  void giveUp() override {
    mState.setCurrent(mCurrent);
    mState.select(mBefore);
  }

 private:
  int nearest(const QPointF& point) const {
    return mState.layout.nearest(mState.placeAt(point).x());
  }

  void show(int to) {
    if (!mTurns) return mState.select(mFrom, to);
    std::vector<int> traces;
    const TraceSelection drawn(mState.between(mFrom, to));
    std::set_symmetric_difference(mBefore.traces().begin(), mBefore.traces().end(),
                                  drawn.traces().begin(), drawn.traces().end(),
                                  std::back_inserter(traces));
    mState.select(TraceSelection(std::move(traces), mFrom));
  }

  State& mState;
  TraceSelection mBefore;
  int mCurrent = -1;
  int mFrom = -1;
  bool mTurns = false;  ///< adds and takes away
};

std::unique_ptr<PlotTool> editTravelTimesWidget::State::makeSelectTool() {
  return std::make_unique<SelectTool>(*this);
}

/// Over the traces the right button takes picks away: the menu belongs to the numbers above them,
/// and to the key for it.
void editTravelTimesWidget::contextMenuEvent(QContextMenuEvent* event) {
  State& s = *mState;
  const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
  const QPointF at = event->pos();
  if (s.layout.count() == 0 || (!byKey && !s.isAbove(at))) {
    event->ignore();
    return;
  }
  if (byKey) {
    const double time = s.traces.trueTime(s.current, s.window().top);
    emit menuWanted(mapToGlobal(pointOf(s.current, time).toPoint()));
    return;
  }
  const int trace = s.layout.nearest(s.placeAt(at).x());
  if (!s.selection.has(trace)) {
    s.setCurrent(trace);
    s.select(trace, trace);
  }
  emit menuWanted(event->globalPos());
}

}  // namespace talvesk

#include "model/TravelTime.h"
#include "widgets/LayerCurvesPlot.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>
#include <cmath>
#include <limits>

// How the curves answer mouse and keys.

namespace talvesk {
namespace {

constexpr double kReach = 9.0;  ///< pixels from a pick that still hit it

}  // namespace

/// The nearest pick within reach; one that may be marked goes before those of other shots.
std::optional<TraceRef> LayerCurvesPlot::pickAt(const QPointF& point) const {
  std::optional<TraceRef> nearest;
  double least = std::numeric_limits<double>::infinity();
  for (std::uint32_t shot = 0; shot < mOrder.size(); ++shot) {
    for (const std::uint32_t trace : mOrder[shot]) {
      const auto at = pointOf({shot, trace});
      const double distance = std::hypot(at->x() - point.x(), at->y() - point.y());
      if (distance > kReach) continue;
      const double rank = distance + (isShown(shot) ? 0.0 : 2.0 * kReach);
      if (rank < least) {
        least = rank;
        nearest = TraceRef{shot, trace};
      }
    }
  }
  return nearest;
}

std::vector<TraceRef> LayerCurvesPlot::picksIn(const QRectF& rect) const {
  std::vector<TraceRef> picks;
  for (std::uint32_t shot = 0; shot < mOrder.size(); ++shot) {
    if (!isShown(shot)) continue;
    for (const std::uint32_t trace : mOrder[shot]) {
      if (rect.contains(*pointOf({shot, trace}))) picks.push_back({shot, trace});
    }
  }
  return picks;
}

bool LayerCurvesPlot::pressed(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) return false;
  mPressed = event.localPos();
  mDragged = event.localPos();
  mDragging = false;
  return true;
}

bool LayerCurvesPlot::moved(const QMouseEvent& event) {
  if (!mPressed) {
    const auto hovered = pickAt(event.localPos());
    if (hovered != mHovered) {
      mHovered = hovered;
      repaintOverlay();
    }
    return false;
  }
  if (!mEditable) return true;
  mDragged = event.localPos();
  const QPointF way = mDragged - *mPressed;
  if (way.manhattanLength() >= QApplication::startDragDistance()) mDragging = true;
  if (!mDragging) return true;
  read(picksIn(QRectF(*mPressed, mDragged).normalized()));
  repaintOverlay();
  return true;
}

bool LayerCurvesPlot::released(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton || !mPressed) return false;
  // The release is the last move of a drag.
  moved(event);
  const QRectF band = QRectF(*mPressed, mDragged).normalized();
  const bool dragged = mDragging;
  mPressed.reset();
  mDragging = false;
  repaintOverlay();
  if (dragged) {
    const auto picks = picksIn(band);
    if (picks.empty()) select({});
    mark(picks);
    return true;
  }
  const auto at = pickAt(event.localPos());
  if (at && !isShown(at->shot)) {
    emit shotChosen(static_cast<int>(at->shot));
  } else if (at && mEditable) {
    mark({*at});
  } else if (at && mCurrent == kAllShots) {
    emit shotChosen(static_cast<int>(at->shot));
  } else {
    select({});
  }
  return true;
}

void LayerCurvesPlot::chooseLayer(int layer) {
  if (layer != static_cast<int>(mLayer)) {
    setLayer(layer);
    emit layerChosen(layer);
  }
  if (mEditable) mark(mSelection);
}

/// Along the curve of the current shot, from where the selection ends.
void LayerCurvesPlot::walk(int steps, bool extend) {
  if (mCurrent == kAllShots) {
    walkShots(0);
    return;
  }
  const auto shot = static_cast<std::uint32_t>(mCurrent);
  const auto& order = mOrder[shot];
  if (order.empty()) return;
  int next = steps > 0 ? 0 : static_cast<int>(order.size()) - 1;
  if (!mSelection.empty()) {
    const auto at = std::find(order.begin(), order.end(), mSelection.back().trace);
    if (at != order.end()) next = static_cast<int>(at - order.begin()) + steps;
  }
  next = std::clamp(next, 0, static_cast<int>(order.size()) - 1);
  const TraceRef to{shot, order[static_cast<std::size_t>(next)]};
  std::vector<TraceRef> picks = extend ? mSelection : std::vector<TraceRef>{};
  picks.erase(std::remove(picks.begin(), picks.end(), to), picks.end());
  picks.push_back(to);
  select(std::move(picks));
}

void LayerCurvesPlot::walkShots(int steps) {
  if (mShots.empty()) return;
  const int last = static_cast<int>(mShots.size()) - 1;
  emit shotChosen(mCurrent == kAllShots ? 0 : std::clamp(mCurrent + steps, 0, last));
}

void LayerCurvesPlot::keyPressEvent(QKeyEvent* event) {
  const bool extend = event->modifiers().testFlag(Qt::ShiftModifier);
  switch (event->key()) {
    case Qt::Key_0:
    case Qt::Key_1:
    case Qt::Key_2:
    case Qt::Key_3:
      chooseLayer(event->key() - Qt::Key_0);
      break;
    case Qt::Key_Left:
      walk(-1, extend);
      break;
    case Qt::Key_Right:
      walk(1, extend);
      break;
    case Qt::Key_PageUp:
      walkShots(-1);
      break;
    case Qt::Key_PageDown:
      walkShots(1);
      break;
    case Qt::Key_Escape:
      // With nothing to give up, the key is for whoever the plot is part of.
      if (!mDragging && mSelection.empty()) {
        event->ignore();
        return;
      }
      mPressed.reset();
      mDragging = false;
      select({});
      break;
    default:
      PlotPage::keyPressEvent(event);
  }
}

}  // namespace talvesk

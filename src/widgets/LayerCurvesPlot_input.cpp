#include "figures/FigureItem.h"
#include "model/TravelTime.h"
#include "widgets/LayerCurvesPlot.h"
#include "widgets/PlotGestures_tools.h"

#include <QKeyEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <limits>

#include <qwt_plot_item.h>

// How the curves answer mouse and keys.

namespace talvesk {
namespace {

constexpr double kReach = 9.0;   ///< pixels from a pick that still hit it
constexpr double kLayer = 20.0;  ///< above the grid

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

void LayerCurvesPlot::click(const QPointF& point) {
  const auto at = pickAt(point);
  if (at && mEditable && isShown(at->shot)) {
    mark({*at});
  } else if (at && (!isShown(at->shot) || mCurrent == kAllShots)) {
    emit shotChosen(static_cast<int>(at->shot));
  } else {
    select({});
  }
}

/// Marks the pick under a click, or those in the rectangle.
class LayerCurvesPlot::MarkTool : public PlotTool {
 public:
  explicit MarkTool(LayerCurvesPlot& plot) : mPlot(plot) {}

  bool press(const ToolEvent& event) override {
    mFrom = mTo = event.at;
    mDragging = false;
    return true;
  }
  void move(const ToolEvent& event) override {
    mTo = event.at;
    mDragging = mDragging || isDrag(mTo - mFrom);
    if (mDragging) mPlot.read(mPlot.picksIn(band()));
  }
  void release(const ToolEvent& event) override {
    if (!mDragging) return mPlot.click(event.at);
    const auto picks = mPlot.picksIn(band());
    if (picks.empty()) mPlot.select({});
    mPlot.mark(picks);
  }
  void giveUp() override { mPlot.read(mPlot.mSelection); }
  void paint(QPainter& painter) const override {
    if (mDragging) paintBand(painter, band(), mPlot.shown(mPlot.mLayer));
  }

 private:
  QRectF band() const { return QRectF(mFrom, mTo).normalized(); }

  LayerCurvesPlot& mPlot;
  QPointF mFrom;
  QPointF mTo;
  bool mDragging = false;
};

LayerCurvesPlot::LayerCurvesPlot(QWidget* parent)
    : PlotPage(parent),
      mMark(std::make_unique<MarkTool>(*this)),
      mChoose(std::make_unique<BandTool>(gestures(), [this](const QPointF& at) { click(at); })) {
  alignNumbers();
  add(figureItem({}, kLayer,
                 [this](QPainter& painter, const QwtScaleMap&, const QwtScaleMap&, const QRectF&) {
                   paintCurves(painter);
                 }));
}

LayerCurvesPlot::~LayerCurvesPlot() = default;

PlotTool* LayerCurvesPlot::toolFor(Qt::MouseButton button, Qt::KeyboardModifiers keys,
                                   const QPointF&) {
  if (button != Qt::LeftButton || (keys & Qt::ShiftModifier)) return nullptr;
  return mEditable ? mMark.get() : mChoose.get();
}

void LayerCurvesPlot::hovered(const std::optional<QPointF>& at) {
  const bool free = at && gestures().toolAtWork() == nullptr;
  const auto now = free ? pickAt(*at) : std::nullopt;
  if (now == mHovered) return;
  mHovered = now;
  repaintLive();
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

bool LayerCurvesPlot::keyPressed(const QKeyEvent& event) {
  const bool extend = event.modifiers().testFlag(Qt::ShiftModifier);
  switch (event.key()) {
    case Qt::Key_0:
    case Qt::Key_1:
    case Qt::Key_2:
    case Qt::Key_3:
      chooseLayer(event.key() - Qt::Key_0);
      return true;
    case Qt::Key_Left:
      walk(-1, extend);
      return true;
    case Qt::Key_Right:
      walk(1, extend);
      return true;
    case Qt::Key_PageUp:
      walkShots(-1);
      return true;
    case Qt::Key_PageDown:
      walkShots(1);
      return true;
    case Qt::Key_Escape:
      // With nothing to give up, the key is for whoever the plot is part of.
      if (mSelection.empty()) return false;
      select({});
      return true;
    default:
      return false;
  }
}

}  // namespace talvesk

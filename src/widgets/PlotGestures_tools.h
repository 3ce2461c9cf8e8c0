#pragma once

#include "widgets/PlotTool.h"
#include "widgets/ViewWindow.h"

#include <QColor>
#include <QRectF>
#include <functional>
#include <utility>

namespace talvesk {

class PlotGestures;

/// A rectangle that is being dragged.
void paintBand(QPainter& painter, const QRectF& band, QColor color);

/// Whether the way is long enough to be meant; shorter ones are the shaking of a hand that clicks.
bool isDrag(const QPointF& way);

/// Drags the picture.
class PanTool : public PlotTool {
 public:
  explicit PanTool(PlotGestures& gestures) : mGestures(gestures) {}

  bool press(const ToolEvent& event) override;
  void move(const ToolEvent& event) override;
  void release(const ToolEvent& event) override;
  void giveUp() override;
  std::optional<Qt::CursorShape> cursor() const override { return Qt::ClosedHandCursor; }

 private:
  PlotGestures& mGestures;
  QPointF mGrabbed;    ///< place
  ViewWindow mBefore;  ///< the press
};

/// Zooms to a rectangle. A flat one zooms sideways only, a narrow one up and down only.
class BandTool : public PlotTool {
 public:
  using Click = std::function<void(const QPointF& at)>;
  /// \param click what a click does
  explicit BandTool(PlotGestures& gestures, Click click = nullptr)
      : mGestures(gestures), mClick(std::move(click)) {}

  bool press(const ToolEvent& event) override;
  void move(const ToolEvent& event) override;
  void release(const ToolEvent& event) override;
  void paint(QPainter& painter) const override;

 private:
  QRectF band() const { return QRectF(mFrom, mTo).normalized(); }

  PlotGestures& mGestures;
  Click mClick;
  QPointF mFrom;
  QPointF mTo;
};

}  // namespace talvesk

#include "widgets/PlotGestures_tools.h"

#include "widgets/PlotGestures.h"

#include <QApplication>
#include <QPainter>
#include <QWidget>
#include <algorithm>
#include <tuple>

namespace talvesk {

void paintBand(QPainter& painter, const QRectF& band, QColor color) {
  painter.setPen(QPen(color, 1.0));
  color.setAlphaF(0.15);
  painter.setBrush(color);
  painter.drawRect(band);
  painter.setBrush(Qt::NoBrush);
}

bool isDrag(const QPointF& way) {
  return way.manhattanLength() >= QApplication::startDragDistance();
}

bool PanTool::press(const ToolEvent& event) {
  mGrabbed = mGestures.surface().placeAt(event.at);
  mBefore = mGestures.viewport().window();
  return true;
}

void PanTool::move(const ToolEvent& event) {
  const QPointF by = mGrabbed - mGestures.surface().placeAt(event.at);
  mGestures.show(moved(mGestures.viewport().window(), by.x(), by.y()), Viewport::Step::Silent);
}

void PanTool::release(const ToolEvent&) {
  mGestures.arriveFrom(mBefore);
}

void PanTool::giveUp() {
  mGestures.show(mBefore, Viewport::Step::Silent);
}

bool BandTool::press(const ToolEvent& event) {
  mFrom = mTo = event.at;
  return true;
}

void BandTool::move(const ToolEvent& event) {
  const QRectF area = mGestures.surface().area();
  mTo = {std::clamp(event.at.x(), area.left(), area.right()),
         std::clamp(event.at.y(), area.top(), area.bottom())};
}

void BandTool::release(const ToolEvent& event) {
  const bool wide = isDrag({band().width(), 0.0});
  const bool high = isDrag({0.0, band().height()});
  if (!wide && !high) {
    if (mClick) mClick(event.at);
    return;
  }
  const QPointF a = mGestures.surface().placeAt(mFrom);
  const QPointF b = mGestures.surface().placeAt(mTo);
  ViewWindow wanted = mGestures.viewport().window();
  if (wide) std::tie(wanted.left, wanted.right) = std::minmax(a.x(), b.x());
  if (high) std::tie(wanted.top, wanted.bottom) = std::minmax(a.y(), b.y());
  mGestures.show(wanted, Viewport::Step::New);
}

void BandTool::paint(QPainter& painter) const {
  paintBand(painter, band(), mGestures.canvas().palette().color(QPalette::Highlight));
}

}  // namespace talvesk

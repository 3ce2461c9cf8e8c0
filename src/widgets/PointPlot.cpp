#include "widgets/PointPlot.h"

#include "widgets/PlotGestures_tools.h"

#include <QCursor>
#include <QKeyEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <utility>

#include <qwt_plot.h>

namespace talvesk {
namespace {

constexpr double kReach = 9.0;  // pixels around a point
constexpr double kRing = 6.0;   // radius, pixels
constexpr double kMostNumbers = 12.0;

}  // namespace

PointPlot::PointPlot(QWidget* parent) : SeriesPlot(parent) {
  mTool = std::make_unique<BandTool>(gestures(), [this](const QPointF& at) {
    const std::optional<std::size_t> point = pointAt(at);
    if (!point) return;
    moveTo(*point);
    emit pointChosen(*point);
  });
}

PointPlot::~PointPlot() = default;

void PointPlot::setPoints(std::vector<Point2D> points) {
  mPoints = std::move(points);
  mOrder.clear();
  for (std::size_t i = 0; i < mPoints.size(); ++i) {
    if (isFinite(mPoints[i])) mOrder.push_back(i);
  }
  std::stable_sort(mOrder.begin(), mOrder.end(),
                   [this](std::size_t a, std::size_t b) { return mPoints[a].x < mPoints[b].x; });
  mCurrent.reset();
  repaintLive();
}

void PointPlot::setCurrent(std::optional<std::size_t> point) {
  if (point && (*point >= mPoints.size() || !isFinite(mPoints[*point]))) point.reset();
  mCurrent = point;
  setAccessibleDescription(point && mTextOf ? mTextOf(*point) : QString());
  repaintLive();
}

void PointPlot::moveTo(std::size_t point) {
  setCurrent(point);
  emit currentChanged();
}

std::optional<std::size_t> PointPlot::pointAt(const QPointF& at) const {
  std::optional<std::size_t> nearest;
  double least = kReach * kReach;
  for (const std::size_t i : mOrder) {
    const QPointF way = toCanvas({mPoints[i].x, mPoints[i].z}) - at;
    const double distance = QPointF::dotProduct(way, way);
    if (distance > least) continue;
    least = distance;
    nearest = i;
  }
  return nearest;
}

void PointPlot::scaleAxes() {
  PlotPage::scaleAxes();
  if (!mWholeNumbers) return;
  plot().setAxisMaxMinor(QwtPlot::xBottom, 0);
  plot().setAxisScale(QwtPlot::xBottom, window().left, window().right,
                      std::ceil(window().width() / kMostNumbers));
}

PlotTool* PointPlot::toolFor(Qt::MouseButton button, Qt::KeyboardModifiers keys,
                             const QPointF& /*at*/) {
  return button == Qt::LeftButton && keys == Qt::NoModifier ? mTool.get() : nullptr;
}

void PointPlot::step(std::ptrdiff_t by) {
  if (mOrder.empty()) return;
  const auto at = mCurrent ? std::find(mOrder.begin(), mOrder.end(), *mCurrent) : mOrder.end();
  if (at == mOrder.end()) return moveTo(by > 0 ? mOrder.front() : mOrder.back());
  const auto last = static_cast<std::ptrdiff_t>(mOrder.size()) - 1;
  const std::ptrdiff_t rank = std::clamp<std::ptrdiff_t>(at - mOrder.begin() + by, 0, last);
  moveTo(mOrder[static_cast<std::size_t>(rank)]);
}

bool PointPlot::keyPressed(const QKeyEvent& event) {
  const bool control = event.modifiers().testFlag(Qt::ControlModifier);
  switch (event.key()) {
    case Qt::Key_Left:
    case Qt::Key_Right:
      if (!control) return false;
      step(event.key() == Qt::Key_Right ? 1 : -1);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (mCurrent) emit pointChosen(*mCurrent);
      return true;  // else a button of the dialog takes it
    default:
      return false;
  }
}

void PointPlot::hovered(const std::optional<QPointF>& at) {
  const std::optional<std::size_t> point = at ? pointAt(*at) : std::nullopt;
  if (point && mTextOf) {
    QToolTip::showText(QCursor::pos(), mTextOf(*point), canvas());
  } else {
    QToolTip::hideText();
  }
}

void PointPlot::paintOverlay(QPainter& painter) {
  if (!mCurrent) return;
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2.0));
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(toCanvas({mPoints[*mCurrent].x, mPoints[*mCurrent].z}), kRing, kRing);
}

}  // namespace talvesk

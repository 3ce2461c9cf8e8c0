#include "widgets/section/SectionView_state.h"

#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

// What mouse and keys do to the view.

namespace talvesk {
namespace {

constexpr double kZoomStep = 1.25;
constexpr double kFarthest = 20.0;     ///< how much smaller than in full view
constexpr double kPanShare = 0.1;      ///< of the plot, per arrow key
constexpr double kTurnPerPixel = 0.4;  ///< degrees
constexpr double kTurnPerKey = 5.0;    ///< degrees

}  // namespace

bool SectionView::eventFilter(QObject* watched, QEvent* event) {
  if (watched == mState->paper && sheetEvent(event)) return true;
  return QWidget::eventFilter(watched, event);
}

bool SectionView::sheetEvent(QEvent* event) {
  State& s = *mState;
  if (event->type() == QEvent::Resize) {
    layOut();
    return false;
  }
  if (isEmpty()) return false;
  if (toolEvent(event)) return true;
  switch (event->type()) {
    case QEvent::Wheel: {
      auto* wheel = static_cast<QWheelEvent*>(event);
      const double notches = wheel->angleDelta().y() / 120.0;
      if (notches == 0.0) return false;
      zoomBy(std::pow(kZoomStep, notches), wheel->position() - plotRect().topLeft());
      readCursor(wheel->position());
      return true;
    }
    case QEvent::MouseButtonPress: {
      auto* mouse = static_cast<QMouseEvent*>(event);
      s.dragButton = mouse->button();
      s.dragPoint = mouse->localPos();
      return true;
    }
    case QEvent::MouseButtonDblClick:
      resetView();
      return true;
    case QEvent::MouseMove: {
      auto* mouse = static_cast<QMouseEvent*>(event);
      if (s.dragButton != Qt::NoButton && mouse->buttons() != Qt::NoButton) drag(mouse->localPos());
      readCursor(mouse->localPos());
      return true;
    }
    case QEvent::MouseButtonRelease:
      s.dragButton = Qt::NoButton;
      s.tool ? s.paper->setCursor(Qt::CrossCursor) : s.paper->unsetCursor();
      return true;
    case QEvent::Leave:
      s.cursor.reset();
      emit cursorLeft();
      return false;
    case QEvent::KeyPress:
      return key(static_cast<QKeyEvent*>(event)->key());
    default:
      return false;
  }
}

void SectionView::drag(const QPointF& to) {
  State& s = *mState;
  const QPointF by = to - s.dragPoint;
  s.dragPoint = to;
  const bool turns = s.turning && s.dragButton != Qt::MiddleButton;
  s.paper->setCursor(turns ? Qt::SizeAllCursor : Qt::ClosedHandCursor);
  if (turns) {
    s.camera.turnBy(-kTurnPerPixel * by.x(), kTurnPerPixel * by.y());
  } else {
    s.camera.pan(by);
    s.fits = false;
  }
  applyCamera(true);
}

/// \param point of the plot that stays in place
void SectionView::zoomBy(double factor, const QPointF& point) {
  State& s = *mState;
  const QSizeF size = plotRect().size();
  // Farther away, the section is a speck that nobody finds again.
  SectionCamera whole = s.camera;
  s.sheetPaper().fit(whole, size);
  const double least = std::min(s.camera.metresPerPixel / (kFarthest * whole.metresPerPixel), 1.0);
  s.camera.zoomAt(point, std::max(factor, least), size);
  s.fits = false;
  applyCamera(true);
}

void SectionView::zoomIn() {
  const QRect plot = plotRect();
  zoomBy(kZoomStep, {0.5 * plot.width(), 0.5 * plot.height()});
}

void SectionView::zoomOut() {
  const QRect plot = plotRect();
  zoomBy(1.0 / kZoomStep, {0.5 * plot.width(), 0.5 * plot.height()});
}

bool SectionView::key(int key) {
  State& s = *mState;
  QPointF way;
  switch (key) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      zoomIn();
      return true;
    case Qt::Key_Minus:
      zoomOut();
      return true;
    case Qt::Key_Home:
      resetView();
      return true;
    case Qt::Key_Left:
      way = {-1.0, 0.0};
      break;
    case Qt::Key_Right:
      way = {1.0, 0.0};
      break;
    case Qt::Key_Up:
      way = {0.0, -1.0};
      break;
    case Qt::Key_Down:
      way = {0.0, 1.0};
      break;
    default:
      return false;
  }
  if (s.turning) {
    s.camera.turnBy(kTurnPerKey * way.x(), -kTurnPerKey * way.y());
  } else {
    const QSizeF size = plotRect().size();
    // The view goes the way of the arrow, so the picture goes the other.
    s.camera.pan({-kPanShare * size.width() * way.x(), -kPanShare * size.height() * way.y()});
    s.fits = false;
  }
  applyCamera(true);
  return true;
}

void SectionView::readCursor(const QPointF& point) {
  mState->cursor = point;
  if (!QRectF(plotRect()).contains(point)) {
    emit cursorLeft();
    return;
  }
  emit cursorMoved(readSection(*mState->sheet.scene(), positionOf(point)));
}

}  // namespace talvesk

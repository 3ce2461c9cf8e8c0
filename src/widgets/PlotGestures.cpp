#include "widgets/PlotGestures.h"

#include "widgets/PlotGestures_tools.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {
namespace {

constexpr double kWheelStep = 1.25;  ///< zoom by one notch
constexpr double kNotch = 120.0;     ///< eighths of a degree
constexpr double kPanStep = 0.1;     ///< of what is seen
constexpr double kPage = 0.8;        ///< of what is seen

/// Something; else events end what was begun, or follow the mouse.
bool begins(QEvent::Type type) {
  return type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick ||
         type == QEvent::Wheel || type == QEvent::KeyPress;
}

}  // namespace

PlotGestures::PlotGestures(PlotSurface& surface, QWidget& widget, QWidget& canvas)
    : mSurface(surface),
      mWidget(widget),
      mCanvas(canvas),
      mPan(std::make_unique<PanTool>(*this)),
      mBand(std::make_unique<BandTool>(*this)) {
  widget.setFocusPolicy(Qt::StrongFocus);
  canvas.setMouseTracking(true);
  widget.installEventFilter(this);
  if (&canvas != &widget) canvas.installEventFilter(this);
}

PlotGestures::~PlotGestures() = default;

void PlotGestures::tell(bool changed) {
  if (changed) mSurface.viewMoved();
}

void PlotGestures::zoom(double by) {
  const QRectF area = mSurface.area();
  zoomAbout(mHover && area.contains(*mHover) ? *mHover : area.center(), by, by);
}

void PlotGestures::zoomAbout(const QPointF& point, double byX, double byY) {
  const QRectF area = mSurface.area();
  const QPointF place = mSurface.placeAt({std::clamp(point.x(), area.left(), area.right()),
                                          std::clamp(point.y(), area.top(), area.bottom())});
  tell(mViewport.zoomAbout(place.x(), place.y(), byX, byY));
}

void PlotGestures::panBy(double partOfWidth, double partOfHeight) {
  const QRectF area = mSurface.area();
  const QPointF on(partOfWidth * area.width(), partOfHeight * area.height());
  const QPointF by = mSurface.placeAt(area.center() + on) - mSurface.placeAt(area.center());
  tell(mViewport.pan(by.x(), by.y(), Viewport::Step::Continuing));
}

void PlotGestures::paintTool(QPainter& painter) const {
  if (mTool != nullptr) mTool->paint(painter);
}

void PlotGestures::giveUpDrag() {
  PlotTool* given = std::exchange(mTool, nullptr);
  if (given == nullptr) return;
  given->giveUp();
  followCursor();
  mSurface.repaintLive();
}

bool PlotGestures::eventFilter(QObject* watched, QEvent* event) {
  if (mSurface.hasNothing() && begins(event->type())) return false;
  // What a canvas does not take comes to the widget around it once more.
  return (watched == &mCanvas && mouseEvent(*event)) || (watched == &mWidget && keyEvent(*event));
}

bool PlotGestures::mouseEvent(const QEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
      return press(static_cast<const QMouseEvent&>(event), false);
    case QEvent::MouseButtonDblClick:
      return press(static_cast<const QMouseEvent&>(event), true);
    case QEvent::MouseMove:
      move(static_cast<const QMouseEvent&>(event));
      return true;
    case QEvent::MouseButtonRelease:
      return release(static_cast<const QMouseEvent&>(event));
    case QEvent::Leave:
      hover(std::nullopt);
      return false;
    case QEvent::Wheel:
      turn(static_cast<const QWheelEvent&>(event));
      return true;
    default:
      return false;
  }
}

PlotTool* PlotGestures::toolFor(const QMouseEvent& event) {
  const bool left = event.button() == Qt::LeftButton;
  const bool within = mSurface.area().contains(event.localPos());
  if (event.button() == Qt::MiddleButton || (left && mSpaceHeld)) return mPan.get();
  const bool ctrl = (event.modifiers() & Qt::ControlModifier) != 0;
  const bool shift = (event.modifiers() & Qt::ShiftModifier) != 0;
  if (left && ctrl && !shift) {
    return within ? mBand.get() : mSurface.toolBeside(event.localPos());
  }
  PlotTool* own = mSurface.toolFor(event.button(), event.modifiers(), event.localPos());
  if (own != nullptr || !left || !within) return own;
  return shift && !ctrl ? mPan.get() : mBand.get();
}

bool PlotGestures::press(const QMouseEvent& event, bool twice) {
  if (mTool != nullptr) {
    giveUpDrag();
    return true;
  }
  mWidget.setFocus(Qt::MouseFocusReason);
  if (event.button() == Qt::BackButton || event.button() == Qt::ForwardButton) {
    event.button() == Qt::BackButton ? goBack() : goForward();
    return true;
  }
  PlotTool* tool = toolFor(event);
  if (tool == nullptr) return false;
  if (twice && event.button() == Qt::LeftButton && !tool->takesDoubleClick()) {
    fit();
    return true;
  }
  if (!tool->press({event.localPos(), event.modifiers()})) return false;
  mTool = tool;
  mButton = event.button();
  mDragged = event.localPos();
  followCursor();
  hover(event.localPos());
  return true;
}

void PlotGestures::move(const QMouseEvent& event) {
  if (mTool != nullptr) {
    mDragged = event.localPos();
    mTool->move({event.localPos(), event.modifiers()});
    mSurface.repaintLive();
  }
  hover(event.localPos());
}

bool PlotGestures::release(const QMouseEvent& event) {
  if (mTool == nullptr || event.button() != mButton) return false;
  // A quick hand may have left no moves between.
  if (event.localPos() != mDragged) move(event);
  // What the tool does may end a drag; this one is over.
  PlotTool* done = std::exchange(mTool, nullptr);
  followCursor();
  if (done != nullptr) done->release({event.localPos(), event.modifiers()});
  mSurface.repaintLive();
  hover(event.localPos());
  return true;
}

void PlotGestures::turn(const QWheelEvent& event) {
  const QPoint angle = event.angleDelta();
  const Qt::KeyboardModifiers keys =
      event.modifiers() & (Qt::ControlModifier | Qt::ShiftModifier | Qt::AltModifier);
  // Some systems turn a wheel with Alt or Shift held into one that turns sideways.
  const bool sideways = std::abs(angle.x()) > std::abs(angle.y());
  const double notches = (sideways ? angle.x() : angle.y()) / kNotch;
  if (notches == 0.0) return;
  if (sideways && keys == Qt::NoModifier) {
    panBy(-kPanStep * notches, 0.0);
  } else if (!mSurface.wheelTurned(notches, keys)) {
    const double by = std::pow(kWheelStep, notches);
    zoomAbout(event.position(), keys & Qt::ControlModifier ? 1.0 : by,
              keys & Qt::ShiftModifier ? 1.0 : by);
  }
  hover(event.position());
}

bool PlotGestures::keyEvent(const QEvent& event) {
  switch (event.type()) {
    case QEvent::KeyPress:
      return key(static_cast<const QKeyEvent&>(event));
    case QEvent::KeyRelease: {
      const auto& released = static_cast<const QKeyEvent&>(event);
      if (released.key() == Qt::Key_Space && !released.isAutoRepeat()) holdSpace(false);
      return false;
    }
    case QEvent::FocusOut:
      holdSpace(false);
      return false;
    default:
      return false;
  }
}

bool PlotGestures::key(const QKeyEvent& event) {
  if (mTool != nullptr) {  // a drag under way keeps what it has begun with
    if (event.key() == Qt::Key_Escape) giveUpDrag();
    return event.key() == Qt::Key_Escape;
  }
  if (mSurface.keyPressed(event)) return true;
  const bool plain =
      !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
  return plain && viewKey(event);
}

bool PlotGestures::viewKey(const QKeyEvent& event) {
  static const struct {
    int key;
    void (*act)(PlotGestures&, bool shift);
  } kKeys[] = {
      {Qt::Key_Plus, [](PlotGestures& g, bool) { g.zoom(kZoomStep); }},
      {Qt::Key_Equal, [](PlotGestures& g, bool) { g.zoom(kZoomStep); }},
      {Qt::Key_Minus, [](PlotGestures& g, bool) { g.zoom(1.0 / kZoomStep); }},
      {Qt::Key_F, [](PlotGestures& g, bool) { g.fit(); }},
      {Qt::Key_H, [](PlotGestures& g, bool) { g.home(); }},
      {Qt::Key_Home, [](PlotGestures& g, bool) { g.home(); }},
      {Qt::Key_Backspace, [](PlotGestures& g, bool shift) { shift ? g.goForward() : g.goBack(); }},
      {Qt::Key_Left, [](PlotGestures& g, bool) { g.panBy(-kPanStep, 0.0); }},
      {Qt::Key_Right, [](PlotGestures& g, bool) { g.panBy(kPanStep, 0.0); }},
      {Qt::Key_Up, [](PlotGestures& g, bool) { g.panBy(0.0, -kPanStep); }},
      {Qt::Key_Down, [](PlotGestures& g, bool) { g.panBy(0.0, kPanStep); }},
      {Qt::Key_PageUp, [](PlotGestures& g, bool) { g.panBy(0.0, -kPage); }},
      {Qt::Key_PageDown, [](PlotGestures& g, bool) { g.panBy(0.0, kPage); }},
      {Qt::Key_Space, [](PlotGestures& g, bool) { g.holdSpace(true); }}};
  for (const auto& row : kKeys) {
    if (row.key != event.key()) continue;
    row.act(*this, event.modifiers().testFlag(Qt::ShiftModifier));
    return true;
  }
  return false;
}

void PlotGestures::holdSpace(bool held) {
  mSpaceHeld = held;
  followCursor();
}

void PlotGestures::hover(const std::optional<QPointF>& at) {
  mHover = at;
  if (!mSpaceHeld || mTool != nullptr) mSurface.hovered(at);  // else the hand is in the way
}

void PlotGestures::followCursor() {
  const std::optional<Qt::CursorShape> wanted = mTool != nullptr ? mTool->cursor()
                                                : mSpaceHeld     ? std::optional(Qt::OpenHandCursor)
                                                                 : std::nullopt;
  if (wanted) {
    if (!mUsualCursor) mUsualCursor = mCanvas.cursor();
    mCanvas.setCursor(*wanted);
  } else if (mUsualCursor) {
    mCanvas.setCursor(*mUsualCursor);
    mUsualCursor.reset();
  }
}

}  // namespace talvesk

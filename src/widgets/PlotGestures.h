#pragma once

#include "widgets/PlotTool.h"
#include "widgets/Viewport.h"

#include <QCursor>
#include <QObject>
#include <QPointF>
#include <QRectF>
#include <memory>
#include <optional>

class QKeyEvent;
class QMouseEvent;
class QPainter;
class QWheelEvent;
class QWidget;

namespace talvesk {

/// What a plot tells of itself, so that it can be moved about in. Points are on its canvas, pixels;
/// places are in the units of its viewport.
class PlotSurface {
 public:
  virtual ~PlotSurface() = default;

  virtual bool hasNothing() const = 0;  ///< to be seen: no gesture begins
  virtual QRectF area() const = 0;      ///< that the window fills
  virtual QPointF placeAt(const QPointF& point) const = 0;
  virtual void viewMoved() = 0;    ///< another window, or other ones to go back to
  virtual void repaintLive() = 0;  ///< what the tool at work draws

  /// The plot's own tool for a button that goes down; null for none. Changes nothing.
  virtual PlotTool* toolFor(Qt::MouseButton, Qt::KeyboardModifiers, const QPointF&) {
    return nullptr;
  }
  /// The same for the left button with Ctrl beside the plot; in it they zoom to a rectangle.
  virtual PlotTool* toolBeside(const QPointF&) { return nullptr; }
  /// The plot's own keys and turns of the wheel, which come before those of all plots.
  /// \return whether it was one
  virtual bool keyPressed(const QKeyEvent&) { return false; }
  virtual bool wheelTurned(double /*notches*/, Qt::KeyboardModifiers) { return false; }
  virtual void hovered(const std::optional<QPointF>&) {}  ///< none: the mouse has left
};

/// The one set of gestures of all plots: turns mouse, wheel and keys into moves of a viewport and
/// hands the drags to the tools.
///
/// Wheel: zoom at the cursor, with Ctrl up and down only, with Shift sideways only; a wheel that is
/// turned sideways pans. Middle drag, or left drag with Space held, pans. Left drag: with Ctrl a
/// rectangle to zoom to; else the plot's own tool; where it has none, the rectangle, or with Shift,
/// panning. F, double click unless the tool takes it: everything. H, Home: the opening view.
/// Backspace, Shift+Backspace and the side buttons of the mouse: back and forth in the history of
/// views. + and -: zoom, about the cursor while it is over the plot. Arrows, Page Up and Page Down:
/// pan. Escape, or another button, gives up a drag.
class PlotGestures : public QObject {
 public:
  /// \param widget has the focus \param canvas has the mouse; may be the same
  PlotGestures(PlotSurface& surface, QWidget& widget, QWidget& canvas);
  ~PlotGestures() override;

  Viewport& viewport() { return mViewport; }
  const Viewport& viewport() const { return mViewport; }
  const PlotSurface& surface() const { return mSurface; }
  QWidget& canvas() const { return mCanvas; }

  void show(const ViewWindow& wanted, Viewport::Step step) { tell(mViewport.show(wanted, step)); }
  void zoom(double by);  ///< about the cursor while it is over the plot, else about the middle
  void zoomAbout(const QPointF& point, double byX, double byY);
  void panBy(double partOfWidth, double partOfHeight);  ///< to the right and down on the screen
  void fit() { tell(mViewport.fit()); }
  void home() { tell(mViewport.home()); }
  void goBack() { tell(mViewport.goBack()); }
  void goForward() { tell(mViewport.goForward()); }
  void arriveFrom(const ViewWindow& before) { tell(mViewport.arriveFrom(before)); }

  PlotTool* panTool() const { return mPan.get(); }
  PlotTool* bandTool() const { return mBand.get(); }
  const PlotTool* toolAtWork() const { return mTool; }
  void paintTool(QPainter& painter) const;
  void giveUpDrag();

  static constexpr double kZoomStep = 1.5;  ///< of a key or button

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void tell(bool changed);
  PlotTool* toolFor(const QMouseEvent& event);
  bool mouseEvent(const QEvent& event);
  bool press(const QMouseEvent& event, bool twice);
  void move(const QMouseEvent& event);
  bool release(const QMouseEvent& event);
  void turn(const QWheelEvent& event);
  bool keyEvent(const QEvent& event);
  bool key(const QKeyEvent& event);
  bool viewKey(const QKeyEvent& event);
  void holdSpace(bool held);
  void hover(const std::optional<QPointF>& at);
  void followCursor();

  PlotSurface& mSurface;
  QWidget& mWidget;
  QWidget& mCanvas;
  Viewport mViewport;
  std::unique_ptr<PlotTool> mPan;
  std::unique_ptr<PlotTool> mBand;
  PlotTool* mTool = nullptr;  ///< at work
  Qt::MouseButton mButton = Qt::NoButton;
  QPointF mDragged;
  std::optional<QPointF> mHover;
  bool mSpaceHeld = false;
  std::optional<QCursor> mUsualCursor;  ///< of the canvas, while it has another one
};

}  // namespace talvesk

#pragma once

#include "view/ColorPalette.h"
#include "view/FenceScene.h"

#include <QPointF>
#include <QWidget>
#include <memory>

namespace talvesk {

/// Sections of several lines standing at their places, with names, a north arrow and the bar of
/// their colours.
///
/// Drag: turn. Middle button, or Shift and drag: move. Wheel: zoom. Keys: arrows turn, + and -
/// zoom, Home shows all.
class FenceView : public QWidget {
  Q_OBJECT

 public:
  explicit FenceView(QWidget* parent = nullptr);
  ~FenceView() override;

  /// The view stays where it is, but for a first scene, which is shown whole.
  /// \param palette its scale is the range of all panels
  void setScene(FenceScene scene, const ColorPalette& palette);
  void setExaggeration(double factor);
  void showAll();
  const FenceScene& scene() const;
  const FenceCamera& camera() const;

  QSize sizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void look();
  void turn(double turned, double tilted);
  void zoom(double factor);

  struct Parts;
  std::unique_ptr<Parts> mParts;
};

}  // namespace talvesk

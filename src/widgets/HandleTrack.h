#pragma once

#include "view/ColorPalette.h"

#include <QColor>
#include <QWidget>
#include <cstddef>
#include <vector>

class QLabel;

namespace talvesk {

class HandleSlider;

/// The handles of a gradient side by side: one slider per colour stop, all over the same range and
/// on top of each other, each with its value below. It only tells what the user wants; who owns it
/// decides, and sets the handles accordingly.
class HandleTrack : public QWidget {
  Q_OBJECT

 public:
  explicit HandleTrack(QWidget* parent = nullptr);
  ~HandleTrack() override;

  /// Pixels between an end of the track and the handle at that end of the scale.
  static int margin();

  struct Handle {
    int value = 0;
    QColor color;
  };
  /// Puts these handles in place of those there are; makes as many sliders as they need.
  void setHandles(const std::vector<Handle>& handles, int minimum, int maximum,
                  std::size_t selected);
  QPoint handlePosition(std::size_t index) const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  void selected(int index);
  void dragged(int index, int value);  ///< to what value the mouse or a key would take it
  void colorWanted();
  void additionWanted();
  void removalWanted();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  int handleAt(int x) const;
  void layOut();
  void layOutLabels();
  int stepOf(const QKeyEvent& event) const;

  std::vector<HandleSlider*> mSliders;
  std::vector<QLabel*> mLabels;
  std::size_t mSelected = 0;
  int mPressedX = 0;
  int mPressedHandle = -1;  ///< while the mouse holds one
  bool mDragging = false;
};

}  // namespace talvesk

#pragma once

#include <QWidget>
#include <functional>

class QPainter;

namespace talvesk {

/// What changes with every move of the mouse, above the picture of a plot's curves, which then need
/// not be drawn again. It lets all events through to the canvas; the owner keeps its size.
class PlotOverlay : public QWidget {
 public:
  PlotOverlay(QWidget* canvas, std::function<void(QPainter&)> paint);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::function<void(QPainter&)> mPaint;
};

}  // namespace talvesk

#include "widgets/PlotOverlay.h"

#include <QPainter>
#include <utility>

namespace talvesk {

PlotOverlay::PlotOverlay(QWidget* canvas, std::function<void(QPainter&)> paint)
    : QWidget(canvas), mPaint(std::move(paint)) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::NoFocus);
}

void PlotOverlay::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  mPaint(painter);
}

}  // namespace talvesk

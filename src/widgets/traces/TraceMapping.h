#pragma once

#include "widgets/ViewWindow.h"

#include <QPointF>
#include <QRectF>

namespace talvesk {

/// Straight from positions and seconds to a rectangle of the screen, time downward. Positions are
/// those of a TraceLayout, times are as drawn: ShotTraces::drawnTime().
struct TraceMapping {
  QRectF plot;  ///< not empty
  ViewWindow window;

  double x(double position) const {
    return plot.left() + (position - window.left) / window.width() * plot.width();
  }
  double y(double time) const {
    return plot.top() + (time - window.top) / window.height() * plot.height();
  }
  QPointF point(double position, double time) const { return {x(position), y(time)}; }
  double positionAt(double px) const {
    return window.left + (px - plot.left()) / plot.width() * window.width();
  }
  double timeAt(double py) const {
    return window.top + (py - plot.top()) / plot.height() * window.height();
  }
};

}  // namespace talvesk

#pragma once

#include <QPointF>
#include <QRectF>

namespace talvesk {

/// The part of a shot that is seen. Positions are channels from 0 or metres along the line.
struct TraceWindow {
  double left = 0.0;    ///< position
  double right = 1.0;   ///< position, above left
  double top = 0.0;     ///< seconds
  double bottom = 1.0;  ///< seconds, above top

  double width() const { return right - left; }
  double height() const { return bottom - top; }
};

inline bool operator==(const TraceWindow& a, const TraceWindow& b) {
  return a.left == b.left && a.right == b.right && a.top == b.top && a.bottom == b.bottom;
}
inline bool operator!=(const TraceWindow& a, const TraceWindow& b) {
  return !(a == b);
}

/// Straight from positions and seconds to a rectangle of the screen, time downward.
struct TraceMapping {
  QRectF plot;  ///< not empty
  TraceWindow window;

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

/// Narrower by the factors (above 0; below 1 is wider), with `position` and `time` staying put.
TraceWindow zoomed(const TraceWindow& window, double position, double time, double byPosition,
                   double byTime);

/// Moved by positions and seconds.
TraceWindow moved(const TraceWindow& window, double positions, double time);

/// Within the whole: no larger, no smaller than the least width and height (but never larger than
/// the whole), not beyond its sides. What is not finite becomes the whole.
TraceWindow confined(const TraceWindow& window, const TraceWindow& whole, double leastWidth,
                     double leastHeight);

}  // namespace talvesk

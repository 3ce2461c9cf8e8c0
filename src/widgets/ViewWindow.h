#pragma once

namespace talvesk {

/// The part of a plot that is seen, in the units of its axes.
struct ViewWindow {
  double left = 0.0;
  double right = 1.0;   ///< above left
  double top = 0.0;     ///< the lesser value, also where the axis grows upward
  double bottom = 1.0;  ///< above top

  double width() const { return right - left; }
  double height() const { return bottom - top; }
};

inline bool operator==(const ViewWindow& a, const ViewWindow& b) {
  return a.left == b.left && a.right == b.right && a.top == b.top && a.bottom == b.bottom;
}
inline bool operator!=(const ViewWindow& a, const ViewWindow& b) {
  return !(a == b);
}

/// Narrower by the factors (above 0; below 1 is wider), with the place (x, y) staying put.
ViewWindow zoomed(const ViewWindow& window, double x, double y, double byX, double byY);

ViewWindow moved(const ViewWindow& window, double byX, double byY);

/// Within the whole: no larger, no smaller than the least width and height (but never larger than
/// the whole), not beyond its sides. What is not finite becomes the whole.
ViewWindow confined(const ViewWindow& window, const ViewWindow& whole, double leastWidth,
                    double leastHeight);

}  // namespace talvesk

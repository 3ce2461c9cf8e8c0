#include "widgets/ViewWindow.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

/// One axis of confined().
void confine(double& from, double& to, double low, double high, double least) {
  const double whole = high - low;
  const double size = std::clamp(to - from, std::min(least, whole), whole);
  if (size == whole) {
    from = low;
    to = high;
    return;
  }
  // Where the size has to change it changes about the middle.
  if (size != to - from) from = 0.5 * (from + to) - 0.5 * size;
  from = std::clamp(from, low, std::max(low, high - size));
  to = from + size;
}

}  // namespace

ViewWindow zoomed(const ViewWindow& window, double x, double y, double byX, double byY) {
  return {x - (x - window.left) / byX, x + (window.right - x) / byX, y - (y - window.top) / byY,
          y + (window.bottom - y) / byY};
}

ViewWindow moved(const ViewWindow& window, double byX, double byY) {
  return {window.left + byX, window.right + byX, window.top + byY, window.bottom + byY};
}

ViewWindow confined(const ViewWindow& window, const ViewWindow& whole, double leastWidth,
                    double leastHeight) {
  ViewWindow result = window;
  if (!std::isfinite(result.width()) || !std::isfinite(result.height())) return whole;
  confine(result.left, result.right, whole.left, whole.right, leastWidth);
  confine(result.top, result.bottom, whole.top, whole.bottom, leastHeight);
  return result;
}

}  // namespace talvesk

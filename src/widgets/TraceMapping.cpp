#include "widgets/TraceMapping.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

/// One axis of confined().
void confine(double& from, double& to, double low, double high, double least) {
  const double whole = high - low;
  const double size = std::clamp(to - from, std::min(least, whole), whole);
  // Where the size has to change it changes about the middle.
  const double middle = 0.5 * (from + to);
  if (size != to - from) from = middle - 0.5 * size;
  from = std::clamp(from, low, std::max(low, high - size));
  to = size == whole ? high : from + size;
}

}  // namespace

TraceWindow zoomed(const TraceWindow& window, double position, double time, double byPosition,
                   double byTime) {
  return {position - (position - window.left) / byPosition,
          position + (window.right - position) / byPosition, time - (time - window.top) / byTime,
          time + (window.bottom - time) / byTime};
}

TraceWindow moved(const TraceWindow& window, double positions, double time) {
  return {window.left + positions, window.right + positions, window.top + time,
          window.bottom + time};
}

TraceWindow confined(const TraceWindow& window, const TraceWindow& whole, double leastWidth,
                     double leastHeight) {
  TraceWindow result = window;
  if (!std::isfinite(result.width()) || !std::isfinite(result.height())) return whole;
  confine(result.left, result.right, whole.left, whole.right, leastWidth);
  confine(result.top, result.bottom, whole.top, whole.bottom, leastHeight);
  return result;
}

}  // namespace talvesk

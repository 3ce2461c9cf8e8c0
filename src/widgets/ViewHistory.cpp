#include "widgets/ViewHistory.h"

namespace talvesk {
namespace {

TraceWindow exchange(std::vector<TraceWindow>& from, std::vector<TraceWindow>& to,
                     const TraceWindow& now) {
  if (from.empty()) return now;
  const TraceWindow window = from.back();
  from.pop_back();
  to.push_back(now);
  return window;
}

}  // namespace

void ViewHistory::clear() {
  mBack.clear();
  mForward.clear();
}

void ViewHistory::leave(const TraceWindow& window) {
  mForward.clear();
  if (!mBack.empty() && mBack.back() == window) return;
  if (mBack.size() == kLongest) mBack.erase(mBack.begin());
  mBack.push_back(window);
}

TraceWindow ViewHistory::back(const TraceWindow& now) {
  return exchange(mBack, mForward, now);
}

TraceWindow ViewHistory::forward(const TraceWindow& now) {
  return exchange(mForward, mBack, now);
}

}  // namespace talvesk

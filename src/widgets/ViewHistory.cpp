#include "widgets/ViewHistory.h"

namespace talvesk {
namespace {

ViewWindow exchange(std::vector<ViewWindow>& from, std::vector<ViewWindow>& to,
                    const ViewWindow& now) {
  if (from.empty()) return now;
  const ViewWindow window = from.back();
  from.pop_back();
  to.push_back(now);
  return window;
}

}  // namespace

void ViewHistory::clear() {
  mBack.clear();
  mForward.clear();
}

void ViewHistory::leave(const ViewWindow& window) {
  mForward.clear();
  if (!mBack.empty() && mBack.back() == window) return;
  if (mBack.size() == kLongest) mBack.erase(mBack.begin());
  mBack.push_back(window);
}

ViewWindow ViewHistory::back(const ViewWindow& now) {
  return exchange(mBack, mForward, now);
}

ViewWindow ViewHistory::forward(const ViewWindow& now) {
  return exchange(mForward, mBack, now);
}

}  // namespace talvesk

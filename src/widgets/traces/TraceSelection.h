#pragma once

#include <algorithm>
#include <utility>
#include <vector>

namespace talvesk {

/// Traces that are worked on together, from 0, and the one that a range was begun at.
class TraceSelection {
 public:
  TraceSelection() = default;
  explicit TraceSelection(std::vector<int> traces, int anchor = -1)
      : mTraces(std::move(traces)), mAnchor(anchor) {
    std::sort(mTraces.begin(), mTraces.end());
    mTraces.erase(std::unique(mTraces.begin(), mTraces.end()), mTraces.end());
  }

  bool empty() const { return mTraces.empty(); }
  const std::vector<int>& traces() const { return mTraces; }  ///< ascending
  int first() const { return mTraces.empty() ? -1 : mTraces.front(); }
  int last() const { return mTraces.empty() ? -1 : mTraces.back(); }
  int anchor() const { return mAnchor; }  ///< -1: none
  bool has(int trace) const { return std::binary_search(mTraces.begin(), mTraces.end(), trace); }

 private:
  std::vector<int> mTraces;
  int mAnchor = -1;
};

inline bool operator==(const TraceSelection& a, const TraceSelection& b) {
  return a.traces() == b.traces();
}

}  // namespace talvesk

#include "widgets/traces/TraceLayout.h"

#include "numerics/Medians.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace talvesk {
namespace {

std::size_t at(int index) {
  return static_cast<std::size_t>(index);
}

bool canBePositions(const std::vector<double>& x) {
  if (!std::all_of(x.begin(), x.end(), [](double v) { return std::isfinite(v); })) return false;
  const auto [low, high] = std::minmax_element(x.begin(), x.end());
  return !x.empty() && *high > *low && std::isfinite(*high - *low);
}

}  // namespace

TraceLayout TraceLayout::byChannel(int count) {
  std::vector<double> positions(at(std::max(count, 0)));
  std::iota(positions.begin(), positions.end(), 0.0);
  return TraceLayout(std::move(positions), false);
}

TraceLayout TraceLayout::byDistance(const std::vector<double>& x) {
  if (!canBePositions(x)) return byChannel(static_cast<int>(x.size()));
  return TraceLayout(x, true);
}

TraceLayout TraceLayout::byOffset(const GatherMapping& mapping) {
  TraceLayout layout(mapping.offsets(), false);
  layout.mByOffset = mapping.manner().byOffset;
  if (layout.mByOffset == OffsetOrder::kAbsolute) layout.foldAboutShot();
  return layout;
}

/// Either side keeps the room that its traces have among themselves: of the other's they are no
/// neighbours.
void TraceLayout::foldAboutShot() {
  mLeftOfShot.resize(mPositions.size());
  for (std::size_t i = 0; i < mPositions.size(); ++i) {
    mLeftOfShot[i] = mPositions[i] < 0.0;
    if (!mLeftOfShot[i]) continue;
    mPositions[i] = -mPositions[i];
    std::swap(mLeftRoom[i], mRightRoom[i]);
  }
  rankByOrder();
}

void TraceLayout::rankByOrder() {
  std::stable_sort(mOrder.begin(), mOrder.end(),
                   [this](int a, int b) { return position(a) < position(b); });
  mRank.resize(mOrder.size());
  for (std::size_t i = 0; i < mOrder.size(); ++i) mRank[at(mOrder[i])] = static_cast<int>(i);
}

TraceLayout::TraceLayout(std::vector<double> positions, bool byDistance)
    : mPositions(std::move(positions)), mOrder(mPositions.size()), mByDistance(byDistance) {
  std::iota(mOrder.begin(), mOrder.end(), 0);
  rankByOrder();
  std::vector<double> ascending;
  for (const int trace : mOrder) ascending.push_back(position(trace));
  mSpacing = medianGap(ascending);
  mLeftRoom.assign(mOrder.size(), mSpacing);
  mRightRoom.assign(mOrder.size(), mSpacing);
  for (std::size_t i = 1; i < mOrder.size(); ++i) {
    const double gap = ascending[i] - ascending[i - 1];
    if (!(gap > 0.0)) continue;  // components at one place are drawn over each other
    mRightRoom[at(mOrder[i - 1])] = gap;
    mLeftRoom[at(mOrder[i])] = gap;
  }
}

double TraceLayout::first() const {
  return mOrder.empty() ? 0.0 : position(mOrder.front());
}

double TraceLayout::last() const {
  return mOrder.empty() ? 0.0 : position(mOrder.back());
}

int TraceLayout::nearest(double where) const {
  if (mOrder.empty()) return -1;
  const auto right = std::lower_bound(mOrder.begin(), mOrder.end(), where,
                                      [this](int trace, double x) { return position(trace) < x; });
  if (right == mOrder.begin()) return *right;
  if (right == mOrder.end()) return mOrder.back();
  const int left = *(right - 1);
  return where - position(left) <= position(*right) - where ? left : *right;
}

int TraceLayout::nearestBeside(int trace, double where) const {
  if (mLeftOfShot.empty()) return nearest(where);
  int found = trace;
  for (const int other : mOrder) {
    const bool nearer = std::abs(where - position(other)) < std::abs(where - position(found));
    if (nearer && sameSide(trace, other)) found = other;
  }
  return found;
}

int TraceLayout::traceAt(double where) const {
  const int trace = nearest(where);
  if (trace < 0 || !(std::abs(where - position(trace)) <= mSpacing)) return -1;
  return trace;
}

int TraceLayout::stepped(int trace, int steps) const {
  if (mOrder.empty()) return -1;
  const int rank = trace < 0 || trace >= count() ? 0 : mRank[at(trace)];
  return mOrder[at(std::clamp(rank + steps, 0, count() - 1))];
}

}  // namespace talvesk

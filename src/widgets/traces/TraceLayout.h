#pragma once

#include "view/GatherMapping.h"

#include <cstddef>
#include <vector>

namespace talvesk {

/// Where the traces of a shot stand side by side: channel by channel, at their distances, or by how
/// far they are from the shot.
class TraceLayout {
 public:
  TraceLayout() = default;
  static TraceLayout byChannel(int count);  ///< positions 0, 1, 2 ...
  /// \param x metres along the line, per trace; ones that are not finite or all the same make a
  /// layout by channel
  static TraceLayout byDistance(const std::vector<double>& x);
  /// \param mapping is by offset
  static TraceLayout byOffset(const GatherMapping& mapping);

  int count() const { return static_cast<int>(mPositions.size()); }
  bool isByDistance() const { return mByDistance; }  ///< positions are metres along the line
  bool isByOffset() const { return mByOffset != OffsetOrder::kNone; }  ///< metres from the shot
  bool isByChannel() const { return !isByDistance() && !isByOffset(); }
  OffsetOrder offsetOrder() const { return mByOffset; }
  double position(int trace) const { return mPositions[static_cast<std::size_t>(trace)]; }

  /// What a wiggle's width is measured in: the median distance of neighbours, above 0.
  double spacing() const { return mSpacing; }
  /// Distance to the next trace on either side, above 0; the spacing at the ends of the line.
  double leftRoom(int trace) const { return mLeftRoom[static_cast<std::size_t>(trace)]; }
  double rightRoom(int trace) const { return mRightRoom[static_cast<std::size_t>(trace)]; }

  double first() const;  ///< lowest position; 0 without traces
  double last() const;   ///< highest position; 0 without traces

  /// The nearest trace, unless it is farther than the spacing; -1 for none.
  int traceAt(double position) const;
  /// The nearest trace, however far; -1 without traces. Of two at one place that on the left side
  /// of the shot is meant from the left of it.
  int nearest(double position) const;
  /// The same of the traces on the side of the shot that this one is on.
  int nearestBeside(int trace, double position) const;
  /// Whether no shot folds them over each other: always, but by absolute offset.
  bool sameSide(int a, int b) const {
    return mLeftOfShot.empty() ||
           mLeftOfShot[static_cast<std::size_t>(a)] == mLeftOfShot[static_cast<std::size_t>(b)];
  }

  /// The trace so many steps to the right (negative: left) of a trace, or the last one there; -1
  /// without traces.
  int stepped(int trace, int steps) const;
  int rank(int trace) const {
    return mRank[static_cast<std::size_t>(trace)];
  }                                                         ///< from the left, 0
  const std::vector<int>& order() const { return mOrder; }  ///< traces from left to right

 private:
  explicit TraceLayout(std::vector<double> positions, bool byDistance);
  void foldAboutShot();
  void rankByOrder();

  std::vector<double> mPositions;
  std::vector<int> mOrder;
  std::vector<int> mRank;  ///< place in mOrder, per trace
  std::vector<double> mLeftRoom;
  std::vector<double> mRightRoom;
  double mSpacing = 1.0;
  bool mByDistance = false;
  OffsetOrder mByOffset = OffsetOrder::kNone;
  std::vector<bool> mLeftOfShot;  ///< per trace; empty unless folded
};

}  // namespace talvesk

#pragma once

#include <cstddef>
#include <vector>

namespace talvesk {

/// Where the traces of a shot stand side by side: channel by channel, or at their distances.
class TraceLayout {
 public:
  TraceLayout() = default;
  static TraceLayout byChannel(int count);  ///< positions 0, 1, 2 ...
  /// \param x metres along the line, per trace; ones that are not finite or all the same make a
  /// layout by channel
  static TraceLayout byDistance(const std::vector<double>& x);

  int count() const { return static_cast<int>(mPositions.size()); }
  bool isByDistance() const { return mByDistance; }
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
  /// The nearest trace, however far; -1 without traces.
  int nearest(double position) const;

  /// The trace so many steps to the right (negative: left) of a trace, or the last one there; -1
  /// without traces.
  int stepped(int trace, int steps) const;
  int rank(int trace) const {
    return mRank[static_cast<std::size_t>(trace)];
  }                                                         ///< from the left, 0
  const std::vector<int>& order() const { return mOrder; }  ///< traces from left to right

 private:
  explicit TraceLayout(std::vector<double> positions, bool byDistance);

  std::vector<double> mPositions;
  std::vector<int> mOrder;
  std::vector<int> mRank;  ///< place in mOrder, per trace
  std::vector<double> mLeftRoom;
  std::vector<double> mRightRoom;
  double mSpacing = 1.0;
  bool mByDistance = false;
};

}  // namespace talvesk

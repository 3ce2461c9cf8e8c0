#pragma once

#include "grid/Grid.h"

#include <cstdint>
#include <vector>

namespace talvesk {

/// A node on the top line that a ray is wanted to.
struct WantedRay {
  std::uint32_t node = kNoNode;
  double atMost = 0.0;  ///< seconds that some path to it takes, so that the ray takes no longer
};

/// When a node is reached too late to lie on any ray to the receivers of a shot: later than the
/// time of the receiver less the least that the way from the node to the receiver can take.
///
/// The least comes of plane waves (docs/search-bounds.md). Let `floor(depth)` be the least slowness
/// at a depth below the surface, anywhere along the line, and p no more than every floor down to
/// the deepest point of a path. Then x p + Q(depth), Q the integral of sqrt(floor^2 - p^2), changes
/// along the path by no more than its time, whichever way it goes. The same for the mirrored
/// wave, and for any path that turns at a depth: down to it and up again. Where the surface slopes,
/// depths shear the plane, and the root is of less than the difference.
///
/// Belongs to one geometry and its slownesses as they are; to be read by any number of threads.
class LatestTimes {
 public:
  explicit LatestTimes(const Grid& grid);

  /// Sets `latest` to one time per cell: no node of the cell that is reached then or later lies on
  /// a ray to one of the receivers, nor does it lead to one in the same time as the ray. All nodes
  /// of those ways are reached sooner, by more than rounding.
  void find(const std::vector<WantedRay>& receivers, std::vector<double>& latest) const;

 private:
  struct Reach {
    std::uint32_t from, to;  ///< edges of bands that hold a cell
    bool operator<(const Reach& o) const { return from != o.from ? from < o.from : to < o.to; }
  };
  struct Bands;

  void setSlopes(const Bands& bands);
  void setTerms(const Bands& bands, const std::vector<Reach>& reaches);
  std::vector<double> alongLine(const std::vector<WantedRay>& receivers) const;

  const Grid& mGrid;
  /// By group of depths at which a path turns, kWaves waves each: the slowness along the line.
  std::vector<double> mAlong;
  std::vector<std::uint32_t> mGroupTop;  ///< edge of bands at which each group begins
  std::vector<std::uint32_t> mKind;      ///< per cell: which of the terms below
  std::vector<double> mTerms;            ///< per kind, by wave and group: what depth adds, seconds
};

/// The time along a list of nodes from edge to edge, each in the faster of the cells that two nodes
/// share; infinite where two have no edge between them.
double timeAlong(const Grid& grid, const std::vector<std::uint32_t>& nodes);

/// How long the ways take that go straight down from the surface, along a row of cells and up.
class LevelWays {
 public:
  explicit LevelWays(const Grid& grid);

  /// Of the fastest of these ways between two nodes of the top line, seconds.
  double least(std::uint32_t from, std::uint32_t to) const;

 private:
  const Grid& mGrid;
  std::vector<double> mAlong;  ///< by row and vertical line, from the first line on, seconds
};

}  // namespace talvesk

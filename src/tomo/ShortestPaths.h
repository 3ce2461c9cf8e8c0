#pragma once

#include "grid/Grid.h"
#include "tomo/LatestTimes.h"
#include "tomo/RayTree.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace talvesk {

/// A ray from source to receiver: nodes[0] is the source, steps[k] the edge that enters nodes[k +
/// 1]. A receiver at the source has one node and no step; so has one that cannot be reached.
struct Ray {
  std::vector<std::uint32_t> nodes;
  std::vector<GridEdge> steps;
};

/// The least travel time from one source to every node of a grid, by Dijkstra's method (Moser 1991,
/// Shortest path calculation of seismic rays, Geophysics 56, 59-67).
///
/// Distances, and the predecessors that decide between equally fast paths, are those of settling
/// nodes by (distance, node number) and relaxing their edges in order with a strict comparison. The
/// search itself does not settle in that order: it keeps nodes in circular buckets of a small time
/// width and relaxes again inside a bucket where an edge is shorter than that. Sums of times are
/// monotone in their operands, so the fixed point is the same to the last bit. Predecessors follow
/// from the distances and are found when a ray is traced back, only along rays.
///
/// The object holds the memory of the search and can be used for any number of sources and grids,
/// by one thread at a time.
class ShortestPaths {
 public:
  ShortestPaths();
  ~ShortestPaths();
  ShortestPaths(ShortestPaths&&) noexcept;
  ShortestPaths& operator=(ShortestPaths&&) noexcept;

  /// Settles every node. The grid must outlive the queries below, with its slownesses unchanged.
  /// All slownesses must be valid (Grid::invalidSlowness). Throws std::out_of_range for a source
  /// that is no node, std::bad_alloc.
  void search(const Grid& grid, std::uint32_t source);

  /// Settles only nodes that a ray to one of the receivers can pass: ray() and distance() of these
  /// are those of the whole search, to the last bit, and ask about nothing else. \param latest of
  /// the grid as it is
  void search(const Grid& grid, std::uint32_t source, const std::vector<WantedRay>& receivers,
              const LatestTimes& latest);

  std::uint32_t source() const;
  double distance(std::uint32_t node) const;  ///< seconds; infinite where no path leads

  /// The node from which the search last reached `node`; kNoPredecessor for the source and for
  /// nodes that cannot be reached. `edge` becomes the edge taken, or the empty edge.
  std::uint32_t predecessor(std::uint32_t node, GridEdge& edge) const;

  /// The ray to a receiver node. Throws std::out_of_range for a number that is no node.
  Ray ray(std::uint32_t receiver) const;

  /// The rays to all receivers, kNoNode for those without, what they share traced back once.
  /// Throws std::out_of_range for another number that is no node.
  void trace(const std::vector<std::uint32_t>& receivers, RayTree& tree);

  std::size_t bytes() const;  ///< memory held

 private:
  struct State;
  void setField(const Grid& grid, std::uint32_t source);
  void run();
  void traceInto(RayTree& tree, std::size_t place, std::uint32_t receiver);
  std::unique_ptr<State> mState;
};

}  // namespace talvesk

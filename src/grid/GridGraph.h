#pragma once

#include <cstdint>
#include <limits>
#include <vector>

namespace talvesk {

inline constexpr std::uint32_t kNoNode = 2147483647U;  ///< top-line lookup found no node
inline constexpr std::uint32_t kNoCell = 4294967295U;  ///< an edge that crosses no cell
inline constexpr std::uint32_t kNoPredecessor = 4294967295U;

/// An edge of the ray graph, from the node that hands it out to `target`. The default value is the
/// empty edge: the value of a predecessor slot that no edge has reached.
struct GridEdge {
  std::uint32_t target = kNoNode;
  std::uint32_t cell = kNoCell;  ///< the cell that it crosses
  double time = 0.0;             ///< seconds: length times the slowness of the cell
  double length = 0.0;           ///< metres
};

/// A node of the ray graph with the edges that leave it.
struct GridNode {
  double x = 0.0;  ///< metres, grid coordinates
  double z = 0.0;  ///< metres, positive downward
  std::uint32_t index = kNoNode;
  std::vector<GridEdge> edges;  ///< in the order that decides between equal paths
};

/// A cell as a picture of its place in the grid: sides as lists of node indices.
struct GridCell {
  bool draw = true;  ///< whether the section shows it
  std::uint32_t index = kNoCell;
  double size = 0.0;                  ///< side length, metres
  double slowness = 0.0;              ///< s/m
  std::vector<std::uint32_t> top;     ///< left to right, both corners
  std::vector<std::uint32_t> left;    ///< top to bottom, without corners
  std::vector<std::uint32_t> right;   ///< top to bottom, without corners
  std::vector<std::uint32_t> bottom;  ///< left to right, both corners
};

}  // namespace talvesk

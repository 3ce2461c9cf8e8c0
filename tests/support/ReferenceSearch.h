#pragma once

#include "grid/Grid.h"

#include <cmath>
#include <limits>
#include <set>
#include <utility>
#include <vector>

namespace talvesk::reference {

/// The ray graph as records in an adjacency list per node, and the search over it with an ordered
/// set: slow and large, but plain enough to be believed. What the program's own search must equal
/// to the last bit.
struct Graph {
  explicit Graph(const Grid& grid) : edges(grid.nodeCount()) {
    for (std::uint32_t c = 0; c < grid.cellCount(); ++c) addCell(grid, grid.cell(c));
  }

  void addCell(const Grid& grid, const GridCell& cell) {
    const std::vector<std::uint32_t>* pairs[7][2] = {
        {&cell.top, &cell.left},    {&cell.top, &cell.right},  {&cell.top, &cell.bottom},
        {&cell.bottom, &cell.left}, {&cell.right, &cell.left}, {&cell.right, &cell.bottom},
        {&cell.left, &cell.bottom}};
    for (const auto& pair : pairs) {
      join(grid, cell, *pair[0], *pair[1]);
      join(grid, cell, *pair[1], *pair[0]);
    }
  }

  void join(const Grid& grid, const GridCell& cell, const std::vector<std::uint32_t>& from,
            const std::vector<std::uint32_t>& to) {
    const GridGeometry& g = grid.geometry();
    for (const std::uint32_t a : from) {
      for (const std::uint32_t b : to) {
        const double dx = g.nodeX(a) - g.nodeX(b);
        const double dz = g.nodeZ(a) - g.nodeZ(b);
        const double length = std::sqrt(dx * dx + dz * dz);
        edges[a].push_back({b, cell.index, length * cell.slowness, length});
      }
    }
  }

  std::size_t bytes() const {
    std::size_t total = edges.capacity() * sizeof(std::vector<GridEdge>);
    for (const auto& list : edges) total += list.capacity() * sizeof(GridEdge);
    return total;
  }

  std::vector<std::vector<GridEdge>> edges;
};

struct Paths {
  std::vector<double> distance;
  std::vector<std::uint32_t> predecessor;
  std::vector<GridEdge> predecessorEdge;
};

inline Paths search(const Graph& graph, std::uint32_t source) {
  const std::size_t n = graph.edges.size();
  Paths p;
  p.distance.assign(n, std::numeric_limits<double>::infinity());
  p.predecessor.assign(n, kNoPredecessor);
  p.predecessorEdge.assign(n, GridEdge{});
  p.distance[source] = 0.0;
  std::set<std::pair<double, std::uint32_t>> frontier{{0.0, source}};
  while (!frontier.empty()) {
    const auto [d, u] = *frontier.begin();
    frontier.erase(frontier.begin());
    for (const GridEdge& e : graph.edges[u]) {
      const double alt = d + e.time;
      if (p.distance[e.target] > alt) {
        frontier.erase({p.distance[e.target], e.target});
        p.distance[e.target] = alt;
        p.predecessorEdge[e.target] = e;
        p.predecessor[e.target] = u;
        frontier.insert({alt, e.target});
      }
    }
  }
  return p;
}

}  // namespace talvesk::reference

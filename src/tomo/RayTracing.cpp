#include "tomo/ShortestPaths_state.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <stdexcept>
#include <string>
#include <unordered_map>
#include <unordered_set>

namespace talvesk {
namespace {

// More than sums, squares and roots of times can differ by, relative to the time of a node.
constexpr double kRounding = 1e-12;

struct Link {
  std::uint32_t neighbour;
  GridEdge edge;  ///< from the neighbour into the node
};

/// Calls visit(link) for every edge that enters `node`, cell by cell in ascending order.
template <typename Visit>
void forEachEdgeInto(const Grid& grid, std::uint32_t node, Visit visit) {
  const GridGeometry& g = grid.geometry();
  const double x = g.nodeX(node);
  const double z = g.nodeZ(node);
  forEachCellOf(g, node, [&](std::uint32_t cell, CellSide side) {
    const std::uint32_t row = cell / g.col();
    const std::uint32_t column = cell % g.col();
    const double slowness = grid.slowness(cell);
    const auto link = [&](std::uint32_t from, double fromX, double fromZ) {
      const double dx = fromX - x;
      const double dz = fromZ - z;
      const double length = std::sqrt(dx * dx + dz * dz);
      visit(Link{from, {node, cell, length * slowness, length}});
    };
    const auto fromLine = [&](std::uint32_t line) {
      const std::uint32_t first = column * (g.nV() - 1);
      for (std::uint32_t i = first; i < first + g.nV(); ++i) {
        link(g.lineNode(line, i), g.lineX(i), g.lineZ(line, i));
      }
    };
    const auto fromSide = [&](std::uint32_t v) {
      for (std::uint32_t j = 0; j + 2 < g.nV(); ++j) {
        link(g.sideNode(row, v, j), g.sideX(v), g.sideZ(row, v, j));
      }
    };
    if (side != CellSide::kTop) fromLine(row);
    if (side != CellSide::kBottom) fromLine(row + 1);
    if (side != CellSide::kLeft) fromSide(column);
    if (side != CellSide::kRight) fromSide(column + 1);
  });
}

/// The same for those neighbours alone from which an edge can arrive at the time of the node: all
/// others are passed over before the root of their edge is drawn.
template <typename Visit>
void forEachEdgeInTime(const Grid& grid, const SearchField& field, std::uint32_t node, double time,
                       Visit visit) {
  const GridGeometry& g = grid.geometry();
  const double x = g.nodeX(node);
  const double z = g.nodeZ(node);
  const double rounding = time * kRounding;
  forEachCellOf(g, node, [&](std::uint32_t cell, CellSide side) {
    const std::uint32_t row = cell / g.col();
    const std::uint32_t column = cell % g.col();
    const double slowness = grid.slowness(cell);
    const auto link = [&](double before, double fromX, double fromZ, auto nodeNumber) {
      if (before > time) return;
      const double dx = fromX - x;
      const double dz = fromZ - z;
      const double square = dx * dx + dz * dz;
      const double most = time - before + rounding;
      const double least = std::max(time - before - rounding, 0.0);
      const double edge = square * slowness * slowness;
      if (edge > most * most * (1.0 + kRounding) || edge < least * least * (1.0 - kRounding))
        return;
      const double length = std::sqrt(square);
      visit(Link{nodeNumber(), {node, cell, length * slowness, length}}, before);
    };
    const auto fromLine = [&](std::uint32_t line) {
      const std::uint32_t first = column * (g.nV() - 1);
      const std::uint32_t point = field.point(line, column);
      const double* corners = field.distance + field.cornerId(point);
      const double* times = field.distance + field.levelId(point);
      const auto from = [&](std::uint32_t i, double before) {
        link(before, g.lineX(i), g.lineZ(line, i), [&] { return g.lineNode(line, i); });
      };
      from(first, corners[0]);
      for (std::uint32_t k = 0; k + 2 < g.nV(); ++k) from(first + 1 + k, times[k]);
      from(first + g.nV() - 1, corners[1]);
    };
    const auto fromSide = [&](std::uint32_t v) {
      const double* times = field.distance + field.uprightId(field.point(row, v));
      for (std::uint32_t j = 0; j + 2 < g.nV(); ++j) {
        link(times[j], g.sideX(v), g.sideZ(row, v, j), [&] { return g.sideNode(row, v, j); });
      }
    };
    if (side != CellSide::kTop) fromLine(row);
    if (side != CellSide::kBottom) fromLine(row + 1);
    if (side != CellSide::kLeft) fromSide(column);
    if (side != CellSide::kRight) fromSide(column + 1);
  });
}

/// The order in which a search by (distance, node number) settles nodes.
class SettlingOrder {
 public:
  SettlingOrder(const Grid& grid, const ShortestPaths& paths) : mGrid(grid), mPaths(paths) {}

  /// Of two nodes that can be reached, whether `a` settles first.
  bool before(std::uint32_t a, std::uint32_t b) {
    const double da = mPaths.distance(a);
    const double db = mPaths.distance(b);
    if (da != db) return da < db;
    if (!mRank.count(a) || !mRank.count(b)) {
      if (reachedEarlier(a) && reachedEarlier(b)) return a < b;
      rankSameTime({a, b});
    }
    return mRank.at(a) < mRank.at(b);
  }

 private:
  /// Nodes waiting at one time go by number, unless one gets that time only from another of the
  /// same time, over an edge too short to count.
  bool reachedEarlier(std::uint32_t node) const {
    if (node == mPaths.source()) return true;
    const double d = mPaths.distance(node);
    bool earlier = false;
    forEachEdgeInto(mGrid, node, [&](const Link& link) {
      const double from = mPaths.distance(link.neighbour);
      earlier = earlier || (from < d && from + link.edge.time == d);
    });
    return earlier;
  }

  /// Plays the search through among the nodes of one time that hang together with `seeds`.
  void rankSameTime(std::vector<std::uint32_t> seeds) {
    const double d = mPaths.distance(seeds.front());
    std::unordered_set<std::uint32_t> cluster(seeds.begin(), seeds.end());
    while (!seeds.empty()) {
      const std::uint32_t node = seeds.back();
      seeds.pop_back();
      forEachEdgeInto(mGrid, node, [&](const Link& link) {
        if (mPaths.distance(link.neighbour) == d && d + link.edge.time == d &&
            cluster.insert(link.neighbour).second) {
          seeds.push_back(link.neighbour);
        }
      });
    }
    std::set<std::uint32_t> waiting;
    for (const std::uint32_t node : cluster) {
      if (reachedEarlier(node)) waiting.insert(node);
    }
    std::unordered_set<std::uint32_t> seen(waiting.begin(), waiting.end());
    mRank.clear();
    while (!waiting.empty()) {
      const std::uint32_t node = *waiting.begin();
      waiting.erase(waiting.begin());
      mRank.emplace(node, mRank.size());
      forEachEdgeInto(mGrid, node, [&](const Link& link) {
        if (cluster.count(link.neighbour) && d + link.edge.time == d &&
            seen.insert(link.neighbour).second) {
          waiting.insert(link.neighbour);
        }
      });
    }
  }

  const Grid& mGrid;
  const ShortestPaths& mPaths;
  std::unordered_map<std::uint32_t, std::size_t> mRank;  ///< of the cluster played through last
};

}  // namespace

std::uint32_t ShortestPaths::predecessor(std::uint32_t node, GridEdge& edge) const {
  edge = GridEdge{};
  const Grid& grid = *mState->grid;
  if (node >= grid.nodeCount()) throw std::out_of_range("no node " + std::to_string(node));
  const double d = distance(node);
  if (node == source() || !std::isfinite(d)) return kNoPredecessor;

  // Whoever settled first and offered this very time got the node; a later equal offer is no
  // improvement. The edge is its first one in its own order, which is ascending by cell.
  SettlingOrder order(grid, *this);
  std::uint32_t best = kNoPredecessor;
  forEachEdgeInTime(grid, mState->field, node, d, [&](const Link& link, double from) {
    if (from + link.edge.time != d || link.neighbour == best) return;
    if (from == d && !order.before(link.neighbour, node)) return;
    if (best != kNoPredecessor && !order.before(link.neighbour, best)) return;
    best = link.neighbour;
    edge = link.edge;
  });
  return best;
}

Ray ShortestPaths::ray(std::uint32_t receiver) const {
  Ray ray;
  GridEdge edge;
  for (std::uint32_t node = receiver; node != kNoPredecessor;) {
    ray.nodes.push_back(node);
    node = predecessor(node, edge);
    if (node != kNoPredecessor) ray.steps.push_back(edge);
  }
  std::reverse(ray.nodes.begin(), ray.nodes.end());
  std::reverse(ray.steps.begin(), ray.steps.end());
  return ray;
}

void ShortestPaths::trace(const std::vector<std::uint32_t>& receivers, RayTree& tree) {
  tree.clear();
  tree.branches.resize(receivers.size());
  for (std::uint32_t i = 0; i < receivers.size(); ++i) {
    if (receivers[i] == kNoNode) continue;
    if (receivers[i] >= mState->grid->nodeCount()) {
      throw std::out_of_range("no node " + std::to_string(receivers[i]));
    }
    tree.order.push_back(i);
  }
  // The long ones first: to leave another ray on its way makes fewer pieces of a ray than to go
  // along many shorter ones.
  std::stable_sort(tree.order.begin(), tree.order.end(), [&](std::uint32_t a, std::uint32_t b) {
    return distance(receivers[a]) > distance(receivers[b]);
  });
  mState->stepInto.clear();
  for (std::size_t i = 0; i < tree.order.size(); ++i) traceInto(tree, i, receivers[tree.order[i]]);
}

void ShortestPaths::traceInto(RayTree& tree, std::size_t place, std::uint32_t receiver) {
  NodeSteps& stepInto = mState->stepInto;
  RayTree::Branch& branch = tree.branches[tree.order[place]];
  branch.first = branch.end = static_cast<std::uint32_t>(tree.nodes.size());
  for (std::uint32_t node = receiver;;) {
    const std::uint32_t known = stepInto.find(node);
    if (known != RayTree::kNone) {
      branch.joins = known;
      branch.onto = tree.rayOf(known, place);
      branch.root = tree.branches[branch.onto].root;
      break;
    }
    GridEdge edge;
    const std::uint32_t from = predecessor(node, edge);
    if (from == kNoPredecessor) {
      branch.root = node;
      break;
    }
    tree.nodes.push_back(node);
    tree.cells.push_back(edge.cell);
    tree.lengths.push_back(edge.length);
    node = from;
  }
  branch.end = static_cast<std::uint32_t>(tree.nodes.size());
  std::reverse(tree.nodes.begin() + branch.first, tree.nodes.end());
  std::reverse(tree.cells.begin() + branch.first, tree.cells.end());
  std::reverse(tree.lengths.begin() + branch.first, tree.lengths.end());
  for (std::uint32_t step = branch.first; step < branch.end; ++step) {
    stepInto.add(tree.nodes[step], step);
  }
}

}  // namespace talvesk

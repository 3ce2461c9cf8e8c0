#include "grid/Grid.h"

#include "base/TextNumber.h"

#include <cmath>
#include <stdexcept>

namespace talvesk {
namespace {

using Side = CellSide;

// Far beyond all ground on either side, and still so that squares of slownesses and times along
// whole rays neither vanish nor overflow.
constexpr double kLeastSlowness = 1e-100;    // s/m
constexpr double kGreatestSlowness = 1e100;  // s/m

// The sides that a node of each side is joined to, in the order that its edges stand: all pairs
// (top, left), (top, right), (top, bottom), (bottom, left), (right, left), (right, bottom),
// (left, bottom), each followed by its reverse. Left and bottom are joined twice.
struct Targets {
  Side side[4];
  int count;
};
constexpr Targets kTargets[] = {
    {{Side::kLeft, Side::kRight, Side::kBottom}, 3},                // of a top node
    {{Side::kTop, Side::kBottom, Side::kRight, Side::kBottom}, 4},  // of a left node
    {{Side::kTop, Side::kLeft, Side::kBottom}, 3},                  // of a right node
    {{Side::kTop, Side::kLeft, Side::kRight, Side::kLeft}, 4},      // of a bottom node
};

const std::vector<std::uint32_t>& sideOf(const GridCell& cell, Side side) {
  switch (side) {
    case Side::kTop:
      return cell.top;
    case Side::kLeft:
      return cell.left;
    case Side::kRight:
      return cell.right;
    default:
      return cell.bottom;
  }
}

}  // namespace

Grid::Grid(std::shared_ptr<const GridGeometry> geometry, std::vector<double> slownesses)
    : mGeometry(std::move(geometry)), mSlowness(std::move(slownesses)) {
  if (mSlowness.size() != mGeometry->cellCount()) {
    throw std::invalid_argument(std::to_string(mSlowness.size()) + " slownesses for " +
                                std::to_string(mGeometry->cellCount()) + " cells");
  }
  mDraw.assign(mSlowness.size(), 1);
}

std::vector<double> Grid::velocities() const {
  std::vector<double> values(mSlowness.size());
  for (std::size_t c = 0; c < values.size(); ++c) values[c] = 1.0 / mSlowness[c];
  return values;
}

GridCell Grid::cell(std::uint32_t index) const {
  if (index >= cellCount()) throw std::out_of_range("no cell " + std::to_string(index));
  const GridGeometry& g = *mGeometry;
  const std::uint32_t row = index / g.col();
  const std::uint32_t column = index % g.col();
  const std::uint32_t first = column * (g.nV() - 1);
  GridCell cell;
  cell.draw = draw(index);
  cell.index = index;
  cell.size = g.aLato();
  cell.slowness = mSlowness[index];
  for (std::uint32_t k = 0; k < g.nV(); ++k) {
    cell.top.push_back(g.lineNode(row, first + k));
    cell.bottom.push_back(g.lineNode(row + 1, first + k));
  }
  for (std::uint32_t j = 0; j + 2 < g.nV(); ++j) {
    cell.left.push_back(g.sideNode(row, column, j));
    cell.right.push_back(g.sideNode(row, column + 1, j));
  }
  return cell;
}

GridNode Grid::node(std::uint32_t index) const {
  if (index >= nodeCount()) throw std::out_of_range("no node " + std::to_string(index));
  const GridGeometry& g = *mGeometry;
  GridNode node;
  node.x = g.nodeX(index);
  node.z = g.nodeZ(index);
  node.index = index;

  forEachCellOf(g, index, [&](std::uint32_t cellNumber, Side side) {
    const GridCell c = cell(cellNumber);
    const Targets& targets = kTargets[static_cast<int>(side)];
    for (int t = 0; t < targets.count; ++t) {
      for (const std::uint32_t b : sideOf(c, targets.side[t])) {
        const double dx = g.nodeX(b) - node.x;
        const double dz = g.nodeZ(b) - node.z;
        const double length = std::sqrt(dx * dx + dz * dz);
        node.edges.push_back({b, cellNumber, length * c.slowness, length});
      }
    }
  });
  return node;
}

Message Grid::invalidSlowness() const {
  for (std::size_t c = 0; c < mSlowness.size(); ++c) {
    if (mSlowness[c] >= kLeastSlowness && mSlowness[c] <= kGreatestSlowness) continue;
    return Message::tr("cell %1 has no valid velocity (slowness %2 s/m)").arg(c).arg(mSlowness[c]);
  }
  return {};
}

}  // namespace talvesk

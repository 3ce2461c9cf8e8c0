#pragma once

#include "base/Point2D.h"
#include "grid/GridGeometry.h"

#include <array>
#include <cstdint>
#include <vector>

namespace talvesk {

/// The cells of a grid as trapezoids: straight tops and bottoms between their corners, vertical
/// sides. Trapezoids are convex, so that a straight piece of ray never leaves its cell; where the
/// surface bends inside a cell its chord stands for it. Every side has kSteps steps of its own,
/// whatever the number of nodes that the grid has there.
class CellMesh {
 public:
  static constexpr std::uint32_t kSteps = 2;           ///< per side; measured, see the docs
  static constexpr std::uint32_t kRing = 4 * kSteps;   ///< nodes around a cell
  static constexpr std::uint32_t kNone = 0xFFFFFFFFU;  ///< no such cell

  explicit CellMesh(const GridGeometry& geometry);

  std::uint32_t rows() const { return mRows; }
  std::uint32_t cols() const { return mCols; }
  std::size_t cellCount() const { return std::size_t{mRows} * mCols; }
  std::uint32_t nodeCount() const { return static_cast<std::uint32_t>(mNodes.size()); }
  const Point2D& node(std::uint32_t n) const { return mNodes[n]; }  ///< z downward
  double shortestStep() const { return mShortest; }                 ///< metres, positive
  double longestChord() const { return mLongest; }                  ///< of any cell, metres

  using Ring = std::array<std::uint32_t, kRing>;
  /// Nodes around a cell: clockwise as seen on the section, from the upper left corner.
  const Ring& ring(std::uint32_t cell) const { return mRings[cell]; }

  /// Calls visit(cell, k) for the cells around a node; k is its place in their rings.
  template <typename Visit>
  void forEachCellAt(std::uint32_t node, Visit visit) const;

  /// The neighbour beyond side 0 top, 1 right, 2 bottom, 3 left; kNone at the edge of the grid.
  std::uint32_t beyond(std::uint32_t cell, std::uint32_t side) const;
  /// The side of `cell` beyond which `other` lies; kNone when they share none.
  std::uint32_t sideTowards(std::uint32_t cell, std::uint32_t other) const;
  /// Corner k of a cell, clockwise from the upper left: side k runs from corner k to k + 1.
  const Point2D& corner(std::uint32_t cell, std::uint32_t k) const;

 private:
  Ring makeRing(std::uint32_t cell) const;
  std::uint32_t lineNode(std::uint32_t line, std::uint32_t i) const { return line * mLine + i; }
  std::uint32_t sideNode(std::uint32_t row, std::uint32_t v) const {
    return mSideBase + (row * (mCols + 1) + v) * (kSteps - 1);
  }

  std::uint32_t mRows, mCols;
  std::uint32_t mLine;      ///< nodes of a horizontal line
  std::uint32_t mSideBase;  ///< first node inside a vertical side
  double mShortest, mLongest;
  std::vector<Point2D> mNodes;
  std::vector<Ring> mRings;
};

template <typename Visit>
void CellMesh::forEachCellAt(std::uint32_t node, Visit visit) const {
  if (node >= mSideBase) {
    const std::uint32_t at = node - mSideBase;
    const std::uint32_t side = at / (kSteps - 1);
    const std::uint32_t down = at % (kSteps - 1) + 1;
    const std::uint32_t row = side / (mCols + 1);
    const std::uint32_t v = side % (mCols + 1);
    if (v > 0) visit(row * mCols + v - 1, kSteps + down);
    if (v < mCols) visit(row * mCols + v, 4 * kSteps - down);
    return;
  }
  const std::uint32_t line = node / mLine;
  const std::uint32_t i = node % mLine;
  const std::uint32_t column = i / kSteps;
  const std::uint32_t k = i % kSteps;
  const auto visitColumn = [&](std::uint32_t c, std::uint32_t along) {
    if (line > 0) visit((line - 1) * mCols + c, 3 * kSteps - along);
    if (line < mRows) visit(line * mCols + c, along);
  };
  if (k == 0 && column > 0) visitColumn(column - 1, kSteps);
  if (column < mCols) visitColumn(column, k);
}

}  // namespace talvesk

#pragma once

#include "base/Point2D.h"
#include "numerics/Splines.h"

#include <cstdint>
#include <vector>

namespace talvesk {

/// The four numbers that size a grid.
struct GridSize {
  std::uint32_t righe = 0;  ///< cell rows, depth direction
  std::uint32_t col = 0;    ///< cell columns, along the line
  std::uint32_t nV = 0;     ///< nodes per cell side, corners included; at least 2
  double aLato = 0.0;       ///< cell side, metres, positive

  std::uint64_t cellCount() const { return std::uint64_t{righe} * col; }
  std::uint64_t lineNodeCount() const { return std::uint64_t{col} * (nV - 1) + 1; }
  std::uint64_t nodeCount() const;  ///< exact only up to kMaxNodes
  double nodesAsNumber() const;     ///< the same for sizes of any magnitude, nearly exact

  static constexpr std::uint32_t kMaxNodes = 2147483646U;  ///< one less than kNoNode
};

/// Where the cells and nodes of a grid lie. It does not change while an inversion goes on, so the
/// models of successive iterations share one; any number of threads may read it.
///
/// Grid coordinates: x along the line with the leftmost survey point at 1.0 m, z downward with
/// minus the elevation on the surface line. Horizontal line j is the surface smoothed j times and
/// shifted down by j cells; side nodes hang straight down from the corner above them.
///
/// Only the horizontal lines are stored. A side node is its upper corner plus a whole number of
/// steps, by the very sum that placing it would compute.
class GridGeometry {
 public:
  /// Samples the surface (elevation over grid x) and lays out all lines. Throws what the spline
  /// throws, std::invalid_argument for a size that makes no grid, and std::bad_alloc.
  GridGeometry(const GridSize& size, const Splines::Spline& surface);

  const GridSize& size() const { return mSize; }
  std::uint32_t righe() const { return mSize.righe; }
  std::uint32_t col() const { return mSize.col; }
  std::uint32_t nV() const { return mSize.nV; }
  double aLato() const { return mSize.aLato; }
  std::uint32_t cellCount() const { return mSize.righe * mSize.col; }
  std::uint32_t nodeCount() const { return static_cast<std::uint32_t>(mSize.nodeCount()); }
  std::uint32_t lineNodeCount() const { return mLineNodes; }  ///< nodes of one horizontal line

  // --- Node numbers: block by block, each a horizontal line followed by its levels of side nodes.
  std::uint32_t lineNode(std::uint32_t line, std::uint32_t i) const { return line * mBlock + i; }
  /// \param verticalLine 0 .. col; \param j 0 .. nV - 3 from the top
  std::uint32_t sideNode(std::uint32_t row, std::uint32_t verticalLine, std::uint32_t j) const {
    return row * mBlock + mLineNodes + j * (mSize.col + 1) + verticalLine;
  }
  /// Top-line node at grid abscissa x (metres); kNoNode when x is not on the top line. The quotient
  /// is truncated as it comes, rounding and all.
  std::uint32_t topNodeIndex(double x) const;

  /// Where a node sits in the block that its number names.
  struct Place {
    bool onLine;          ///< on a horizontal line, else on a vertical side
    std::uint32_t row;    ///< line number, or the row of the side
    std::uint32_t along;  ///< position on the line, or the number of the vertical line
    std::uint32_t level;  ///< 0, or the level of the side node from the top
  };
  Place place(std::uint32_t node) const;

  // --- Positions, metres, grid coordinates.
  double lineX(std::uint32_t i) const { return mLineX[i]; }
  double lineZ(std::uint32_t line, std::uint32_t i) const {
    return mLineZ[std::size_t{line} * mLineNodes + i];
  }
  double sideX(std::uint32_t verticalLine) const { return verticalLine * mSize.aLato; }
  double sideZ(std::uint32_t row, std::uint32_t verticalLine, std::uint32_t j) const {
    return lineZ(row, verticalLine * (mSize.nV - 1)) + mStep[j];
  }
  double nodeX(std::uint32_t node) const;
  double nodeZ(std::uint32_t node) const;

  // --- Flat arrays for the search.
  const double* lineXData() const { return mLineX.data(); }
  const double* lineZData() const { return mLineZ.data(); }
  /// Depths of the levels of side nodes below their upper corner.
  const double* sideStepData() const { return mStep.data(); }

  /// Centre of a cell: x grid coordinate, z downward (so `z` here is a depth coordinate).
  Point2D cellCentre(std::uint32_t cell) const;

  /// Elevation of the surface at every top-line node, metres.
  const std::vector<double>& surfaceProfile() const { return mSurface; }

  std::size_t bytes() const;  ///< memory held

 private:
  GridSize mSize;
  std::uint32_t mLineNodes = 0;
  std::uint32_t mBlock = 0;  ///< nodes of a block: one line and the sides below it
  std::vector<double> mLineX;
  std::vector<double> mLineZ;  ///< (righe + 1) lines, one after the other
  std::vector<double> mStep;
  std::vector<double> mSurface;
};

/// The sides of a cell, in the order of its node lists.
enum class CellSide { kTop, kLeft, kRight, kBottom };

/// Calls visit(cell, side) for the cells that a node belongs to, ascending cell order; side is the
/// one of that cell on which the node lies. A corner lies on a top or bottom side.
template <typename Visit>
void forEachCellOf(const GridGeometry& g, std::uint32_t node, Visit visit) {
  const GridGeometry::Place p = g.place(node);
  const std::uint32_t col = g.col();
  if (!p.onLine) {
    if (p.along > 0) visit(p.row * col + p.along - 1, CellSide::kRight);
    if (p.along < col) visit(p.row * col + p.along, CellSide::kLeft);
    return;
  }
  const std::uint32_t steps = g.nV() - 1;
  const std::uint32_t column = p.along / steps;
  const bool corner = p.along % steps == 0;
  const auto visitRow = [&](std::uint32_t row, CellSide side) {
    if (corner && column > 0) visit(row * col + column - 1, side);
    if (column < col) visit(row * col + column, side);
  };
  if (p.row > 0) visitRow(p.row - 1, CellSide::kBottom);
  if (p.row < g.righe()) visitRow(p.row, CellSide::kTop);
}

/// One smoothing pass over a profile: every entry but four at each end becomes the mean of its
/// eight neighbours without itself. Profiles of at most eight entries stay as they are.
void smoothProfile(const std::vector<double>& in, std::vector<double>& out);

}  // namespace talvesk

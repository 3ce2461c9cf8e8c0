#pragma once

#include "base/Message.h"
#include "grid/GridGeometry.h"
#include "grid/GridGraph.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

// docs/vocabulary.md explains the names.

namespace talvesk {

/// The discretised ground under the line: one slowness per square cell, and the graph on which rays
/// are traced. Models of one inversion share their geometry; a grid is replaced whole after every
/// external iteration, and only its slownesses and draw flags are ever written in place.
class Grid {
 public:
  /// \param slownesses s/m, one per cell, row-major with row 0 at the surface; throws
  /// std::invalid_argument on any other length
  Grid(std::shared_ptr<const GridGeometry> geometry, std::vector<double> slownesses);

  const GridGeometry& geometry() const { return *mGeometry; }
  const std::shared_ptr<const GridGeometry>& sharedGeometry() const { return mGeometry; }
  std::uint32_t righe() const { return mGeometry->righe(); }
  std::uint32_t col() const { return mGeometry->col(); }
  std::uint32_t nV() const { return mGeometry->nV(); }
  double aLato() const { return mGeometry->aLato(); }
  std::uint32_t cellCount() const { return mGeometry->cellCount(); }
  std::uint32_t nodeCount() const { return mGeometry->nodeCount(); }
  std::uint32_t cellIndex(std::uint32_t row, std::uint32_t column) const {
    return row * col() + column;
  }

  double slowness(std::uint32_t cell) const { return mSlowness[cell]; }        ///< s/m
  double velocity(std::uint32_t cell) const { return 1.0 / mSlowness[cell]; }  ///< m/s
  void setSlowness(std::uint32_t cell, double value) { mSlowness[cell] = value; }
  const std::vector<double>& slownesses() const { return mSlowness; }
  std::vector<double> velocities() const;  ///< m/s, cell order

  bool draw(std::uint32_t cell) const { return mDraw[cell] != 0; }
  void setDraw(std::uint32_t cell, bool draw) { mDraw[cell] = draw ? 1 : 0; }

  Point2D cellCentre(std::uint32_t cell) const { return mGeometry->cellCentre(cell); }

  /// The vocabulary of the graph, put together on demand: nothing of it is stored. Edges come cell
  /// by cell in ascending cell order, within a cell side by side in the order that decides between
  /// equal paths, the doubled left-bottom pair included. Out of range: std::out_of_range.
  GridCell cell(std::uint32_t index) const;
  GridNode node(std::uint32_t index) const;

  /// Empty when every slowness is one that rays can be traced through, 1e-100 .. 1e100 s/m, else
  /// what is wrong with which cell.
  Message invalidSlowness() const;

 private:
  std::shared_ptr<const GridGeometry> mGeometry;
  std::vector<double> mSlowness;
  std::vector<std::uint8_t> mDraw;
};

}  // namespace talvesk

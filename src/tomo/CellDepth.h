#pragma once

#include "grid/GridGeometry.h"

namespace talvesk {

/// Depth of the middle of a cell below the surface above it, metres. Rows follow a surface that
/// gets smoother downward, so it is not quite that of the row.
inline double cellDepth(const GridGeometry& geometry, std::uint32_t cell) {
  const std::uint32_t first = cell % geometry.col() * (geometry.nV() - 1);
  const std::uint32_t last = first + geometry.nV() - 1;
  return geometry.cellCentre(cell).z - (geometry.lineZ(0, first) + geometry.lineZ(0, last)) / 2.0;
}

}  // namespace talvesk

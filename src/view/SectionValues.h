#pragma once

#include "view/ContourLines.h"

#include <vector>

namespace talvesk {

class Grid;

/// The cells of a grid in survey coordinates.
/// \param xOffset added to survey x to get grid x, metres
SectionMesh sectionMesh(const Grid& grid, double xOffset);

/// dv/dz by differences of cell centres, 1/s: over both vertical neighbours, over one at an end of
/// a column. Cells that are not drawn take no part, for they hold no result; a cell without a drawn
/// neighbour has no gradient (not a number).
std::vector<double> verticalGradientValues(const Grid& grid);

/// The five-point Laplacian of velocity, 1/(m s). Columns are square cells shifted against each
/// other by the topography, so neighbours along the line are those of the same row. Defined where
/// both neighbours in a direction are drawn; a direction without them counts as straight (0), and a
/// cell with neither direction is not a number.
std::vector<double> laplacianValues(const Grid& grid);

}  // namespace talvesk

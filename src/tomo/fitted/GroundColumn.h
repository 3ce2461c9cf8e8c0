#pragma once

#include "grid/GridGeometry.h"

#include <functional>
#include <vector>

namespace talvesk {

/// Velocities that the methods of this folder may give to a cell, m/s.
struct VelocityBounds {
  double least = 50.0;
  double greatest = 8000.0;
};

/// A stretch of ground below the one before it, whose velocity runs evenly from its top to its
/// bottom.
struct GroundStretch {
  double bottom;          ///< metres below the surface; the last stretch goes on below it
  double topVelocity;     ///< m/s, positive
  double bottomVelocity;  ///< m/s, positive; below a last bottom it stays
};

/// The ground below one place of the surface, from there downward; not empty.
using GroundColumn = std::vector<GroundStretch>;

/// Seconds straight down from the surface to a depth in metres.
double verticalTime(const GroundColumn& column, double depth);

/// Slownesses of all cells of a grid, each the mean over the cell's height of the ground below the
/// middle of its column. So an interface that cuts a cell keeps its depth: a wave straight down
/// needs the time that the ground itself would take.
/// \param columnAt the ground below a grid abscissa
std::vector<double> cellSlownesses(const GridGeometry& geometry,
                                   const std::function<GroundColumn(double x)>& columnAt,
                                   const VelocityBounds& bounds);

}  // namespace talvesk

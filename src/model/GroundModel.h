#pragma once

#include "grid/Grid.h"
#include "grid/VelocityLayers.h"
#include "model/Parameters.h"
#include "numerics/Splines.h"

#include <memory>
#include <vector>

namespace talvesk {

/// The ground under the line, as far as somebody has said how to discretise it and what its
/// velocities are.
struct GroundModel {
  std::shared_ptr<const Grid> grid;   ///< replaced whole; null before there is one
  double xOffset = 0.0;               ///< added to survey x to get grid x, metres
  Splines::LinearSpline surface;      ///< elevation over grid x, of the current grid
  std::vector<VelocityLayer> layers;  ///< starting model; empty until the user made one
  double minVelocity = parameters::kMinVelocity.initial;  ///< m/s, limits of the solver
  double maxVelocity = parameters::kMaxVelocity.initial;  ///< m/s

  /// The grid, to be written; copied before when somebody else has it, too. There must be one.
  Grid& editGrid();
};

}  // namespace talvesk

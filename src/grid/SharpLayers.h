#pragma once

#include "base/Status.h"
#include "grid/VelocityLayers.h"

#include <memory>
#include <vector>

namespace talvesk {

/// How layers become velocities of cells.
struct LayerFill {
  bool spline = true;      ///< by layerSpline(), which rounds jumps off
  double thickness = 0.0;  ///< metres, of a jump that is graded; 0: sharp; a spline has none
};

/// The velocity of layers as they are, m/s: within a layer it runs evenly from its top to its
/// bottom, and jumps to the next. Above the first layer and below the last one it stays, and so it
/// does between layers that do not meet.
/// \param layers accepted by checkSharpLayers() \param depth metres \param thickness metres over
/// which a jump is graded evenly, its middle where the jump was; less where the layers beside it
/// are too thin for that; 0: not at all
double velocityInLayers(const std::vector<VelocityLayer>& layers, double depth, double thickness);

/// Refuses layers that are not ordered by depth, that overlap, or have a velocity that is none.
Status checkSharpLayers(const std::vector<VelocityLayer>& layers);

/// velocityInLayers() at `points` even depths from 0 to `depth` metres; empty for layers that
/// checkSharpLayers() refuses.
VelocityCurve sampleSharpLayers(const std::vector<VelocityLayer>& layers, double depth,
                                double thickness, int points);

/// Velocities of the rows of a grid, m/s, each at the depth of its middle below the surface line.
std::vector<double> sharpRows(const GridSize& size, const std::vector<VelocityLayer>& layers,
                              double thickness);

/// A grid of the same geometry with those velocities. Fails as checkSharpLayers() does.
Status buildSharpGrid(const Grid& current, const std::vector<VelocityLayer>& layers,
                      double thickness, std::unique_ptr<Grid>& out);

}  // namespace talvesk

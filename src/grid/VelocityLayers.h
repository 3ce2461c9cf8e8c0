#pragma once

#include "base/Status.h"
#include "grid/Grid.h"

#include <memory>
#include <vector>

namespace talvesk {

/// One depth interval of the layered starting model. Depths are metres below the surface line.
struct VelocityLayer {
  double initialDepth = 0.0;
  double initialVelocity = 0.0;  ///< m/s at the initial depth
  double finalDepth = 0.0;
  double finalVelocity = 0.0;  ///< m/s at the final depth
};

/// The layer of an empty list: 300 m/s at the surface, 2500 m/s at the grid's depth.
VelocityLayer defaultLayer(double gridDepth);

/// Splits the last layer at its middle; the halved velocity sum is truncated to an integer. An
/// empty list is left empty.
void splitLastLayer(std::vector<VelocityLayer>& layers);

/// Layers whose final depth is greater than their initial depth, which is not negative; in order.
std::vector<VelocityLayer> acceptedLayers(const std::vector<VelocityLayer>& layers);

/// The spline over depth that a layered model puts into the grid: three points per layer, the
/// lowest 0.01 m above the layer's bottom. Throws std::runtime_error when it cannot be built.
Splines::CubicSpline layerSpline(const std::vector<VelocityLayer>& layers);

/// Refuses layers that make no model for the rows of such a grid: no layer left, no spline through
/// them, or a spline that swings to a velocity that is not positive, with depth and velocity.
Status checkLayers(const GridSize& size, const std::vector<VelocityLayer>& layers);

/// The spline of the layers' model as a curve.
struct VelocityCurve {
  std::vector<double> depths;      ///< metres, ascending from 0
  std::vector<double> velocities;  ///< m/s, as many; any number, also where there is no such ground
};

/// The spline at `points` even depths from 0 to `depth` metres; empty when there is none.
VelocityCurve sampleLayers(const std::vector<VelocityLayer>& layers, double depth, int points);

/// A grid of the same sizes and surface whose rows take the spline's velocity at the depth of their
/// top. Fails, naming depth and velocity, where the spline swings to a velocity that is not
/// positive, and when no layer is left.
Status buildLayeredGrid(const Grid& current, const std::vector<VelocityLayer>& layers,
                        const Splines::Spline& surface, std::unique_ptr<Grid>& out);

}  // namespace talvesk

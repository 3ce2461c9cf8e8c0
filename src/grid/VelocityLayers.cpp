#include "grid/VelocityLayers.h"

#include "grid/GridBuilder.h"

#include <cmath>
#include <exception>
#include <string>

namespace talvesk {
namespace {

constexpr double kSurfaceVelocity = 300.0;  // m/s
constexpr double kBottomVelocity = 2500.0;  // m/s
constexpr double kBottomGap = 0.01;         // metres: keeps a bottom apart from the next top

/// Empty when the velocity is positive and finite in every row, else what is wrong.
Message invalidVelocity(const GridSize& size, const Splines::Spline& velocityOfDepth) {
  for (std::uint32_t row = 0; row < size.righe; ++row) {
    const double depth = row * size.aLato;
    const double velocity = velocityOfDepth(depth);
    if (velocity > 0.0 && std::isfinite(velocity)) continue;
    return Message::tr(
               "The layers give a velocity of %1 at a depth of %2, which is no velocity of "
               "the ground. Let the layers cover the whole depth of the grid, or make the change "
               "between them gentler.")
        .arg(Message::velocity(velocity))
        .arg(Message::length(depth));
  }
  return {};
}

}  // namespace

VelocityLayer defaultLayer(double gridDepth) {
  return {0.0, kSurfaceVelocity, gridDepth, kBottomVelocity};
}

void splitLastLayer(std::vector<VelocityLayer>& layers) {
  if (layers.empty()) return;
  VelocityLayer& upper = layers.back();
  VelocityLayer lower = upper;
  const double middle = (upper.initialDepth + upper.finalDepth) / 2.0;
  // Velocities are edited as whole numbers.
  const double velocity = std::trunc(std::abs(upper.initialVelocity + upper.finalVelocity) / 2.0);
  upper.finalDepth = lower.initialDepth = middle;
  upper.finalVelocity = lower.initialVelocity = velocity;
  layers.push_back(lower);
}

std::vector<VelocityLayer> acceptedLayers(const std::vector<VelocityLayer>& layers) {
  std::vector<VelocityLayer> accepted;
  for (const VelocityLayer& layer : layers) {
    if (layer.finalDepth > layer.initialDepth && layer.initialDepth >= 0.0) {
      accepted.push_back(layer);
    }
  }
  return accepted;
}

Splines::CubicSpline layerSpline(const std::vector<VelocityLayer>& layers) {
  std::vector<double> depths;
  std::vector<double> velocities;
  for (const VelocityLayer& layer : layers) {
    depths.insert(depths.end(), {layer.initialDepth, (layer.initialDepth + layer.finalDepth) / 2.0,
                                 layer.finalDepth - kBottomGap});
    velocities.insert(velocities.end(),
                      {layer.initialVelocity, (layer.initialVelocity + layer.finalVelocity) / 2.0,
                       layer.finalVelocity});
  }
  Splines::CubicSpline spline;
  spline.build(depths, velocities);
  return spline;
}

Status checkLayers(const GridSize& size, const std::vector<VelocityLayer>& layers) {
  const std::vector<VelocityLayer> accepted = acceptedLayers(layers);
  if (accepted.empty()) {
    return Status::failure(
        Message::tr("No layer is left: a layer's final depth must be greater than its "
                    "initial depth, and that not negative."));
  }
  try {
    const Message problem = invalidVelocity(size, layerSpline(accepted));
    return problem.empty() ? Status() : Status::failure(problem);
  } catch (const std::exception&) {
    // What the spline tells of it are its nodes, which nobody has typed.
    return Status::failure(
        Message::tr("The layers make no velocity model. Order them by depth, without overlap, each "
                    "more than %1 thick.")
            .arg(Message::length(0.02, 2)));
  }
}

VelocityCurve sampleLayers(const std::vector<VelocityLayer>& layers, double depth, int points) {
  VelocityCurve curve;
  if (points < 2 || !(depth > 0.0) || !std::isfinite(depth)) return curve;
  try {
    const Splines::CubicSpline velocityOfDepth = layerSpline(acceptedLayers(layers));
    for (int i = 0; i < points; ++i) {
      curve.depths.push_back(depth * i / (points - 1));
      curve.velocities.push_back(velocityOfDepth(curve.depths.back()));
    }
  } catch (const std::exception&) {
    return {};
  }
  return curve;
}

Status buildLayeredGrid(const Grid& current, const std::vector<VelocityLayer>& layers,
                        const Splines::Spline& surface, std::unique_ptr<Grid>& out) {
  const GridSize& size = current.geometry().size();
  Status status = checkLayers(size, layers);
  if (!status.ok()) return status;
  const Splines::CubicSpline velocityOfDepth = layerSpline(acceptedLayers(layers));
  std::unique_ptr<Grid> grid = buildGridFromVelocity(
      size, [&](double depth) { return velocityOfDepth(depth); }, surface);
  if (!grid) {
    return Status::failure(Message::tr("The grid of the layered model could not be built."));
  }
  out = std::move(grid);
  return {};
}

}  // namespace talvesk

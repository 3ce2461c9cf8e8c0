#include "grid/SharpLayers.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {
namespace {

constexpr double kTouching = 1e-9;  // metres: layers meet though their depths were rounded

double within(const VelocityLayer& layer, double depth) {
  if (depth <= layer.initialDepth) return layer.initialVelocity;
  if (depth >= layer.finalDepth || layer.initialVelocity == layer.finalVelocity) {
    return layer.finalVelocity;
  }
  const double share = (depth - layer.initialDepth) / (layer.finalDepth - layer.initialDepth);
  return layer.initialVelocity + share * (layer.finalVelocity - layer.initialVelocity);
}

/// Half of what the layers on both sides of the top of layer `i` leave to its jump, metres. An
/// inner layer shares its thickness with the jump at its other end.
double halfJump(const std::vector<VelocityLayer>& layers, std::size_t i, double thickness) {
  const double top = layers[i].initialDepth;
  const double above = top - layers[i - 1].initialDepth;
  const double below = layers[i].finalDepth - top;
  return std::min(
      {thickness / 2.0, i > 1 ? above / 2.0 : above, i + 1 < layers.size() ? below / 2.0 : below});
}

}  // namespace

double velocityInLayers(const std::vector<VelocityLayer>& layers, double depth, double thickness) {
  const auto next = std::upper_bound(
      layers.begin(), layers.end(), depth,
      [](double at, const VelocityLayer& layer) { return at < layer.initialDepth; });
  const auto below = static_cast<std::size_t>(next - layers.begin());
  if (below == 0) return layers.front().initialVelocity;
  for (const std::size_t i : {below - 1, below}) {
    if (!(thickness > 0.0) || i == 0 || i == layers.size()) continue;
    const double half = halfJump(layers, i, thickness);
    const double top = layers[i].initialDepth;
    if (std::fabs(depth - top) >= half) continue;
    const double upper = within(layers[i - 1], top - half);
    const double lower = within(layers[i], top + half);
    return upper + (lower - upper) * (depth - (top - half)) / (2.0 * half);
  }
  return within(layers[below - 1], depth);
}

Status checkSharpLayers(const std::vector<VelocityLayer>& layers) {
  if (layers.empty()) {
    return Status::failure(
        Message::tr("No layer is left: a layer's final depth must be greater than its "
                    "initial depth, and that not negative."));
  }
  double bottom = 0.0;
  for (const VelocityLayer& layer : layers) {
    for (const double velocity : {layer.initialVelocity, layer.finalVelocity}) {
      if (velocity > 0.0 && std::isfinite(velocity)) continue;
      return Status::failure(
          Message::tr("A layer has a velocity of %1, which is no velocity of the ground.")
              .arg(Message::velocity(velocity)));
    }
    if (layer.initialDepth < bottom - kTouching) {
      return Status::failure(Message::tr("The layer that begins at %1 lies over another; order "
                                         "the layers by depth, without overlap.")
                                 .arg(Message::length(layer.initialDepth)));
    }
    bottom = layer.finalDepth;
  }
  return {};
}

VelocityCurve sampleSharpLayers(const std::vector<VelocityLayer>& layers, double depth,
                                double thickness, int points) {
  VelocityCurve curve;
  const std::vector<VelocityLayer> accepted = acceptedLayers(layers);
  if (points < 2 || !(depth > 0.0) || !std::isfinite(depth) || !checkSharpLayers(accepted).ok()) {
    return curve;
  }
  for (int i = 0; i < points; ++i) {
    curve.depths.push_back(depth * i / (points - 1));
    curve.velocities.push_back(velocityInLayers(accepted, curve.depths.back(), thickness));
  }
  return curve;
}

std::vector<double> sharpRows(const GridSize& size, const std::vector<VelocityLayer>& layers,
                              double thickness) {
  std::vector<double> rows(size.righe);
  for (std::uint32_t row = 0; row < size.righe; ++row) {
    rows[row] = velocityInLayers(layers, (row + 0.5) * size.aLato, thickness);
  }
  return rows;
}

Status buildSharpGrid(const Grid& current, const std::vector<VelocityLayer>& layers,
                      double thickness, std::unique_ptr<Grid>& out) {
  const std::vector<VelocityLayer> accepted = acceptedLayers(layers);
  Status status = checkSharpLayers(accepted);
  if (!status.ok()) return status;
  const GridSize& size = current.geometry().size();
  std::vector<double> slownesses;
  slownesses.reserve(size.cellCount());
  for (const double velocity : sharpRows(size, accepted, thickness)) {
    slownesses.insert(slownesses.end(), size.col, 1.0 / velocity);
  }
  out = std::make_unique<Grid>(current.sharedGeometry(), std::move(slownesses));
  return {};
}

}  // namespace talvesk

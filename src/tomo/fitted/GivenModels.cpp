#include "tomo/fitted/GivenModels.h"

#include "model/GroundModel.h"
#include "model/TomoDocument.h"
#include "tomo/fitted/LinePicks.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace talvesk {
namespace {

// Whoever takes the model has bounds of his own.
constexpr VelocityBounds kAny{1.0, 1e6};

std::vector<double> onGrid(const TomoDocument& onto,
                           const std::function<GroundColumn(double x)>& columnAt) {
  const double offset = onto.model->xOffset;
  return cellSlownesses(
      onto.model->grid->geometry(), [&](double x) { return columnAt(x - offset); }, kAny);
}

/// What is known of a refractor, over the distance along the line.
struct KnownRefractor {
  std::vector<double> x, depths, velocities;
};

KnownRefractor knownOf(const refractionDataStructure::computedData& refractor) {
  KnownRefractor known;
  const std::size_t count =
      std::min({refractor.x.size(), refractor.depth.size(), refractor.velocity.size()});
  for (std::size_t i = 0; i < count; ++i) {
    const double depth = refractor.depth[i], velocity = refractor.velocity[i];
    if (!(std::isfinite(depth) && depth >= 0.0 && std::isfinite(velocity) && velocity > 0.0)) {
      continue;
    }
    known.x.push_back(refractor.x[i]);
    known.depths.push_back(depth);
    known.velocities.push_back(velocity);
  }
  return known;
}

}  // namespace

GivenModel sectionModel(const TomoDocument& from, const TomoDocument& onto) {
  const Grid& grid = *from.model->grid;
  const std::vector<double> slownesses = grid.slownesses();
  GivenModel model;
  model.kind = ReferenceKind::kFile;
  model.slownesses = onGrid(onto, [&](double x) {
    const double column = std::floor((x + from.model->xOffset) / grid.aLato());
    const auto col = static_cast<std::size_t>(std::clamp(column, 0.0, grid.col() - 1.0));
    GroundColumn ground;
    for (std::uint32_t row = 0; row < grid.righe(); ++row) {
      const double velocity = 1.0 / slownesses[std::size_t{row} * grid.col() + col];
      ground.push_back({(row + 1.0) * grid.aLato(), velocity, velocity});
    }
    return ground;
  });
  return model;
}

std::optional<GivenModel> layersModel(const refractionDataStructure::processingData& layers,
                                      const TomoDocument& onto) {
  std::vector<KnownRefractor> refractors;
  for (const refractionDataStructure::computedData& each : layers.cData) {
    KnownRefractor known = knownOf(each);
    if (!known.x.empty()) refractors.push_back(std::move(known));
  }
  if (refractors.empty() || !(layers.v1 > 0.0)) return std::nullopt;
  GivenModel model;
  model.kind = ReferenceKind::kLayers;
  model.slownesses = onGrid(onto, [&](double x) {
    GroundColumn ground;
    double velocity = layers.v1, top = 0.0;
    for (const KnownRefractor& refractor : refractors) {
      top = std::max(top, interpolated(refractor.x, refractor.depths, x));
      ground.push_back({top, velocity, velocity});
      velocity = interpolated(refractor.x, refractor.velocities, x);
    }
    ground.push_back({top, velocity, velocity});
    return ground;
  });
  return model;
}

}  // namespace talvesk

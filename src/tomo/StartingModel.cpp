#include "tomo/StartingModel.h"

#include "grid/GridBuilder.h"
#include "model/GroundModel.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"

#include <cmath>

namespace talvesk {
namespace {

constexpr double kTolerance = 1e-5;  // relative; six digits are what a text may have kept

/// Whether every cell has the velocity of a model at the depth of its row's top.
template <typename VelocityOfDepth>
bool follows(const Grid& grid, const VelocityOfDepth& velocityOfDepth) {
  for (std::uint32_t row = 0; row < grid.righe(); ++row) {
    const double expected = velocityOfDepth(row * grid.aLato());
    for (std::uint32_t column = 0; column < grid.col(); ++column) {
      const double velocity = grid.velocity(grid.cellIndex(row, column));
      if (!(std::fabs(velocity - expected) <= kTolerance * expected)) return false;
    }
  }
  return true;
}

bool followsLayers(const Grid& grid, const std::vector<VelocityLayer>& layers) {
  if (!checkLayers(grid.geometry().size(), layers).ok()) return false;
  const Splines::CubicSpline spline = layerSpline(acceptedLayers(layers));
  return follows(grid, [&spline](double depth) { return spline(depth); });
}

}  // namespace

StartingModel startingModelOf(const TomoDocument& document) {
  if (document.model->grid == nullptr) return StartingModel::kNone;
  if (document.result->has_tomographic_info) {
    return document.result->smoothedResult ? StartingModel::kSmoothed : StartingModel::kResult;
  }
  if (follows(*document.model->grid, defaultVelocity)) return StartingModel::kDefault;
  return followsLayers(*document.model->grid, document.model->layers) ? StartingModel::kLayered
                                                                      : StartingModel::kOther;
}

}  // namespace talvesk

#include "tomo/StartingModel.h"

#include "grid/GridBuilder.h"
#include "grid/SharpLayers.h"
#include "model/GroundModel.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"

#include <cmath>

namespace talvesk {
namespace {

constexpr double kTolerance = 1e-5;  // relative; six digits are what a text may have kept

/// Whether every cell has the velocity of a model in its row.
template <typename VelocityOfRow>
bool hasRows(const Grid& grid, const VelocityOfRow& velocityOfRow) {
  for (std::uint32_t row = 0; row < grid.righe(); ++row) {
    const double expected = velocityOfRow(row);
    for (std::uint32_t column = 0; column < grid.col(); ++column) {
      const double velocity = grid.velocity(grid.cellIndex(row, column));
      if (!(std::fabs(velocity - expected) <= kTolerance * expected)) return false;
    }
  }
  return true;
}

/// The same at the depth of the row's top.
template <typename VelocityOfDepth>
bool follows(const Grid& grid, const VelocityOfDepth& velocityOfDepth) {
  return hasRows(grid, [&](std::uint32_t row) { return velocityOfDepth(row * grid.aLato()); });
}

bool followsSpline(const Grid& grid, const std::vector<VelocityLayer>& layers) {
  if (!checkLayers(grid.geometry().size(), layers).ok()) return false;
  const Splines::CubicSpline spline = layerSpline(acceptedLayers(layers));
  return follows(grid, [&spline](double depth) { return spline(depth); });
}

}  // namespace

bool followsSharpLayers(const Grid& grid, const std::vector<VelocityLayer>& layers) {
  const std::vector<VelocityLayer> accepted = acceptedLayers(layers);
  if (!checkSharpLayers(accepted).ok()) return false;
  const std::vector<double> rows = sharpRows(grid.geometry().size(), accepted, 0.0);
  return hasRows(grid, [&](std::uint32_t row) { return rows[row]; });
}

StartingModel startingModelOf(const TomoDocument& document) {
  if (document.model->grid == nullptr) return StartingModel::kNone;
  if (document.result->has_tomographic_info) {
    return document.result->smoothedResult ? StartingModel::kSmoothed : StartingModel::kResult;
  }
  if (follows(*document.model->grid, defaultVelocity)) return StartingModel::kDefault;
  const Grid& grid = *document.model->grid;
  const std::vector<VelocityLayer>& layers = document.model->layers;
  return followsSpline(grid, layers) || followsSharpLayers(grid, layers) ? StartingModel::kLayered
                                                                         : StartingModel::kOther;
}

}  // namespace talvesk

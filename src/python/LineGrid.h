#pragma once

#include "base/Shared.h"
#include "grid/Grid.h"
#include "grid/VelocityLayers.h"
#include "model/GroundModel.h"

#include <optional>
#include <vector>

namespace talvesk {

struct Survey;

namespace python {

/// A grid under a line with the velocities that an inversion starts from.
struct LineGrid {
  Shared<GroundModel> model;  ///< whose grid exists and has cells

  const Grid& grid() const { return *model->grid; }
  /// Positions along the line are those of the survey; the grid has an origin of its own.
  double gridX(double surveyX) const { return surveyX + model->xOffset; }
  double surveyX(double gridX) const { return gridX - model->xOffset; }
};

/// What the caller says of a grid; what it does not say is proposed from the survey.
struct GridWishes {
  std::optional<double> cell;   ///< metres
  std::optional<double> depth;  ///< metres
  int nodes = 6;                ///< per cell side
  std::vector<VelocityLayer> layers;
};

/// Builds a grid under a survey, as talvesk-batch does with the same options. Raises an Error.
LineGrid buildLineGrid(const Survey& survey, const GridWishes& wishes);

/// Lays the grid under the survey in place of the one it has. Raises an Error when the grid was
/// built for positions that the survey does not have.
void layUnder(const LineGrid& grid, Survey& survey);

}  // namespace python
}  // namespace talvesk

#pragma once

#include "base/Log.h"
#include "base/Status.h"
#include "grid/SharpLayers.h"
#include "model/Parameters.h"
#include "tomo/Smoothing.h"

#include <memory>
#include <vector>

namespace talvesk {

class TomoDocument;
struct SurveyProfile;

/// What the user chooses for a grid.
struct GridSettings {
  double maxDepth = 0.0;                             ///< metres
  double cellSize = 0.0;                             ///< metres
  std::uint32_t nodes = parameters::kNodes.initial;  ///< per cell side
  unsigned searches = 0;  ///< at once, to have room beside the grid; 0: one per processor
};

/// Measures the survey, proposes a cell size (kept in the document's list) and returns what a
/// dialog shows as defaults: half the array length deep, the size proposed first but at
/// least the smallest that users can choose, as many nodes per side as the present grid has, 6
/// without one.
GridSettings proposeGrid(TomoDocument& document, SurveyProfile& profile, Log& log);

/// Builds the grid with the default model under the survey and installs it; the information density
/// restarts at -1.0, and what an inversion through the grid before left is forgotten. On failure
/// (no geometry, too large, exception) the document keeps its grid.
Status setUpGrid(TomoDocument& document, const GridSettings& settings, Log& log);

/// Puts a grid into the document. What an inversion through the grid before left is forgotten:
/// rays, coverage and misfit belong to the grid that they were traced through.
void installGrid(TomoDocument& document, std::unique_ptr<Grid> grid);

/// Replaces the document's grid by one with a layered model and keeps the layers. What an inversion
/// through the grid before left is forgotten.
Status applyLayers(TomoDocument& document, const std::vector<VelocityLayer>& layers,
                   const LayerFill& fill = {});

/// Smooths the slownesses of the document's grid and replaces the grid by one that has them. The
/// geometry stays, and so do coverage, draw flags and the figures of the last solver pass. The rays
/// and times of a result are traced anew: they are those of the section that is shown. On failure
/// the document is as before. \param radius smoothing parameter, cells, at least 1 \param symmetric
/// see verticalRatio()
Status smoothGrid(TomoDocument& document, SmoothingType type, int radius, bool symmetric, Log& log);

}  // namespace talvesk

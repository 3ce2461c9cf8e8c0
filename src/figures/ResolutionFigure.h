#pragma once

#include "base/Status.h"
#include "figures/FigureFile.h"
#include "model/GroundModel.h"
#include "model/TomoDocument.h"

#include <memory>
#include <vector>

namespace talvesk {

/// A pattern that was laid over a section, what came back of it, and how far they agree.
struct ResolutionPanels {
  std::shared_ptr<const GridGeometry> geometry;
  double xOffset = 0.0;              ///< grid less survey abscissa, metres
  std::vector<double> truth;         ///< velocity over the undisturbed section's, per cell
  std::vector<double> recovered;     ///< the same
  std::vector<bool> covered;         ///< per cell: others are left blank in what came back
  double strength = 0.1;             ///< share of the velocity at the ends of the colours, positive
  std::vector<double> depths;        ///< metres below the surface, ascending
  std::vector<double> correlations;  ///< at these; not a number where there is none
  double threshold = 0.7;            ///< from which a pattern counts as resolved
};

/// True and recovered side by side in one palette and range, blue for faster and red for slower,
/// and the correlation over depth. Fails without cells.
Status prepareResolutionFigure(const ResolutionPanels& panels, double widthMm,
                               FigureDrawing& drawing);

/// The panels of a test on the grid of a document.
/// \param test as tomo/fitted/ResolutionTest gives it, which stands beside this room
template <typename Test>
ResolutionPanels panelsOf(const TomoDocument& document, const Test& test, double threshold) {
  ResolutionPanels panels;
  panels.geometry = document.model->grid->sharedGeometry();
  panels.xOffset = document.model->xOffset;
  panels.truth = test.truth;
  panels.recovered = test.recovered;
  panels.covered = test.covered;
  panels.strength = test.settings.strength;
  panels.threshold = threshold;
  for (const auto& each : test.byDepth) {
    panels.depths.push_back(each.depth);
    panels.correlations.push_back(each.correlation);
  }
  return panels;
}

Status writeResolutionFigure(const ResolutionPanels& panels, const std::string& path);

}  // namespace talvesk

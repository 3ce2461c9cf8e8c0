#pragma once

#include "grid/VelocityLayers.h"

#include <vector>

namespace talvesk {

class TomoDocument;

/// What the velocities of a document's grid are, and so what an inversion begins with.
enum class StartingModel {
  kNone,      ///< there is no grid
  kDefault,   ///< the default model
  kLayered,   ///< the document's layers, by their spline or sharp
  kResult,    ///< the result of the last inversion
  kSmoothed,  ///< the same, smoothed since
  kOther      ///< of none of these, like a smoothed starting model
};

/// Tells it from the velocities themselves, as a project does not say where they came from. They
/// may have lost their last digits in a file.
StartingModel startingModelOf(const TomoDocument& document);

/// Whether the cells of a grid have the velocities of sharp layers.
bool followsSharpLayers(const Grid& grid, const std::vector<VelocityLayer>& layers);

}  // namespace talvesk

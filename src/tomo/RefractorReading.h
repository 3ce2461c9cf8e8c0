#pragma once

#include "base/Status.h"
#include "model/RefractionDataStructure.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace talvesk {

class TomoDocument;

/// What in a section stands for the top of a refractor: the shallowest place where a velocity is
/// reached, or where velocity grows most for its size, the steepest gradient of ln v with depth.
struct RefractorSign {
  std::optional<double> velocity;  ///< m/s; none: the steepest gradient
};

/// Depths to look in, metres below the surface.
struct DepthRange {
  double top = 0.0;
  double bottom = 1e9;
};

/// The depth of a refractor in the column of the section that lies at a place of the line, metres
/// below the surface: straight between the middles of cells for a velocity, at the top of a
/// parabola through the gradients for the steepest one. Only cells that are drawn count, the others
/// hold no result. None beside the grid, where the velocity is not reached, where all drawn cells
/// have it already, and where velocity does not grow.
std::optional<double> refractorDepth(const TomoDocument& document, double x,
                                     const RefractorSign& sign, const DepthRange& range = {});

/// A place of the line with the depth of a refractor by the layers and by the section, metres.
struct ComparedDepth {
  double x = 0.0;
  double elevation = 0.0;  ///< of the surface, metres
  std::optional<double> layers;
  std::optional<double> section;

  std::optional<double> difference() const;  ///< section less layers, positive: deeper
};

/// A refractor of the layered profile beside the same in the section.
struct LayerComparison {
  std::size_t refractor = 0;  ///< from 0
  RefractorSign sign;
  std::vector<ComparedDepth> points;   ///< at the geophones, ascending x
  std::vector<ComparedDepth> columns;  ///< at the columns of the grid: the lines of a picture
  std::size_t count = 0;               ///< of geophones with both depths
  double mean = 0.0;                   ///< of their differences, metres
  double rms = 0.0;                    ///< of the same
};

/// Compares them. With the steepest gradient and two refractors, the first one is looked for above
/// the middle between both of the profile, the second below. Fails without a grid and as
/// LayeredProfile::read() does.
/// \param refractor from 0; one that the profile has no depths of fails
Status compareRefractor(const TomoDocument& document,
                        const refractionDataStructure::processingData& results,
                        std::size_t refractor, const RefractorSign& sign, LayerComparison& out);

}  // namespace talvesk

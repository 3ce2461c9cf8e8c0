#pragma once

#include "base/Log.h"
#include "grid/Grid.h"
#include "model/Parameters.h"

#include <cstdint>
#include <vector>

namespace talvesk {

enum class SmoothingType : int { kUniform = 0, kLinear = 1, kGaussian = 2, kRayBased = 3 };
inline constexpr auto kUsualSmoothing =
    static_cast<SmoothingType>(parameters::kSmoothingType.initial);

/// Any number but 1, 2 and 3 means uniform.
SmoothingType smoothingTypeOf(int type);

/// Height over width of the smoothing window. Ground is layered: unless the user asks for a
/// symmetric window it is flatter than wide.
inline constexpr double verticalRatio(bool symmetric) {
  return symmetric ? 1.0 : parameters::kFlatness.value;
}

/// Smoothed slownesses (s/m, cell order) of a grid. The window of a cell reaches `radius` columns
/// to each side and floor(radius * ratio) rows up and down, cut at the edges of the grid.
/// \param hits per cell: greater than 0 where a ray passed; read by the ray-based kind. Any other
/// number of entries throws std::out_of_range
/// \param radius smoothing parameter, cells, at least 1
/// \param ratio see verticalRatio()
std::vector<double> smoothSlowness(SmoothingType type, const Grid& grid,
                                   const std::vector<std::uint32_t>& hits, int radius,
                                   double ratio);

/// The same operators on the hit counts: the information density.
std::vector<double> smoothRayDensity(SmoothingType type, const Grid& grid,
                                     const std::vector<std::uint32_t>& hits, int radius,
                                     double ratio, Log& log);

}  // namespace talvesk

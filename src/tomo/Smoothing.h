#pragma once

#include "base/Log.h"
#include "base/WorkerPool.h"
#include "grid/Grid.h"
#include "model/SmoothingType.h"

#include <cstdint>
#include <vector>

namespace talvesk {

/// Smoothed slownesses (s/m, cell order) of a grid. The window of a cell reaches `radius` columns
/// to each side and floor(radius * ratio) rows up and down, cut at the edges of the grid.
/// \param hits per cell: greater than 0 where a ray passed; read by the ray-based kind. Any other
/// number of entries throws std::out_of_range
/// \param radius smoothing parameter, cells, at least 1
/// \param ratio see verticalRatio()
/// \param pool its workers share the rows of the grid; the result does not depend on how many
std::vector<double> smoothSlowness(SmoothingType type, const Grid& grid,
                                   const std::vector<std::uint32_t>& hits, int radius, double ratio,
                                   WorkerPool& pool);
/// The same on the calling thread alone.
std::vector<double> smoothSlowness(SmoothingType type, const Grid& grid,
                                   const std::vector<std::uint32_t>& hits, int radius,
                                   double ratio);

/// The same operators on the hit counts: the information density.
std::vector<double> smoothRayDensity(SmoothingType type, const Grid& grid,
                                     const std::vector<std::uint32_t>& hits, int radius,
                                     double ratio, Log& log, WorkerPool& pool);
std::vector<double> smoothRayDensity(SmoothingType type, const Grid& grid,
                                     const std::vector<std::uint32_t>& hits, int radius,
                                     double ratio, Log& log);

}  // namespace talvesk

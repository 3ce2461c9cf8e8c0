#pragma once

#include "base/WorkerPool.h"
#include "grid/Grid.h"
#include "model/Parameters.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace talvesk {

/// What is done cell by cell is shared among workers in parts of so many: for less, waking another
/// one costs more than it saves.
inline constexpr std::size_t kCellsAtOnce = 16384;

/// The limits within which the solver keeps velocities, m/s. The maximum wins where they cross.
struct VelocityLimits {
  double minimum = parameters::kMinVelocity.initial;
  double maximum = parameters::kMaxVelocity.initial;
};

/// One simultaneous update (SIRT; Gilbert 1972, Iterative methods for the three-dimensional
/// reconstruction of an object from projections): every cell that rays cross is corrected by the
/// length-weighted mean of their errors, its velocity changing by a factor of 0.6 to 1.4 at most.
/// \param coorslow per cell: sum over rays of (residual per metre times length in the cell), s
/// \param coorcount per cell: metres of ray
/// \param hitCounts per cell: raised by one where coorcount is greater than 0
/// Throws std::out_of_range where one of these is shorter than the grid.
void updateSlownesses(Grid& grid, const std::vector<double>& coorslow,
                      const std::vector<double>& coorcount, std::vector<std::uint32_t>& hitCounts,
                      const VelocityLimits& limits, WorkerPool& pool);

}  // namespace talvesk

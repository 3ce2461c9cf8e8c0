#pragma once

#include "grid/Grid.h"
#include "model/Parameters.h"

#include <cstdint>
#include <vector>

namespace talvesk {

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
/// \return the slownesses of all cells after the update, s/m; the grid holds them too
std::vector<double> updateSlownesses(Grid& grid, const std::vector<double>& coorslow,
                                     const std::vector<double>& coorcount,
                                     std::vector<std::uint32_t>& hitCounts,
                                     const VelocityLimits& limits);

}  // namespace talvesk

#pragma once

#include "refraction/AlongLine.h"
#include "refraction/WeighedPicks.h"

#include <optional>
#include <vector>

namespace talvesk {

/// Ground whose velocity grows steadily with depth, v = v0 + g z, and may be slower or faster by a
/// factor that changes slowly along the line. Its first arrivals dive and come up again without any
/// layer:
///   Slotnick, M. M. (1936): On seismic computations, with applications. Geophysics 1, 9-22.
struct FittedGradient {
  AlongLine along{0.0, 0.0, 1};
  std::vector<double> slowness;  ///< at the surface, s/m, one per knot
  double growth = 0.0;           ///< g / v0, per metre
  std::vector<double> times;     ///< per pick, seconds
  double cost = 0.0;             ///< robust
  std::size_t unknowns = 0;

  double surfaceVelocity() const;                                 ///< of all of the line, m/s
  double gradient() const { return growth * surfaceVelocity(); }  ///< m/s per metre
};

/// \param knots of the factor along the line
std::optional<FittedGradient> fitGradient(const std::vector<WeighedPick>& picks, std::size_t knots);

}  // namespace talvesk

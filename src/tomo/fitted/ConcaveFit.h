#pragma once

#include "tomo/fitted/LinePicks.h"

#include <vector>

namespace talvesk {

/// A concave curve from the origin: broken at its knots, with slopes that never rise.
struct ConcaveCurve {
  std::vector<double> knots;       ///< metres, ascending, positive
  std::vector<double> slopes;      ///< s/m: up to knot i; never rising
  double at(double offset) const;  ///< beyond the last knot with the last slope
};

/// The concave curve through the times over offset that fits best, gross errors weighted down.
/// Empty without picks.
ConcaveCurve fitConcave(const LinePicks& line);

}  // namespace talvesk

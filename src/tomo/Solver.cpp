#include "tomo/Solver.h"

namespace talvesk {
namespace {

/// The corrected slowness of one cell, or its present one when the correction makes no sense.
double corrected(double s, double correction, const VelocityLimits& limits) {
  double next = s - correction;
  const double velocity = 1.0 / next;
  if (!(velocity > 0.0)) return s;
  const double v = 1.0 / s;
  if (0.6 * v > velocity) {
    next = s * 1.6666666666666667;
  } else if (velocity > 1.4 * v) {
    next = s * 0.7142857142857143;
  }
  if (limits.minimum > 1.0 / next) next = 1.0 / limits.minimum;
  if (1.0 / next > limits.maximum) next = 1.0 / limits.maximum;
  return next;
}

}  // namespace

std::vector<double> updateSlownesses(Grid& grid, const std::vector<double>& coorslow,
                                     const std::vector<double>& coorcount,
                                     std::vector<std::uint32_t>& hitCounts,
                                     const VelocityLimits& limits) {
  for (std::uint32_t c = 0; c < grid.cellCount(); ++c) {
    if (coorcount.at(c) > 0.0) ++hitCounts.at(c);
    // Not "equal to 0" the other way round: a NaN goes on, and is then refused as no velocity.
    if (coorslow.at(c) == 0.0) continue;
    grid.setSlowness(c, corrected(grid.slowness(c), coorslow[c] / coorcount[c], limits));
  }
  return grid.slownesses();
}

}  // namespace talvesk

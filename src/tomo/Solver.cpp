#include "tomo/Solver.h"

#include <algorithm>
#include <stdexcept>
#include <string>

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

void updateSlownesses(Grid& grid, const std::vector<double>& coorslow,
                      const std::vector<double>& coorcount, std::vector<std::uint32_t>& hitCounts,
                      const VelocityLimits& limits, WorkerPool& pool) {
  const std::size_t cells = grid.cellCount();
  if (std::min({coorslow.size(), coorcount.size(), hitCounts.size()}) < cells) {
    throw std::out_of_range("sums or hit counts for less than " + std::to_string(cells) + " cells");
  }
  forEachPart(pool, cells, kCellsAtOnce, [&](std::size_t first, std::size_t end) {
    for (auto c = static_cast<std::uint32_t>(first); c < end; ++c) {
      if (coorcount[c] > 0.0) ++hitCounts[c];
      // Not "equal to 0" the other way round: a NaN goes on, and is then refused as no velocity.
      if (coorslow[c] == 0.0) continue;
      grid.setSlowness(c, corrected(grid.slowness(c), coorslow[c] / coorcount[c], limits));
    }
  });
}

}  // namespace talvesk

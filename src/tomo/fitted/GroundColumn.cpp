#include "tomo/fitted/GroundColumn.h"

#include "tomo/fitted/LinePicks.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr double kSteady = 1e-9;  // relative change of velocity that is none

/// Seconds down through the upper `height` metres of a stretch that is `whole` metres high.
double timeThrough(const GroundStretch& stretch, double whole, double height) {
  const double rise = stretch.bottomVelocity - stretch.topVelocity;
  const double change = whole > 0.0 ? rise * (height / whole) / stretch.topVelocity : 0.0;
  if (std::fabs(change) < kSteady) return height / stretch.topVelocity;
  return height / (stretch.topVelocity * change) * std::log1p(change);
}

}  // namespace

double verticalTime(const GroundColumn& column, double depth) {
  double time = 0.0;
  double top = 0.0;
  for (const GroundStretch& stretch : column) {
    if (depth <= top) return time;
    if (!(stretch.bottom > top)) continue;
    time += timeThrough(stretch, stretch.bottom - top, std::min(depth, stretch.bottom) - top);
    top = stretch.bottom;
  }
  return depth > top ? time + (depth - top) / column.back().bottomVelocity : time;
}

std::vector<double> cellSlownesses(const GridGeometry& geometry,
                                   const std::function<GroundColumn(double x)>& columnAt,
                                   const VelocityBounds& bounds) {
  std::vector<double> slownesses(geometry.cellCount());
  const double height = geometry.aLato();
  for (std::uint32_t ix = 0; ix < geometry.col(); ++ix) {
    const double x = (ix + 0.5) * height;
    const GroundColumn column = columnAt(x);
    const double surface = surfaceElevation(geometry, x);
    for (std::uint32_t iz = 0; iz < geometry.righe(); ++iz) {
      const std::uint32_t cell = iz * geometry.col() + ix;
      const double centre = geometry.cellCentre(cell).z + surface;
      const double top = std::max(0.0, centre - 0.5 * height);
      const double mean = (verticalTime(column, top + height) - verticalTime(column, top)) / height;
      slownesses[cell] = std::clamp(mean, 1.0 / bounds.greatest, 1.0 / bounds.least);
    }
  }
  return slownesses;
}

}  // namespace talvesk

#pragma once

#include "synthetic/Ground.h"

#include <cstddef>
#include <vector>

namespace talvesk::synthetic {

/// A piece of ground on a square raster of points, not draped: what lies above the surface is air.
struct Raster {
  double left = 0.0;    ///< metres, of column 0
  double bottom = 0.0;  ///< elevation of row 0, metres
  double step = 0.1;    ///< metres between points
  std::size_t columns = 0;
  std::size_t rows = 0;
  /// s/m, the mean over a step around each point; rows from below, columns within; 0 in the air.
  /// The points next above the surface count as ground, so that waves along it find their way.
  std::vector<double> slownesses;

  double x(std::size_t column) const { return left + static_cast<double>(column) * step; }
  double z(std::size_t row) const { return bottom + static_cast<double>(row) * step; }
};

/// \param left, right abscissas, metres
/// \param depth below the lowest surface, metres
Raster rasterOf(const Ground& ground, double left, double right, double depth, double step);

/// First arrivals from one source at the surface, by the fast marching method on a raster: upwind
/// differences of second order (Sethian 1999, SIAM Review 41, 199-235), near the source of the
/// times divided by those of even ground (Treister and Haber 2016, Journal of Computational Physics
/// 324, 210-225). Shares nothing with the tracers of the program and knows no rays.
class WaveField {
 public:
  WaveField(const Ground& ground, const Raster& raster, double source);

  /// Seconds to a place of the surface, metres; within the raster.
  double at(double x) const;

 private:
  struct Slope;

  void start();
  void march();
  double update(std::size_t column, std::size_t row) const;
  Slope slopeAlong(std::size_t point, std::ptrdiff_t stride, std::size_t index, std::size_t count,
                   double even, double evenSlope) const;
  double distance(std::size_t point) const;
  double evenTime(std::size_t point) const;

  const Ground& mGround;
  const Raster& mRaster;
  const double mSourceX, mSourceZ, mSourceSlowness;
  std::vector<double> mTimes;
  std::vector<bool> mKnown;
};

}  // namespace talvesk::synthetic

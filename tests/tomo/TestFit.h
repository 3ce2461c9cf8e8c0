#pragma once

#include "grid/GridGeometry.h"
#include "numerics/Splines.h"
#include "tomo/fitted/FineTracer.h"
#include "tomo/fitted/FittedInversion.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <random>
#include <vector>

namespace talvesk::testing {

/// First-arrival time between two places on level ground, seconds; exact.
using TimeBetween = std::function<double(double source, double receiver)>;

/// Of a velocity v0 + k z.
inline TimeBetween gradientTimes(double v0, double k) {
  return [=](double source, double receiver) {
    return 2.0 / k * std::asinh(k * std::fabs(receiver - source) / (2.0 * v0));
  };
}

/// Over a half-space whose top is `depth` deep under x = 0 and dips by `slope` (tangent).
inline TimeBetween twoLayerTimes(double v1, double v2, double depth, double slope = 0.0) {
  return [=](double source, double receiver) {
    const double dip = std::atan(slope);
    const auto distance = [&](double x) { return (depth + slope * x) * std::cos(dip); };
    const double critical = std::asin(v1 / v2);
    const double along = std::fabs(receiver - source) * std::cos(dip);
    const double refracted =
        along / v2 + (distance(source) + distance(receiver)) * std::cos(critical) / v1;
    return std::min(std::fabs(receiver - source) / v1, refracted);
  };
}

/// Level ground with geophones and shots on nodes of its grid, and exact times with normal errors.
struct FitLine {
  std::shared_ptr<const GridGeometry> geometry;
  FitData data;
  std::vector<double> start;  ///< s/m, a velocity that grows from 400 m/s by 40 per metre

  std::unique_ptr<FineTracer> tracer(unsigned threads = 2) const {
    return std::make_unique<FineTracer>(*geometry, data, threads);
  }
  FittedOptions options() const {
    FittedOptions options;
    options.start = start;
    return options;
  }
  double depth(std::size_t cell) const {
    const std::size_t row = cell / geometry->col();
    return (static_cast<double>(row) + 0.5) * geometry->aLato();
  }
};

struct FitLineSize {
  int geophones = 24;
  double spacing = 2.0;   ///< metres
  int shots = 7;          ///< from end to end
  double depth = 12.0;    ///< of the grid, metres
  double cell = 1.0;      ///< metres
  double sigma = 0.0005;  ///< seconds
};

inline FitLine fitLine(const FitLineSize& size, const TimeBetween& time, unsigned seed = 1) {
  const double length = (size.geophones - 1) * size.spacing;
  Splines::LinearSpline level;
  level.build(std::vector<double>{-1.0, length + 3.0}, {0.0, 0.0});
  FitLine line;
  line.geometry = std::make_shared<GridGeometry>(
      GridSize{static_cast<std::uint32_t>(std::lround(size.depth / size.cell)),
               static_cast<std::uint32_t>(std::lround((length + 2.0) / size.cell)), 6, size.cell},
      level);
  std::mt19937 random(seed);
  std::normal_distribution<double> error(0.0, size.sigma);
  for (int s = 0; s < size.shots; ++s) {
    FitShot shot;
    shot.record = static_cast<std::uint32_t>(s);
    shot.source = 1.0 + std::floor(length / size.spacing * s / (size.shots - 1)) * size.spacing;
    shot.firstPick = line.data.picks.size();
    for (int g = 0; g < size.geophones; ++g) {
      const double x = 1.0 + g * size.spacing;
      if (x == shot.source) continue;
      const double measured = time(shot.source - 1.0, x - 1.0) + error(random);
      shot.receivers.push_back(x);
      line.data.picks.push_back({shot.record, static_cast<std::uint32_t>(g),
                                 std::max(measured, 0.1 * size.sigma), size.sigma});
    }
    line.data.shots.push_back(shot);
  }
  for (std::size_t c = 0; c < line.geometry->cellCount(); ++c) {
    line.start.push_back(1.0 / (400.0 + 40.0 * line.depth(c)));
  }
  return line;
}

/// Relative error of the velocity, median over cells with at least `metres` of ray.
inline double medianVelocityError(const FitLine& line, const FittedResult& result,
                                  const std::function<double(double depth)>& velocity,
                                  double metres = 1.0) {
  std::vector<double> covered(result.slownesses.size(), 0.0);
  const RayMatrix& rays = result.traced.rays;
  for (std::size_t k = 0; k < rays.cells.size(); ++k) covered[rays.cells[k]] += rays.lengths[k];
  std::vector<double> errors;
  for (std::size_t c = 0; c < covered.size(); ++c) {
    if (covered[c] < metres) continue;
    errors.push_back(std::fabs(1.0 / result.slownesses[c] / velocity(line.depth(c)) - 1.0));
  }
  std::sort(errors.begin(), errors.end());
  return errors.empty() ? 1.0 : errors[errors.size() / 2];
}

}  // namespace talvesk::testing

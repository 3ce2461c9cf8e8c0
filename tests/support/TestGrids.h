#pragma once

#include "grid/Grid.h"
#include "numerics/Splines.h"

#include <cmath>
#include <cstdint>
#include <memory>
#include <random>

namespace talvesk::testing {

/// A surface of gentle hills, in steps of `spacing` metres; `relief` 0 is level ground.
inline Splines::LinearSpline hills(double length, double relief, double spacing = 2.0) {
  std::vector<double> x, z;
  for (double at = 0.0; at <= length + spacing; at += spacing) {
    x.push_back(at);
    z.push_back(100.0 + relief * std::sin(at / 17.0) + 0.3 * relief * std::sin(at / 3.1));
  }
  Splines::LinearSpline spline;
  spline.build(x, z);
  return spline;
}

/// A grid whose velocity grows with depth and varies from cell to cell, the same for every run.
inline std::unique_ptr<Grid> roughGrid(const GridSize& size, double relief, double roughness = 0.2,
                                       std::uint32_t seed = 1) {
  const auto surface = hills(size.col * size.aLato, relief);
  std::mt19937 random(seed);
  std::vector<double> slowness;
  for (std::uint32_t iz = 0; iz < size.righe; ++iz) {
    for (std::uint32_t ix = 0; ix < size.col; ++ix) {
      const double unit = static_cast<double>(random()) / 4294967296.0;
      const double v = 300.0 + 60.0 * iz * size.aLato;
      slowness.push_back(1.0 / (v * (1.0 + roughness * (unit - 0.5))));
    }
  }
  return std::make_unique<Grid>(std::make_shared<GridGeometry>(size, surface), std::move(slowness));
}

}  // namespace talvesk::testing

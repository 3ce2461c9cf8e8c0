#pragma once

#include "grid/GridBuilder.h"
#include "tomo/fitted/FitData.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <random>
#include <vector>

namespace talvesk::testing {

/// First arrivals between two abscissas of a level line, seconds.
using Arrivals = std::function<double(double source, double receiver)>;

/// What a delay time in ground v0 + k z above a refractor v2 at depth h is, k perhaps 0.
inline double delayTime(double v0, double k, double v2, double h) {
  if (k == 0.0) return h * std::sqrt(1.0 / (v0 * v0) - 1.0 / (v2 * v2));
  const auto primitive = [v2](double v) {
    const double w = std::sqrt(1.0 - v * v / (v2 * v2));
    return w + std::log(v / v2 / (1.0 + w));
  };
  return (primitive(v0 + k * h) - primitive(v0)) / k;
}

/// Steady growth of velocity with depth: arcs.
inline Arrivals steadyGradient(double v0, double k) {
  return
      [=](double s, double r) { return 2.0 / k * std::asinh(k * std::fabs(r - s) / (2.0 * v0)); };
}

/// A layer on a plane refractor that falls by `dip` (radians) along the line and lies `depth` below
/// abscissa 1.
inline Arrivals planeRefractor(double v1, double v2, double depth, double dip) {
  return [=](double s, double r) {
    const auto across = [=](double x) {
      return (depth + std::tan(dip) * (x - 1.0)) * std::cos(dip);
    };
    const double x = std::fabs(r - s);
    const double delays = delayTime(v1, 0.0, v2, across(s)) + delayTime(v1, 0.0, v2, across(r));
    return std::min(x / v1, x * std::cos(dip) / v2 + delays);
  };
}

/// Two level layers of thicknesses h1 and h2 on a refractor.
inline Arrivals threeLayers(double v1, double v2, double v3, double h1, double h2) {
  return [=](double s, double r) {
    const double x = std::fabs(r - s);
    const double third = delayTime(v1, 0.0, v3, h1) + delayTime(v2, 0.0, v3, h2);
    return std::min({x / v1, x / v2 + 2.0 * delayTime(v1, 0.0, v2, h1), x / v3 + 2.0 * third});
  };
}

/// Velocity v0 + k z down to a level refractor.
inline Arrivals gradientOverRefractor(double v0, double k, double v2, double h) {
  return [=](double s, double r) {
    const double x = std::fabs(r - s);
    const double head = x / v2 + 2.0 * delayTime(v0, k, v2, h);
    const double turn = v0 / k * (std::sqrt(1.0 + std::pow(k * x / (2.0 * v0), 2)) - 1.0);
    return turn > h ? head : std::min(head, 2.0 / k * std::asinh(k * x / (2.0 * v0)));
  };
}

/// How good the picks are that are made of arrivals.
struct PickQuality {
  double noise = 0.0;       ///< one deviation, seconds
  double grossShare = 0.0;  ///< of picks that are half as late again, or early by 40 %
};

/// 48 geophones at 2 m from abscissa 1, nine shots along them; the errors stated are 0.5 ms.
inline FitData pickLine(const Arrivals& arrivals, const PickQuality& quality = {}) {
  std::mt19937 random(20);
  const auto uniform = [&random] { return static_cast<double>(random()) / 4294967296.0; };
  FitData data;
  for (std::uint32_t shot = 0; shot < 9; ++shot) {
    FitShot record;
    record.record = shot;
    record.source = 1.0 + 11.75 * shot;
    record.firstPick = data.picks.size();
    for (std::uint32_t i = 0; i < 48; ++i) {
      const double receiver = 1.0 + 2.0 * i;
      if (receiver == record.source) continue;
      double normal = -6.0;
      for (int k = 0; k < 12; ++k) normal += uniform();
      double time = arrivals(record.source, receiver) + quality.noise * normal;
      if (uniform() < quality.grossShare) time *= uniform() < 0.5 ? 1.5 : 0.6;
      data.picks.push_back({shot, i, std::max(1e-4, time), 0.0005});
      record.receivers.push_back(receiver);
    }
    data.shots.push_back(record);
  }
  return data;
}

/// Cells of 0.5 m below that line and to 40 m, under a surface.
inline std::shared_ptr<GridGeometry> lineGrid(const std::vector<double>& x = {0.0, 200.0},
                                              const std::vector<double>& elevation = {0.0, 0.0}) {
  Splines::LinearSpline surface;
  surface.build(x, elevation);
  return std::make_shared<GridGeometry>(gridSizeFor(96.0, 40.0, 0.5, 6), surface);
}

}  // namespace talvesk::testing

#pragma once

#include "grid/GridBuilder.h"
#include "tomo/fitted/FitData.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <memory>
#include <vector>

namespace talvesk::testing {

/// First arrival along level rows of equal thickness, by the closed form of direct and head waves.
/// \param velocities m/s per row; \param thickness metres; \param offset metres, positive
inline double arrivalOverRows(const std::vector<double>& velocities, double thickness,
                              double offset) {
  double first = offset / velocities[0];
  for (std::size_t refractor = 1; refractor < velocities.size(); ++refractor) {
    double time = offset / velocities[refractor];
    double critical = 0.0;
    bool faster = true;
    for (std::size_t row = 0; row < refractor && faster; ++row) {
      const double sine = velocities[row] / velocities[refractor];
      faster = sine < 1.0;
      if (!faster) break;
      const double cosine = std::sqrt(1.0 - sine * sine);
      time += 2.0 * thickness * cosine / velocities[row];
      critical += 2.0 * thickness * sine / cosine;
    }
    if (faster && critical <= offset) first = std::min(first, time);
  }
  return first;
}

/// A grid of rows under a slope (metres up per metre along), 98 m long and 49 m deep.
struct LayeredGround {
  LayeredGround(double cellSize, std::uint32_t nodes, double slope,
                const std::function<double(double)>& velocityOfDepth) {
    Splines::LinearSpline surface;
    surface.build({0.0, 200.0}, {100.0, 100.0 + 200.0 * slope});
    geometry = std::make_shared<GridGeometry>(gridSizeFor(98.0, 49.0, cellSize, nodes), surface);
    for (std::uint32_t row = 0; row < geometry->righe(); ++row) {
      velocities.push_back(velocityOfDepth((row + 0.5) * cellSize));
      slownesses.insert(slownesses.end(), geometry->col(), 1.0 / velocities.back());
    }
    cosine = 1.0 / std::sqrt(1.0 + slope * slope);
  }

  /// Rows parallel to the slope are level rows, seen askew.
  double arrival(double source, double receiver) const {
    return arrivalOverRows(velocities, geometry->aLato() * cosine,
                           std::fabs(receiver - source) / cosine);
  }

  std::shared_ptr<const GridGeometry> geometry;
  std::vector<double> velocities, slownesses;
  double cosine;
};

/// 48 receivers about 2 m apart and 9 shots among them, most of them between nodes.
inline FitData lineOfShots(std::uint32_t shots = 9, std::uint32_t receivers = 48) {
  FitData data;
  for (std::uint32_t s = 0; s < shots; ++s) {
    FitShot shot;
    shot.record = s;
    shot.source = std::min(97.0, 1.0 + s * 11.77);
    shot.firstPick = data.picks.size();
    for (std::uint32_t i = 0; i < receivers; ++i) {
      shot.receivers.push_back(1.0 + 2.0 * i + 0.13 * (i % 5));
      data.picks.push_back({shot.record, i, 0.0, 0.0});
    }
    data.shots.push_back(shot);
  }
  return data;
}

}  // namespace talvesk::testing

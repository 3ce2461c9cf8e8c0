#pragma once

#include "base/Point2D.h"
#include "model/RefractionDataStructure.h"
#include "refraction/ShotArrivals.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace talvesk {

/// The layers of a profile as one body of ground under the whole survey: boundaries as they were
/// built, straight between receivers. Beyond the receivers that a boundary was found at it goes on
/// at the dip that it has as a whole, with the velocity of the third next to it.
struct LayeredGround {
  /// The top of a refractor, and its velocity below.
  struct Boundary {
    std::vector<double> elevation;  ///< per node, metres
    std::vector<double> slowness;   ///< per node, s/m
    double first = 0.0;             ///< x of the first receiver that it was found at, metres
    double last = 0.0;              ///< of the last
  };

  double firstVelocity = 0.0;         ///< of the first layer, m/s
  std::vector<double> firstSlowness;  ///< at the surface, per node, s/m; empty: one velocity
  double growth = 0.0;                ///< of the first velocity over that at the surface, per metre
  double growsTo = 0.0;               ///< depth, metres, below which it grows no more
  std::vector<double> surface;       ///< elevation per node, metres; empty where there is no growth
  std::vector<double> x;             ///< nodes, metres, ascending and evenly spread
  std::vector<Boundary> boundaries;  ///< top down, one or two

  double spacing() const { return x[1] - x[0]; }
};

/// From the westernmost to the easternmost shot or receiver. Nothing without a velocity of the
/// first layer or without two known depths of the first refractor; without two of the second it is
/// left out. A boundary that would lie above what is over it lies on that.
std::optional<LayeredGround> layeredGround(const std::vector<ShotArrivals>& shots,
                                           const refractionDataStructure::processingData& results);

}  // namespace talvesk

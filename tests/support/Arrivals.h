#pragma once

#include "model/RefractionDataStructure.h"
#include "refraction/ShotArrivals.h"

#include <cstdint>
#include <vector>

namespace talvesk::testing {

/// A shot with a receiver per entry, on the level.
inline ShotArrivals shotAt(double x, const std::vector<double>& receivers,
                           const std::vector<double>& times) {
  ShotArrivals shot;
  shot.shot.x = x;
  for (const double at : receivers) shot.receivers.push_back({at, 7.0});
  shot.times = times;
  return shot;
}

/// The layers of a shot's arrivals, not shifted.
inline refractionDataStructure::layerStruct marks(std::uint32_t shot,
                                                  const std::vector<std::uint32_t>& layers) {
  refractionDataStructure::layerStruct own;
  own.shotID = shot;
  own.layer = layers;
  own.trasla.assign(layers.size(), 0.0);
  return own;
}

}  // namespace talvesk::testing

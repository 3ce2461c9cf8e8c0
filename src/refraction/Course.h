#pragma once

#include "refraction/ShotArrivals.h"

#include <vector>

namespace talvesk {

/// A quantity over ascending x, straight between its points and the same beyond the ends as at
/// them.
struct Course {
  std::vector<double> x;  ///< metres
  std::vector<double> y;  ///< as many

  double at(double place) const;  ///< 0 without points
};

/// Elevation of the surface from all shots and receivers; of several at one x the first counts.
Course surfaceOf(const std::vector<ShotArrivals>& shots);

}  // namespace talvesk

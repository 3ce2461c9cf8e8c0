#pragma once

#include <cmath>

namespace talvesk {

/// The least of 1, 2, 5, 10 ... times a power of ten that is not below `least`, which is positive
/// and finite.
inline double roundStep(double least) {
  const double power = std::pow(10.0, std::floor(std::log10(least)));
  for (const double factor : {1.0, 2.0, 5.0}) {
    if (factor * power >= least * (1.0 - 1e-9)) return factor * power;
  }
  return 10.0 * power;
}

}  // namespace talvesk

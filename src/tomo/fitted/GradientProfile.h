#pragma once

#include "tomo/fitted/GroundColumn.h"
#include "tomo/fitted/LinePicks.h"

#include <vector>

namespace talvesk {

/// Velocity that grows with depth, the same along the line, with the times that it explains.
struct GradientProfile {
  std::vector<double> depths;      ///< metres below the surface, ascending from 0
  std::vector<double> velocities;  ///< m/s there, never falling
  double deepestTurn = 0.0;        ///< metres; below it the profile is guessed
  std::vector<double> offsets;     ///< metres, ascending from 0
  std::vector<double> times;       ///< seconds there: a concave curve through the picks

  GroundColumn column() const;
};

/// The concave curve of the times over offset and what the Wiechert-Herglotz integral makes of it.
/// Empty where the picks lie at fewer than three offsets, or times do not grow with offset.
GradientProfile gradientProfile(const LinePicks& line, const VelocityBounds& bounds);

}  // namespace talvesk

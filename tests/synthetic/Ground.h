#pragma once

#include <functional>
#include <string>
#include <vector>

namespace talvesk::synthetic {

/// Ground that is known, to see what an inversion makes of its times.
struct Ground {
  std::string name;                                        ///< of its files
  std::string title;                                       ///< for tables
  std::function<double(double x)> elevation;               ///< metres, of the surface
  std::function<double(double x, double depth)> velocity;  ///< m/s, depth below the surface, metres
  std::vector<std::function<double(double x)>> refractors;  ///< depths below the surface, metres
};

std::function<double(double)> level(double value);

/// Velocity v0 + k z, on level ground.
Ground gradientGround(double v0, double k);

/// Layers of even velocity on level ground.
/// \param depths of the refractors, one less than the velocities
Ground layeredGround(std::vector<double> velocities,
                     std::vector<std::function<double(double x)>> depths);

/// Velocity v0 + k z, level at the surface, down to a refractor with waves of a length and size
/// about its mean depth.
Ground wavyGround(double v0, double k, double below, double depth, double length, double size);

/// The grounds of the study, for a line from 0 to 94 m.
std::vector<Ground> studyGrounds();

}  // namespace talvesk::synthetic

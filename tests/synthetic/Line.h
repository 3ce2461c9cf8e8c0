#pragma once

#include "synthetic/Ground.h"

#include <cstddef>
#include <iosfwd>
#include <vector>

namespace talvesk::synthetic {

/// Where a line is shot and heard.
struct Spread {
  std::vector<double> geophones;  ///< abscissas, metres
  std::vector<double> shots;
  double depth = 50.0;  ///< of the ground that waves pass, metres
  double step = 0.05;   ///< of the raster, metres
};

/// Shots halfway between geophones, evenly along the line, the outer two beside it.
Spread evenSpread(std::size_t geophones, double spacing, std::size_t shots);

struct Pick {
  std::size_t shot = 0;      ///< from 0
  std::size_t geophone = 0;  ///< from 0
  double time = 0.0;         ///< seconds
};

struct Noise {
  double sigma = 0.0005;  ///< seconds, of the normal error that each time gets
  double gross = 0.0;     ///< share of the times that are 20 to 40 ms off besides, either way
  unsigned long long seed = 1;
};

/// The times of all geophones and shots of a spread over a ground, without errors.
std::vector<Pick> exactPicks(const Ground& ground, const Spread& spread);

/// The same with errors; times stay positive. A seed gives the same errors everywhere.
std::vector<Pick> withErrors(std::vector<Pick> picks, const Noise& noise);

/// In the unified data format, each pick with its error.
void writePicks(const Ground& ground, const Spread& spread, const std::vector<Pick>& picks,
                double sigma, std::ostream& out);

/// The ground itself as JSON: columns every half metre, in each the mean slownesses of slices of
/// 0.1 m from the surface downward, and the depths of the refractors with the velocities on both
/// sides of them.
void writeTruth(const Ground& ground, const Spread& spread, std::ostream& out);

}  // namespace talvesk::synthetic

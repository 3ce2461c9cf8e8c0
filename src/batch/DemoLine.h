#pragma once

#include <cstddef>

namespace talvesk {

class TomoDocument;

// A synthetic line to try the program on, computed and not measured: 48 geophones every 2 m on a
// gentle slope, 11 shots, loose cover over weathered rock over bedrock, and a valley in the bedrock
// that nothing at the surface gives away.

/// Elevation of the ground, metres, at survey abscissa x (metres).
double demoElevation(double x);

/// Depth of the bedrock below the surface, metres.
double demoBedrockDepth(double x);

/// Velocity of the ground, m/s. \param depth below the surface, metres
double demoVelocity(double x, double depth);

std::size_t demoShotCount();

/// The survey: positions, and first breaks by this engine's ray tracer on a grid four times finer
/// than an inversion takes, with 0.3 ms (standard deviation) of noise. The same every time. Takes
/// some seconds. Throws std::bad_alloc.
TomoDocument demoLine();

}  // namespace talvesk

#pragma once

#include "base/Point2D.h"
#include "model/RefractionDataStructure.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace talvesk {

/// The top of a refractor: elevation over x, metres. A line ends where the depth is not known and
/// the next one begins where it is known again.
struct ProfileBoundary {
  std::uint32_t refractor = 0;  ///< 2 or 3
  std::vector<std::vector<Point2D>> lines;
};

/// The boundaries that were found, top down.
std::vector<ProfileBoundary> profileBoundaries(
    const refractionDataStructure::processingData& results);

/// Receivers of all refractors with their elevation, ascending x, each x once: the surface.
std::vector<Point2D> profileSurface(const refractionDataStructure::processingData& results);

/// A quantity of a refractor at x: that of the receiver there, else linear between its neighbours;
/// none beyond the first and the last receiver.
/// \param values one per receiver of the refractor
std::optional<double> valueAt(const refractionDataStructure::computedData& refractor,
                              const std::vector<double>& values, double x);

/// Whether the velocity of a layer, or velocity or depth of a refractor at one of its receivers, is
/// not known.
bool hasGaps(const refractionDataStructure::processingData& results);

/// The results of all refractors as text: a line of heads and a line per receiver with x, depths,
/// tV, tG and velocities of the first and the second refractor, "-" where a refractor has no value.
std::string profileTable(const refractionDataStructure::processingData& results);

}  // namespace talvesk

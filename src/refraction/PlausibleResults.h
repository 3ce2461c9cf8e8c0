#pragma once

#include "model/Parameters.h"
#include "model/RefractionDataStructure.h"
#include "refraction/ShotArrivals.h"

#include <cstddef>
#include <vector>

namespace talvesk {

// What no ground has is no result: where curves hardly differ the method divides by next to
// nothing, and what comes out would be drawn, printed and believed. It becomes unknown (not a
// number).

/// Slower than any soil, and faster than any rock that refraction surveys reach, m/s.
inline constexpr double kLeastVelocity = parameters::kSlowestLayer.value;
inline constexpr double kGreatestVelocity = parameters::kFastestLayer.value;

/// False for what is no number, too.
bool isPlausibleVelocity(double velocity);

/// From the first to the last place of shots and receivers, metres; 0 without any.
double lineLength(const std::vector<ShotArrivals>& shots);

/// Makes implausible velocities unknown. Returns how many are unknown then.
std::size_t leaveOutVelocities(std::vector<double>& velocities);

/// Makes depths unknown that are beyond the length of the line, up or down, and infinite ones.
/// Returns how many finite ones that are.
std::size_t leaveOutDepths(std::vector<double>& depths, double lineLength);

/// All of it in results that come from elsewhere; a depth without a velocity goes, too. Returns how
/// many velocities and depths were left out.
std::size_t leaveOutImplausible(refractionDataStructure::processingData& results,
                                double lineLength);

}  // namespace talvesk

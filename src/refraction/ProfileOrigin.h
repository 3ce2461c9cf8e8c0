#pragma once

#include "refraction/LayeredFit.h"

#include <vector>

namespace talvesk {

/// Whether picks and marks lead by the reciprocal method to the profile as it is, so that neither
/// has changed since it was built. False without a profile and for a fitted one. Tells nothing on
/// the console.
bool isProfileOf(const std::vector<ShotArrivals>& shots,
                 const refractionDataStructure::Interpretation& interpretation);

/// fitOfProfile(), empty where the profile is not that of the picks and marks: a fitted one is
/// fitted again, with these errors.
LayeredFit fitOfOwnProfile(const std::vector<ShotArrivals>& shots,
                           const std::vector<std::vector<double>>& errors,
                           const refractionDataStructure::Interpretation& interpretation);

}  // namespace talvesk

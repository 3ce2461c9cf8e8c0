#pragma once

#include "refraction/LayeredFit.h"

#include <iosfwd>
#include <vector>

namespace talvesk {

/// Lines for the terminal: how a profile fits its picks, then velocities, depths and misfit of each
/// layer. Places of a fitted profile beyond the geophones, which no pick was read at, are told
/// apart. Nothing without a profile.
/// \param fit of the profile to the picks of these shots
void summarizeProfile(const refractionDataStructure::Interpretation& interpretation,
                      const std::vector<ShotArrivals>& shots, const LayeredFit& fit,
                      std::ostream& out);

}  // namespace talvesk

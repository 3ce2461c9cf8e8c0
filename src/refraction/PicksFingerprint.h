#pragma once

#include "model/RefractionDataStructure.h"
#include "refraction/ShotArrivals.h"

#include <cstdint>
#include <vector>

namespace talvesk {

class TomoDocument;

/// All picks in one number, by which a profile remembers what it was built from: any pick set,
/// moved or removed makes it another. Never 0.
std::uint64_t fingerprintOf(const std::vector<ShotArrivals>& shots);

/// Whether the picks are others than those that a profile was built from. False without a profile,
/// and for one of a project that does not know its picks.
bool picksChangedSince(const std::vector<ShotArrivals>& shots,
                       const refractionDataStructure::processingData& results);
bool picksChangedSince(const TomoDocument& document,
                       const refractionDataStructure::processingData& results);

}  // namespace talvesk

#pragma once

#include "model/RefractionDataStructure.h"
#include "refraction/ShotArrivals.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace talvesk {

/// One straight piece of a branch of first arrivals.
struct BranchSegment {
  std::size_t end = 0;    ///< index behind its last arrival
  double velocity = 0.0;  ///< apparent, m/s
};

/// A branch as straight pieces of rising velocity, from the shot outward.
struct BranchSegments {
  bool direct = false;  ///< the first piece starts at the shot at time 0
  std::vector<BranchSegment> pieces;
};

/// Fits up to three straight pieces to arrivals, the first through the origin or with an intercept
/// time of its own, each at least 15 % faster than the one before. How many there are is what the
/// Bayesian information criterion prefers, for misfits that are no less than picks are sharp.
/// \param offsets metres, ascending, positive; \param times seconds, as many
/// \param refractors how many pieces there may be that do not start at the shot, 1 or 2
BranchSegments segmentBranch(const std::vector<double>& offsets, const std::vector<double>& times,
                             int refractors);

/// A first proposal of layers: for every shot a mark per trace, from the break points of its
/// branches. A third layer is proposed where several branches show it; pieces of branches that show
/// fewer layers go to the layer with the nearest velocity. Traces without a pick belong to none.
/// Whether a shot is enabled is taken from `before`.
std::vector<refractionDataStructure::layerStruct> proposeLayers(
    const std::vector<ShotArrivals>& shots,
    const std::vector<refractionDataStructure::layerStruct>& before);

}  // namespace talvesk

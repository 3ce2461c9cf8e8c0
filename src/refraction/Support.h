#pragma once

#include "model/RefractionDataStructure.h"
#include "refraction/ShotArrivals.h"

#include <cstdint>
#include <vector>

namespace talvesk {

/// What carries a value of an interpretation, the best first. A line is drawn dashed where it is
/// not the picks, and tables say what it is.
enum class Support {
  kPicks,        ///< picks that the method reads there
  kPhantom,      ///< shifted arrivals of other shots
  kGap,          ///< values across more than two spacings without any
  kExtrapolated  ///< a continuation beyond the last ones
};

/// "picks", "phantom", "gap" or "extrapolated", as files have it.
const char* nameOf(Support support);

/// What carries depth and velocity of a refractor of the reciprocal method, per receiver.
struct RefractorSupport {
  std::vector<Support> depth;
  std::vector<Support> velocity;
};

/// The arrivals that are read for a receiver, XY to either side of it, and what lies beside it:
/// velocities are slopes over 2 m to either side. A second refractor lies on the first. Of a fitted
/// profile whether a pick of the refractor comes from there or goes there.
/// \param interpretation as buildProfiles() or fitProfile() left it for these shots
/// \param refractor 2 or 3; one that is not built has nothing
RefractorSupport supportOf(const std::vector<ShotArrivals>& shots,
                           const refractionDataStructure::Interpretation& interpretation,
                           std::uint32_t refractor);

}  // namespace talvesk

#pragma once

#include "model/RefractionDataStructure.h"
#include "refraction/RefractionWarning.h"
#include "refraction/ShotArrivals.h"

#include <cstdint>
#include <vector>

namespace talvesk {

struct ProfileOutcome {
  bool built = false;  ///< the first refractor is there
  std::vector<RefractionWarning> warnings;
};

/// Curves, reciprocal times, tV and tG, velocities and depths of the first and, where a trace is
/// assigned to layer 3, the second refractor, from marks that fitToSurvey() has seen. The chosen XY
/// of a refractor that was built before is kept. Without the first refractor the interpretation
/// stays as it was; what is missing of the second leaves only that out.
///
/// Velocities that no ground has, and depths beyond the length of the line, are left unknown with
/// the reason. Receivers of a refractor are those of its forward curve that lie within the reverse
/// curve; the curves themselves keep all their arrivals.
ProfileOutcome buildProfiles(const std::vector<ShotArrivals>& shots,
                             refractionDataStructure::Interpretation& interpretation);

/// Only the curves of the refractors that traces are assigned to, with the time shifts in the
/// marks. A refractor whose curves cannot be made gets none.
std::vector<RefractionWarning> buildPhantoms(
    const std::vector<ShotArrivals>& shots,
    refractionDataStructure::Interpretation& interpretation);

/// Sets the XY of a refractor (2 or 3) for the next buildProfiles(), metres: a value of kXYFamily,
/// or any other one up to widestXY(). Beyond that it counts as 0.
void chooseXY(refractionDataStructure::Interpretation& interpretation, std::uint32_t refractor,
              double xy);

}  // namespace talvesk

#pragma once

#include "refraction/methods/MethodComparison.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

namespace talvesk {

/// What the errors of the picks make of a profile of the reciprocal method, beside that profile.
struct ProfileErrors {
  struct Refractor {
    Band depth;                ///< per receiver of the refractor, metres below the surface
    Band velocity;             ///< likewise, m/s
    double medianError = 0.0;  ///< of the median velocity, m/s; not a number where not known
  };

  int members = 0;                    ///< interpretations of moved picks that it comes from
  double v1Error = 0.0;               ///< of the velocity of the first layer, m/s; likewise
  std::vector<Refractor> refractors;  ///< as those of the profile
};

/// Those of the reciprocal method in a comparison, for the receivers of a profile that was built
/// from the same picks. Nothing without the method or without bands.
std::optional<ProfileErrors> profileErrors(const MethodComparison& comparison,
                                           const refractionDataStructure::processingData& profile);

/// Finds them for the profile in the interpretation. Nothing when stopped, and where the profile is
/// not that of these picks and marks.
/// \param goOn as that of compareMethods()
std::optional<ProfileErrors> findProfileErrors(const LayerPicks& picks, const BoundsOptions& bounds,
                                               const std::function<bool(std::size_t)>& goOn = {});

}  // namespace talvesk

#pragma once

#include "base/Status.h"
#include "model/RefractionDataStructure.h"

#include <cstdint>
#include <optional>

namespace talvesk {

/// The first layer of a profile that was fitted to all picks, which `refraction.xml` has no place
/// for, and by what its profile is known again.
struct FirstLayerMember {
  refractionDataStructure::FirstLayer first;
  double v1 = 0.0;          ///< of the profile, m/s
  std::uint64_t picks = 0;  ///< likewise, their fingerprint
};

/// None of a profile that the reciprocal method found.
std::optional<FirstLayerMember> firstLayerOf(
    const refractionDataStructure::Interpretation& interpretation);
/// Gives a profile its first layer again. Fails, with the interpretation as it was, when it is that
/// of another profile or none of any ground.
Status installFirstLayer(FirstLayerMember member,
                         refractionDataStructure::Interpretation& interpretation);

}  // namespace talvesk

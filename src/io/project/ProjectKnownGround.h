#pragma once

#include "base/Status.h"
#include "model/KnownGround.h"

#include <optional>

namespace talvesk {

class TomoDocument;

struct KnownGroundMember {
  KnownGround known;
};

/// None where nothing is known.
std::optional<KnownGroundMember> knownGroundOf(const TomoDocument& document);

/// Gives a document the known ground of its project. Fails where any of it cannot be.
Status installKnownGround(KnownGroundMember member, TomoDocument& document);

}  // namespace talvesk

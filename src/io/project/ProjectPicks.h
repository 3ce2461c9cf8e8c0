#pragma once

#include "base/Status.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace talvesk {

class TomoDocument;

/// Which picks wait to be confirmed. Without it every pick of a project counts as the user's own.
struct UnconfirmedMember {
  std::uint64_t picks = 0;                         ///< fingerprintOfPicks() of the survey
  std::vector<std::vector<std::uint32_t>> traces;  ///< of every record, from 0
};

/// None where no pick waits.
std::optional<UnconfirmedMember> unconfirmedOf(const TomoDocument& document);
/// Fails, with the document as it was, when the member is about other picks than the document's.
Status installUnconfirmed(const UnconfirmedMember& member, TomoDocument& document);

}  // namespace talvesk

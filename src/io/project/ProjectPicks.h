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

/// The error of one pick, and the time that it is about.
struct StoredError {
  std::uint32_t of = 0;  ///< trace of its record, or channel of its recording, from 0
  double time = 0.0;     ///< seconds; of recorded time where it is of a recording
  double sigma = 0.0;    ///< one standard deviation, seconds
};

/// How far picks may be off. Without it no error is known.
struct PickErrorsMember {
  std::vector<std::vector<StoredError>> errors;  ///< of the picks of every record, by trace
  /// Of the picks that the mends of every trace set keep, by channel; see ShotMends::picks.
  std::vector<std::vector<StoredError>> recorded;
};

/// None where no error is known.
std::optional<PickErrorsMember> pickErrorsOf(const TomoDocument& document);
/// Fails, with the document as it was, when the member tells what cannot be an error. Those of
/// other picks than the document's are passed over: another program may have changed these.
Status installPickErrors(const PickErrorsMember& member, TomoDocument& document);

/// None where no pick waits.
std::optional<UnconfirmedMember> unconfirmedOf(const TomoDocument& document);
/// Fails, with the document as it was, when the member is about other picks than the document's.
Status installUnconfirmed(const UnconfirmedMember& member, TomoDocument& document);

}  // namespace talvesk

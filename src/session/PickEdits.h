#pragma once

#include "base/Status.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace talvesk {

class TomoDocument;

/// What an edit by hand gives one trace.
struct PickChange {
  std::int32_t trace = 0;
  double time = 0.0;   ///< seconds; kNoTime removes the pick
  bool waits = false;  ///< for confirmation
  /// One standard deviation, seconds; 0 makes it unknown. None: that of the pick stays as long as
  /// its time does.
  std::optional<double> error = std::nullopt;
};

/// Gives traces of a shot their times. Those that the shot does not have are left out, and so are
/// picks on a shot that is disabled and on killed traces.
/// \param shot record of the document, from 0
void changePicks(TomoDocument& document, std::int32_t shot, const std::vector<PickChange>& changes);

/// Why traces of these changes can have no pick: their shot is disabled, or they are killed.
/// Success where none is concerned.
Status mayPick(const TomoDocument& document, std::int32_t shot,
               const std::vector<PickChange>& changes);

/// All picks of a shot are those of an autopicker, and wait for confirmation.
void markPicksAutomatic(TomoDocument& document, std::int32_t shot);

/// The records whose measured times, their errors, or whose confirmations, are not those of the
/// other document.
std::vector<std::int32_t> shotsWithOtherPicks(const TomoDocument& before,
                                              const TomoDocument& after);

/// Whether a trace has a pick that it had not before.
bool hasNewPick(const TomoDocument& before, const TomoDocument& after);

}  // namespace talvesk

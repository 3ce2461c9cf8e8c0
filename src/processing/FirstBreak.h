#pragma once

#include "base/Status.h"
#include "processing/CharacteristicPick.h"

#include <cstdint>
#include <vector>

namespace talvesk {

class TomoDocument;

/// First breaks without the user's help: an energy-ratio detector per trace, then a screening of
/// each shot's picks by the apparent velocity that they imply.

/// Picks one trace, raw or filtered, and stores index * sample interval, seconds, among the
/// measured times of the shot. The samples of an S-wave pair are rebuilt from its two recordings
/// first. A trace that a mend has killed, or whose shot it has disabled, is told there, too, and
/// stays unpicked. A trace without a break gets the time of sample 4294967295 on purpose: its
/// apparent velocity is next to nothing, so the screening removes it. \return the picked sample, or
/// -1; a shot or trace that does not exist is told on the console's error stream and changes
/// nothing
std::int32_t pickTrace(TomoDocument& document, std::int32_t shot, std::int32_t trace,
                       bool useFiltered);

/// Removes (kNoTime) the implausible picks of a shot. Walking away from the shot on each side, a
/// pick stays when the magnitude of its apparent velocity offset / time is at most 4500 m/s and at
/// least half the largest one accepted nearer to the shot on that side, and never below 200 m/s.
/// Geophones at the shot itself belong to the left, and of two equally far ones the later comes
/// first. What is no number (0 / 0, or a position that is not known) is removed as well. Offsets,
/// times and velocities are written to the console.
/// \return failure, and nothing changed, when the shot has no record or no geophone string
Status screenShotPicks(TomoDocument& document, std::int32_t shot);

/// pickTrace over all traces of a shot, a console line each, then screenShotPicks. A trace without
/// a break that could not be screened (no geophone known for it) is left without a pick all the
/// same.
Status pickShot(TomoDocument& document, std::int32_t shot, bool useFiltered);

/// The same over several shots, in the order given. Shots that are disabled are passed over, and
/// so are traces that are killed: tracesWithoutPart() tells them. Only the detector runs on the
/// threads: times and console lines are those of pickShot for one shot after the other, whatever
/// their number. \param threads 0 takes as many as the machine has processors \return the first
/// failure; the other shots are picked and screened nevertheless
Status pickShots(TomoDocument& document, const std::vector<std::int32_t>& shots, bool useFiltered,
                 unsigned threads = 0);

/// The picks of these shots at exactly sample kPickWindow, the first that the detector looks at:
/// their waves may have come before. Says how many there are, on which shots, and what to do; empty
/// when there are none.
Message describePicksAtFirstSample(const TomoDocument& document,
                                   const std::vector<std::int32_t>& shots);

}  // namespace talvesk

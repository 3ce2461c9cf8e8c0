#pragma once

#include "base/Message.h"

#include <cstddef>
#include <vector>

namespace talvesk {

struct Trace;
class TomoDocument;

/// What counting time from the shot did to the traces of a document.
struct ShotTimeOutcome {
  std::size_t shortened = 0;  ///< traces that lost samples now
  /// Traces left as recorded although their recording delay is not 0: the record ends before the
  /// shot, or delay and sample interval make no number of samples.
  std::size_t leftAsRecorded = 0;
  std::size_t mostDropped = 0;   ///< samples that the longest lead, of those shortened, had
  std::size_t picksRemoved = 0;  ///< picks from before the shot, where picks move with the samples
  std::vector<Message> notes;    ///< what became of the picks and filtered copies of mended shots
};

/// Recorders often start before the shot (half a second is common). Picks are sample index times
/// interval, so they count from the start of the record; this drops the first round(-delay /
/// interval) samples of every trace, raw, components and filtered alike, and remembers how many in
/// Trace::droppedSamples. Repeating it drops nothing more. Times that were picked before are not
/// moved: count time from the shot before picking.
/// Of mended traces, what was recorded is shortened and mended anew.
ShotTimeOutcome countTimeFromShot(TomoDocument& document);
/// The same of some of the trace sets only, from 0.
ShotTimeOutcome countTimeFromShot(TomoDocument& document, const std::vector<std::size_t>& sets);
/// The same of all traces, and their picks move with the samples that they mark. A pick from before
/// the shot is removed.
ShotTimeOutcome countTimesAndPicksFromShot(TomoDocument& document);

/// Whether the trace still begins before its shot, so that counting from it would shorten it.
bool startsBeforeShot(const Trace& trace);

}  // namespace talvesk

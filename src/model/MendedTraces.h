#pragma once

#include "base/Status.h"
#include "model/Recordings.h"

#include <cstddef>

namespace talvesk {

// From what was recorded to the traces that a survey shows: samples only, no picks.

/// The traces of a set as they were recorded.
const TraceSet& recordedTraces(const Recordings& recordings, std::size_t set);

/// Whether two traces have the same samples, raw and of both recordings; filtered ones do not
/// count.
bool sameSamples(const Trace& a, const Trace& b);

/// Cuts the lists of mends and originals behind the last set that has any.
void dropEmptyEnds(Recordings& recordings);

/// The channel of the record that is at a geophone, and back.
/// \param traces of the set
std::size_t channelAt(const ShotMends& mends, std::size_t geophone, std::size_t traces);

/// What a shift is for a trace, seconds: as many of its own samples as come nearest. 0 where its
/// sample interval is not known.
double wholeSamples(double timeShift, const Trace& trace);

/// The traces of a set with the mends that it has, without filtered copies. Positions are those of
/// the set as it is, all else comes from the record. What goes beyond a record is cut, never
/// followed.
TraceSet mendedTraces(const Recordings& recordings, std::size_t set);

/// Whether a set could have these mends: numbers are finite and within the record, traces and
/// stacked sets exist and go together. Places are not looked at.
Status checkMends(const Recordings& recordings, std::size_t set, const ShotMends& mends);

}  // namespace talvesk

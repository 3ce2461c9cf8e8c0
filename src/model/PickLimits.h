#pragma once

#include "base/Message.h"
#include "model/Trace.h"
#include "model/TravelTime.h"

#include <vector>

namespace talvesk {

/// No record of a refraction survey is as long as this, seconds; a later pick is a slip of units.
inline constexpr double kLatestPick = 3600.0;

/// Drops the measured times that can be no first breaks: those that are not finite, those above
/// kLatestPick and, where the trace is known, those beyond the end of its record. They become
/// kNoTime.
/// \param traceSets by TravelTime::traceSetID; may be empty, as for picks without traces
/// \return what was dropped, counted and named, and why; empty when all may stay
Message dropImpossiblePicks(std::vector<TravelTime>& records,
                            const std::vector<TraceSet>& traceSets);

}  // namespace talvesk

#pragma once

#include "figures/GatherFigureOptions.h"
#include "model/Trace.h"

namespace talvesk {

class GatherMapping;
struct TravelTime;

inline constexpr double kLongestGatherMs = 1e9;  ///< no time beyond is drawn

/// Whether the samples of a trace have times that can be drawn.
inline bool hasInterval(const Trace& trace) {
  return trace.sampleInterval > 0.0 && trace.sampleInterval <= 1e3;
}

/// The part of a shot that its picture shows unless somebody asks for another: from the shot to
/// half as long again as the last pick takes, or the whole record of a shot without picks. Of
/// reduced times from a little before the earliest pick as drawn, so far after the latest one.
/// \param record null without picks
TimeWindow gatherWindow(const TraceSet& set, const TravelTime* record,
                        const GatherMapping& mapping);

}  // namespace talvesk

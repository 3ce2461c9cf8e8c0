#pragma once

#include "doctor/TraceOnset.h"
#include "model/Trace.h"

#include <vector>

namespace talvesk::doctor {

/// The first arrivals of a shot, one per trace.
using ShotOnsets = std::vector<Onset>;

/// Time of sample 0 of a trace, seconds after the shot.
double timeOfFirstSample(const Trace& trace);

/// The first arrivals of the traces of one shot. Each trace offers where it may begin; of these one
/// is taken on every trace so that neighbours go with each other.
ShotOnsets findOnsets(const TraceSet& traces);

}  // namespace talvesk::doctor

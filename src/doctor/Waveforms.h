#pragma once

#include "doctor/TraceOnset.h"
#include "model/Trace.h"

#include <vector>

namespace talvesk::doctor {

/// What a trace records from a moment on: as many samples as last the given time, about their mean
/// before it, and none where it does not reach.
/// \param seconds after sample 0
std::vector<double> waveAt(const Trace& trace, double seconds, double duration);

/// The correlation of two series of one length, -1 to 1; 0 when either is constant or empty.
double correlationOf(const std::vector<double>& a, const std::vector<double>& b);

}  // namespace talvesk::doctor

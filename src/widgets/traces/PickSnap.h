#pragma once

#include "base/Span.h"
#include "widgets/traces/TraceViewOptions.h"

#include <vector>

namespace talvesk {

/// Draws a time to a feature of the trace near it.
/// \param interval seconds, above 0 \param mean level that the trace crosses
/// \param radius how far the time may move, seconds; at least kLeastSnapSamples samples are
/// searched \return seconds; `time` itself where nothing is near, for PickSnap::None, and beside
/// samples that are not finite
///
/// Onset: the minimum of the Akaike information criterion of the samples around the time, split in
/// two parts of constant variance (Maeda 1985, "A method for reading and checking phase times in
/// autoprocessing system of seismic wave data", Zisin 38).
double snapPick(Span<double> samples, double interval, double mean, double time, PickSnap snap,
                double radius);

inline constexpr int kLeastSnapSamples = 8;

}  // namespace talvesk

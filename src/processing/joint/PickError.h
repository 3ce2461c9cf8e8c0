#pragma once

#include "processing/joint/OnsetTrace.h"

#include <array>

namespace talvesk {

/// Six ways of picking the onset of a single trace within 8 ms of a pick, milliseconds from its
/// first sample: likelihood ratio, energy ratio, information (twice: of signal and samples),
/// threshold, averages. Times are stretched, see OnsetView, here and below.
/// \param samples of the trace as recorded \param pick seconds from the first sample
std::array<double, 6> singlePicks(const OnsetTrace& trace, Span<double> samples, double pick,
                                  double stretch);

/// How much noise there is in an arrival: the RMS from 30 to 5 ms before a pick against the largest
/// amplitude in the 15 ms after it; 1 where there is none.
double noiseShare(const OnsetTrace& trace, double pick, double stretch);

/// How far a first break may be off by what it does not share with its neighbours, seconds: one
/// standard deviation, at most 5 ms. Six ways of picking a single trace look for its onset within
/// 8 ms of the pick; what they disagree, how far their median is from the pick, how far the arrival
/// stands out of the noise n, see noiseShare(), and the sample interval dt make the error:
/// sigma^2 = 0.08^2 + (0.36 spread)^2 + (0.12 |median - pick|)^2 + (48 n^2)^2 + (0.3 dt)^2, ms.
double pickScatter(const OnsetTrace& trace, Span<double> samples, double pick, double stretch);

/// How far it may be off because nobody can say where it begins, which its neighbours share and do
/// not mend; seconds, one standard deviation. The motion takes r from the pick to a fifth of its
/// swing, longer than a sharp break does: sigma^2 = 0.15^2 + clamp(r - 1.3, 0, 2.4)^2, ms. A second
/// where nothing moves.
double beginningError(const OnsetTrace& trace, double pick, double stretch);

/// How far it may be off because it may be a later arrival, the first being lost in the noise n;
/// seconds, one standard deviation: 30 max(n - 0.1, 0) ms.
double arrivalError(const OnsetTrace& trace, double pick, double stretch);

}  // namespace talvesk

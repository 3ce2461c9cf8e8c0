#pragma once

#include "processing/joint/OnsetTrace.h"

#include <array>

namespace talvesk {

/// Six ways of picking the onset of a single trace within 8 ms of a pick, milliseconds from its
/// first sample: likelihood ratio, energy ratio, information (twice: of signal and samples),
/// threshold, averages. Times are stretched, see OnsetView, here and below.
/// \param samples of the trace as recorded \param pick seconds from the first sample
std::array<double, 6> singlePicks(const OnsetTrace& trace, const std::vector<double>& samples,
                                  double pick, double stretch);

/// How much noise there is in an arrival: the RMS from 30 to 5 ms before a pick against the largest
/// amplitude in the 15 ms after it; 1 where there is none.
double noiseShare(const OnsetTrace& trace, double pick, double stretch);

/// How far a first break may be off, seconds: one standard deviation. Six ways of picking a single
/// trace look for its onset within 8 ms of the pick; what they disagree, how far their median is
/// from the pick, how far the arrival stands out of the noise n, see noiseShare(), and the sample
/// interval dt make the error:
/// sigma^2 = 0.2^2 + (0.9 spread)^2 + (0.3 |median - pick|)^2 + (120 n^2)^2 + (0.3 dt)^2, ms.
double pickError(const OnsetTrace& trace, const std::vector<double>& samples, double pick,
                 double stretch);

}  // namespace talvesk

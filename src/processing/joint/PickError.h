#pragma once

#include "processing/joint/OnsetTrace.h"

#include <array>

namespace talvesk {

/// Six ways of picking the onset of a single trace within 8 ms of a pick, milliseconds from its
/// first sample: likelihood ratio, energy ratio, information (twice: of signal and samples),
/// threshold, averages.
std::array<double, 6> singlePicks(const OnsetTrace& trace, const std::vector<double>& samples,
                                  double pick);

/// How far a first break may be off, seconds: one standard deviation. Six ways of picking a single
/// trace look for its onset within 8 ms of the pick; what they disagree, how far their median is
/// from the pick, and how far the arrival stands out of the noise before it make the error:
/// sigma^2 = 0.5^2 + (0.7 spread)^2 + (0.5 |median - pick|)^2 + (28 * 10^(-SNR / 20))^2, ms.
/// SNR, in dB: the largest amplitude in the 15 ms after the pick against the RMS from 30 to 2 ms
/// before it.
/// \param samples of the trace as recorded \param pick seconds from the first sample
double pickError(const OnsetTrace& trace, const std::vector<double>& samples, double pick);

}  // namespace talvesk

#pragma once

#include "processing/joint/OnsetTrace.h"

#include <optional>
#include <vector>

namespace talvesk {

/// The frequency of the first arrivals of a gather, Hz: the median over its channels of that of the
/// 20 ms after a time, less what the 30 ms before it hold of noise. Nothing where no channel tells.
/// \param times seconds from the first sample, not a number without an arrival
std::optional<double> arrivalFrequency(const std::vector<OnsetTrace>& traces,
                                       const std::vector<double>& times, double stretch);

/// By how much the picker's times are stretched for arrivals of a frequency in Hz: 1 from 35 to
/// 60 Hz, more for slower and less for faster ones. 0.1 to 4.
double stretchFor(double frequency);

}  // namespace talvesk

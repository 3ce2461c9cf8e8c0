#pragma once

#include "base/Span.h"

#include <cstdint>
#include <vector>

namespace talvesk {

inline constexpr int kPickWindow = 20;  ///< half-window of the detector, samples

/// The sample where CF[i] = |x[i] - mean| * (after / before)^3 is largest, the first of equals.
/// "before" sums (x[j] - mean)^2 over j = i - window ... i, "after" over j = i ... i + window - 1,
/// for i = window ... n - window - 1. A silent "before" is no error: the infinite ratio wins.
/// A NaN as sample or mean is never picked, nor is a sample with one in its windows.
///
/// A relative of the modified energy ratio of Han, Wong and Bancroft, "Time picking and random
/// noise reduction on microseismic data", CREWES Research Report 21 (2009).
/// \return -1 when the trace is too short (n <= 2 * window) or no value is positive
std::int32_t characteristicPick(Span<double> samples, double mean, int window);

}  // namespace talvesk

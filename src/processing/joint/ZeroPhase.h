#pragma once

#include <vector>

namespace talvesk {

/// Butterworth high-pass and low-pass of order 2 each, run forward and backward so that nothing is
/// delayed, in double precision. The ends are met as if the first and the last sample went on.
/// A cut-off outside of what the sample interval can hold is left out.
/// \param interval seconds \param low, high cut-off frequencies in Hz, -3 dB per direction
void bandPassZeroPhase(std::vector<double>& samples, double interval, double low, double high);

}  // namespace talvesk

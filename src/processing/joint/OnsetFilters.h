#pragma once

#include <vector>

namespace talvesk {

/// Filters that leave the beginning of a first arrival where it is. A cut-off outside of what the
/// sample interval can hold is left out. The first sample, and the last one where it matters, are
/// met as if they went on for ever. Intervals are in seconds, cut-offs in Hz.

/// Butterworth high-pass of order 2, run forward only: of a strong wave nothing comes to stand
/// before its onset, as it would after a filter of no phase. -3 dB at `cutOff`.
void highPassForward(std::vector<double>& samples, double interval, double cutOff);

/// Butterworth low-pass of order 2, run forward and backward so that nothing is delayed. -6 dB at
/// `cutOff`.
void lowPassZeroPhase(std::vector<double>& samples, double interval, double cutOff);

}  // namespace talvesk

#pragma once

#include "base/Span.h"
#include "base/Status.h"
#include "model/Parameters.h"

#include <string>
#include <vector>

namespace talvesk {

/// Filters of single traces, by liquid-dsp in single precision. Every function fills `out` with one
/// value per input sample (none for an empty trace); `out` may be the input itself. On failure
/// `out` is left as it was: samples that single precision cannot hold (NaN and infinity are such)
/// are refused, and a result that is not finite is never handed out.

/// Beyond this order rounding in single precision outgrows the filtered signal, many times over.
inline constexpr int kMaxFilterOrder = parameters::kFilterOrder.limits.most;

/// Automatic gain control: the gain starts from the energy of the whole trace and then follows the
/// signal with the library's own loop bandwidth, squelch enabled.
Status agcTrace(Span<double> in, std::vector<double>& out);

/// Causal Butterworth filters, one forward pass from rest: the output has the filter's phase delay.
/// Each tells the console its coefficients, section by section.
/// \param order 1 to kMaxFilterOrder
/// \param fc cut-off (-3 dB) as a fraction of the sample rate, above 0 and below 0.5
/// Fails also when the coefficients, rounded to single precision, make no such filter any more: an
/// unstable section, or a pass band that is not at 0 dB within 6 dB. High orders with a cut-off
/// close to an end of the range are like this.
Status highPass(Span<double> in, int order, double fc, std::vector<double>& out);
Status lowPass(Span<double> in, int order, double fc, std::vector<double>& out);

}  // namespace talvesk

#pragma once

#include "base/Span.h"

#include <cstddef>
#include <vector>

namespace talvesk {

/// How a gather is looked at. All that is stated in milliseconds is for first arrivals of 35 to
/// 60 Hz; those of other gathers are looked at in times stretched to fit theirs.
struct OnsetView {
  double stretch = 1.0;    ///< of all times; cut-offs are divided by it
  double highCut = 120.0;  ///< Hz, before the division
};

/// A trace made ready for the joint picker: filtered, and with the likelihood that the first
/// arrival begins at a sample. Times are in seconds from its first sample.
struct OnsetTrace {
  double interval = 0.0;           ///< seconds
  std::vector<double> signal;      ///< without its median, above 8 Hz and below a cut-off
  std::vector<float> likelihood;   ///< 0 where nothing begins; no unit
  std::vector<float> likeliest;    ///< the likelihood ratio alone
  std::vector<float> energyRatio;  ///< the energy ratio alone
  float largest = 0.0F;            ///< of the likelihood between `from` and `to`
  std::size_t from = 0;            ///< first sample at which an onset is looked for
  std::size_t to = 0;              ///< sample behind the last one

  bool dead() const { return largest <= 0.0F; }
};

/// The likelihood compares the energy E = y^2 + (y' / (2 pi 20 Hz))^2 of the signal y before and
/// after a sample: a likelihood ratio of two variances over 40 and 15 ms, and 5 ln(A / B) over
/// 15 and 8 ms, four parts to six. A noise floor, the 3rd percentile of the means over 10 ms, keeps
/// silence from counting. All lengths are times, so that the sample interval does not matter. The
/// high-pass of 8 Hz runs forward and the low-pass both ways, see OnsetFilters.h.
///
/// After Hinkley, "Inference about the change-point in a sequence of random variables", Biometrika
/// 57 (1970), and Coppens, "First arrival picking on common-offset trace collections", Geophysical
/// Prospecting 33 (1985).
/// \param interval seconds, above 0 \param from, to bounds of the onset in seconds
OnsetTrace prepareOnset(Span<double> samples, double interval, double from, double to,
                        const OnsetView& view);

}  // namespace talvesk

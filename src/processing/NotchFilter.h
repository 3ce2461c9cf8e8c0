#pragma once

#include "base/Span.h"
#include "base/Status.h"
#include "model/FilterParameters.h"
#include "processing/ShotFilters.h"

#include <cstdint>
#include <vector>

namespace talvesk {

class TomoDocument;

/// Takes out the hum of power lines: a frequency and multiples of it.
struct NotchFilter {
  double hertz = parameters::kNotch.initial;  ///< of the power line
  int harmonics =
      parameters::kNotchHarmonics.initial;  ///< multiples, the frequency itself among them
  double quality = parameters::kNotchQuality.initial;  ///< `hertz` over the width of every notch
};

/// Notches of zero phase: arrivals stay where they are. Each is a recursive notch of second order
/// (S. J. Orfanidis, "Introduction to Signal Processing", 1996, chapter 11.3) that runs forth and
/// back over the trace; both runs together leave 3 dB at the sides of a notch, which is `hertz /
/// quality` wide at every multiple. A recursive filter rings where the hum sets in at the ends of a
/// trace, so the trace is taken as going on there with the hum that fits it best: least absolute
/// deviations, by reweighted least squares (P. W. Holland and R. E. Welsch, "Robust regression
/// using iteratively reweighted least-squares", Communications in Statistics 6, 1977), for which
/// strong arrivals count no more than the quiet before them.
///
/// Multiples from half the sample rate on are not in the record and left out.
/// \param interval seconds \param out one value per sample; left as it was on failure: for a trace
/// shorter than a period, without an interval, with samples that are not finite, or too slowly
/// sampled for the first frequency
Status notchTrace(Span<double> in, double interval, const NotchFilter& filter,
                  std::vector<double>& out);

/// Every trace of the shots into its filtered copy, which filtersOf() tells of afterwards.
/// \param ofFiltered works on the filtered copies, where a trace has one
FilterOutcome notchShots(TomoDocument& document, const std::vector<std::int32_t>& shots,
                         const NotchFilter& filter, bool ofFiltered);

}  // namespace talvesk

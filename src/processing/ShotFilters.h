#pragma once

#include "base/Span.h"
#include "base/Status.h"
#include "model/FilterSteps.h"
#include "model/Parameters.h"
#include "model/Trace.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace talvesk {

class TomoDocument;

/// What became of the traces that a filter was to be applied to. The raw samples never change; a
/// trace that cannot be filtered keeps the filtered copy that it had.
struct FilterOutcome {
  std::size_t filtered = 0;  ///< traces with a new filtered copy
  std::size_t failed = 0;    ///< traces left as they were
  Status status;             ///< the first failure: shot and trace, counted from 1, and the reason
};

/// One corner of a filter, as the user gives it.
struct FilterCorner {
  double hertz = 0.0;  ///< cut-off, above 0 and below the highest spectral frequency
  int order = parameters::kFilterOrder.initial;  ///< from 1
};

/// Low-pass, high-pass, or both: a band-pass by cascade, low-pass first. Neither filters nothing.
struct BandFilter {
  std::optional<FilterCorner> low;   ///< low-pass: keeps what is below
  std::optional<FilterCorner> high;  ///< high-pass: keeps what is above
};

/// Checks the orders, then the cut-offs: failure names the frequency and the limit, both in Hz.
/// \param highestFrequency F of the spectrum, Hz: a cut-off f is f / (2 F) of the sample rate,
/// so F, which lies just below half the sample rate, is the limit
Status checkBandFilter(const BandFilter& filter, double highestFrequency);

/// Applies a filter to samples; `out` is left as it was on failure. checkBandFilter comes first.
Status bandFilterTrace(Span<double> in, const BandFilter& filter, double highestFrequency,
                       std::vector<double>& out);

/// Gives a trace the filtered copy that `filter` makes, where it succeeds.
Status refilter(Trace& trace, const std::function<Status(std::vector<double>&)>& filter);

/// The raw samples of all traces of one shot into their filtered copies. A filter that
/// checkBandFilter refuses changes nothing and counts every trace as failed.
FilterOutcome bandFilterTraces(TraceSet& traces, const BandFilter& filter, double highestFrequency);

/// The same for several shots, each with the highest frequency of its own spectrum (computeSpectrum
/// of the raw samples). Without a filter nothing is done.
FilterOutcome bandFilterShots(TomoDocument& document, const std::vector<std::int32_t>& shots,
                              const BandFilter& filter);

/// What a project remembers of such a filter.
FilterStep stepOf(const BandFilter& filter);

/// Automatic gain control of every trace of the shots, in order.
FilterOutcome agcShots(TomoDocument& document, const std::vector<std::int32_t>& shots);

/// Runs an operation over every trace of the shots, in order, and counts what became of it.
/// \param operation fills the filtered samples of the trace, or leaves them alone and says why not
FilterOutcome filterEachTrace(TomoDocument& document, const std::vector<std::int32_t>& shots,
                              const std::function<Status(Trace&)>& operation);

}  // namespace talvesk

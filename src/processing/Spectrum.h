#pragma once

#include "model/Trace.h"

#include <cstddef>
#include <limits>
#include <vector>

namespace talvesk {

/// The amplitude spectrum of some traces, bin by bin, ascending frequency.
struct Spectrum {
  std::vector<double> frequencies;  ///< Hz
  std::vector<double> amplitudes;   ///< of the stack, in sample units
};

inline constexpr double kPlottedBelow = 350.0;  ///< Hz; where the plotted curve ends

/// The traces' stacked amplitude spectrum: their transforms are added as complex numbers, so that
/// what the traces have in common stands out, then divided by the length N of the first trace that
/// has samples. Bins k < N / 2, halved to a whole number: a single sample has no bin.
/// Traces of another length are cut or filled with zeros to N; a trace with a sample that single
/// precision cannot hold (NaN and infinity are such) is left out, as the filters refuse it.
/// The sample rate is that of the last trace. Tells the console "fft".
/// \param useRaw the raw samples, otherwise the filtered ones
/// \return no bin at all without samples or without a positive, finite sample rate
Spectrum computeSpectrum(const TraceSet& traces, bool useRaw);

/// The part of a spectrum that is drawn: below kPlottedBelow.
Spectrum plottedCurve(const Spectrum& spectrum);

/// Frequency of the last bin of a trace's spectrum, Hz: just below half the sample rate, and 0.0
/// where there is no bin but the mean, or none.
/// \param sampleInterval seconds
double highestBinFrequency(std::size_t samples, double sampleInterval);

/// The largest bin frequency of all spectra that it was shown, Hz; it only grows. Filter corners
/// are given relative to it.
class HighestFrequency {
 public:
  void see(const Spectrum& spectrum);
  double value() const { return mValue; }  ///< the lowest finite double before any bin was seen

 private:
  double mValue = std::numeric_limits<double>::lowest();
};

}  // namespace talvesk

#pragma once

#include "model/Trace.h"
#include "processing/TraceLine.h"

#include <complex>
#include <cstddef>
#include <functional>
#include <vector>

namespace talvesk {

/// Amplitudes over wavenumber and frequency. What rises to one side is a wave that travels there.
struct FkSpectrum {
  std::vector<double> wavenumbers;  ///< 1/m, ascending; positive: along the line
  std::vector<double> frequencies;  ///< Hz, ascending from 0
  std::vector<float> amplitudes;    ///< parts of the largest; frequency by frequency

  bool empty() const { return amplitudes.empty(); }
};

/// The traces of a line over frequency and wavenumber, there and back. Each trace is divided by
/// its root mean square before and multiplied by it afterwards: a loud one beside the shot would
/// else fill the plane. Means are taken out. Zeros after the traces and beside them keep what comes
/// out at one end from coming in at the other.
///
/// P. Embree, J. P. Burg and M. M. Backus, "Wide-band velocity filtering, the pie-slice process",
/// Geophysics 28 (1963).
class FkTransform {
 public:
  FkTransform(const TraceSet& traces, const TraceLine& line, bool ofFiltered);

  /// Multiplies everything by a weight. \param weight of a frequency (Hz, 0 and above) and a
  /// wavenumber (1/m, positive along the line)
  void weigh(const std::function<double(double frequency, double wavenumber)>& weight);
  std::vector<double> trace(std::size_t place) const;  ///< back in time
  FkSpectrum spectrum(double highest) const;           ///< \param highest Hz

 private:
  using Bins = std::vector<std::complex<double>>;

  double frequency(std::size_t bin) const;
  double wavenumber(std::size_t bin) const;
  Bins across(std::size_t bin) const;  ///< over wavenumbers, of one frequency

  TraceLine mLine;
  std::size_t mTimes = 0;       ///< samples with the zeros behind them
  std::size_t mPlaces = 0;      ///< traces with the zeros beside them
  std::vector<Bins> mTraces;    ///< by place, over frequencies
  std::vector<double> mScales;  ///< by place
};

}  // namespace talvesk

#include "processing/FkTransform.h"

#include <algorithm>
#include <cmath>
#include <utility>

#define EIGEN_MPL2_ONLY
#include <unsupported/Eigen/FFT>

namespace talvesk {
namespace {

std::size_t powerOfTwoFrom(std::size_t least) {
  std::size_t power = 1;
  while (power < least) power *= 2;
  return power;
}

Eigen::FFT<double> halfSpectra() {
  Eigen::FFT<double> fft;
  fft.SetFlag(Eigen::FFT<double>::HalfSpectrum);
  return fft;
}

/// The samples less their mean. \param scale out, their root mean square; 0 for a silent trace
std::vector<double> balanced(Span<double> samples, double& scale) {
  double mean = 0.0;
  for (const double v : samples) mean += v / static_cast<double>(samples.size());
  double square = 0.0;
  std::vector<double> values(samples.begin(), samples.end());
  for (double& v : values) {
    v -= mean;
    square += v * v / static_cast<double>(samples.size());
  }
  scale = std::isfinite(square) ? std::sqrt(square) : 0.0;
  for (double& v : values) v = scale > 0.0 ? v / scale : 0.0;
  return values;
}

}  // namespace

FkTransform::FkTransform(const TraceSet& traces, const TraceLine& line, bool ofFiltered)
    : mLine(line),
      mTimes(powerOfTwoFrom(line.samples + line.samples / 2)),
      mPlaces(powerOfTwoFrom(2 * line.traces.size())),
      mTraces(line.traces.size(), Bins(mTimes / 2 + 1)),
      mScales(line.traces.size(), 0.0) {
  Eigen::FFT<double> fft = halfSpectra();
  for (std::size_t place = 0; place < line.traces.size(); ++place) {
    if (line.traces[place] == TraceLine::kNone) continue;
    const Trace& trace = traces[line.traces[place]];
    const bool filtered = ofFiltered && !trace.filtered.empty();
    std::vector<double> values =
        balanced(filtered ? trace.filtered : trace.samples, mScales[place]);
    values.resize(mTimes, 0.0);
    fft.fwd(mTraces[place], values);
  }
}

double FkTransform::frequency(std::size_t bin) const {
  return static_cast<double>(bin) / (static_cast<double>(mTimes) * mLine.interval);
}

/// The transform over places has the sign of that over times: what travels along the line stands
/// at its negative side.
double FkTransform::wavenumber(std::size_t bin) const {
  const auto count = static_cast<double>(mPlaces);
  const double signedBin = static_cast<double>(bin) - (2 * bin > mPlaces ? count : 0.0);
  return -signedBin / (count * mLine.spacing);
}

FkTransform::Bins FkTransform::across(std::size_t bin) const {
  Bins row(mPlaces);
  for (std::size_t place = 0; place < mTraces.size(); ++place) row[place] = mTraces[place][bin];
  Bins bins;
  Eigen::FFT<double> fft;
  fft.fwd(bins, row);
  return bins;
}

void FkTransform::weigh(const std::function<double(double, double)>& weight) {
  Eigen::FFT<double> fft;
  Bins row;
  for (std::size_t bin = 0; bin <= mTimes / 2; ++bin) {
    Bins bins = across(bin);
    for (std::size_t k = 0; k < mPlaces; ++k) bins[k] *= weight(frequency(bin), wavenumber(k));
    fft.inv(row, bins);
    for (std::size_t place = 0; place < mTraces.size(); ++place) mTraces[place][bin] = row[place];
  }
}

std::vector<double> FkTransform::trace(std::size_t place) const {
  Eigen::FFT<double> fft = halfSpectra();
  std::vector<double> values(mTimes);
  fft.inv(values, mTraces[place], static_cast<Eigen::Index>(mTimes));
  values.resize(mLine.samples);
  for (double& value : values) value *= mScales[place];
  return values;
}

FkSpectrum FkTransform::spectrum(double highest) const {
  FkSpectrum spectrum;
  // Ascending wavenumbers are descending bins, from the middle one on.
  const auto columnOf = [this](std::size_t bin) { return (3 * mPlaces / 2 - bin) % mPlaces; };
  spectrum.wavenumbers.resize(mPlaces);
  for (std::size_t k = 0; k < mPlaces; ++k) spectrum.wavenumbers[columnOf(k)] = wavenumber(k);
  float largest = 0.0F;
  for (std::size_t bin = 0; bin <= mTimes / 2 && frequency(bin) <= highest; ++bin) {
    spectrum.frequencies.push_back(frequency(bin));
    const Bins bins = across(bin);
    const std::size_t first = spectrum.amplitudes.size();
    spectrum.amplitudes.resize(first + mPlaces);
    for (std::size_t k = 0; k < mPlaces; ++k) {
      const auto amplitude = static_cast<float>(std::abs(bins[k]));
      spectrum.amplitudes[first + columnOf(k)] = amplitude;
      largest = std::max(largest, amplitude);
    }
  }
  if (largest > 0.0F) {
    for (float& amplitude : spectrum.amplitudes) amplitude /= largest;
  }
  return spectrum;
}

}  // namespace talvesk

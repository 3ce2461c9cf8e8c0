#include "processing/Spectrum.h"

#include "base/Console.h"
#include "processing/Dft.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <ostream>

namespace talvesk {
namespace {

bool fitsSinglePrecision(Span<double> samples) {
  return std::all_of(samples.begin(), samples.end(), [](double sample) {
    return std::fabs(sample) <= static_cast<double>(std::numeric_limits<float>::max());
  });
}

/// The samples of the traces that have any, in order.
std::vector<Span<double>> signalsOf(const TraceSet& traces, bool useRaw) {
  std::vector<Span<double>> signals;
  for (const Trace& trace : traces) {
    const Span<double> samples = useRaw ? trace.samples : trace.filtered;
    if (!samples.empty()) signals.push_back(samples);
  }
  return signals;
}

/// Sample by sample sum, as long as the first. The transform is linear, so the transform of the sum
/// is the sum of the transforms, for the price of one.
std::vector<double> stackOf(const std::vector<Span<double>>& signals) {
  std::vector<double> stack;
  if (signals.empty()) return stack;
  stack.assign(signals.front().size(), 0.0);
  for (const Span<double>& signal : signals) {
    if (!fitsSinglePrecision(signal)) continue;
    const std::size_t n = std::min(stack.size(), signal.size());
    for (std::size_t j = 0; j < n; ++j) stack[j] += signal[j];
  }
  return stack;
}

bool isRate(double rate) {
  return rate > 0.0 && std::isfinite(rate);
}

double binFrequency(std::size_t k, double rate, std::size_t n) {
  return static_cast<double>(k) * rate / static_cast<double>(n);
}

}  // namespace

Spectrum computeSpectrum(const TraceSet& traces, bool useRaw) {
  console::out() << "fft\n";
  if (traces.empty()) return {};
  const double rate = 1.0 / traces.back().sampleInterval;
  if (!isRate(rate)) return {};
  const std::vector<double> stack = stackOf(signalsOf(traces, useRaw));
  const std::size_t n = stack.size();
  const std::vector<std::complex<double>> bins = dft(stack);

  Spectrum spectrum;
  for (std::size_t k = 0; k < n / 2; ++k) {
    spectrum.frequencies.push_back(binFrequency(k, rate, n));
    spectrum.amplitudes.push_back(std::abs(bins[k] / static_cast<double>(n)));
  }
  return spectrum;
}

Spectrum plottedCurve(const Spectrum& spectrum) {
  Spectrum curve;
  for (std::size_t k = 0; k < spectrum.frequencies.size(); ++k) {
    if (!(spectrum.frequencies[k] < kPlottedBelow)) continue;
    curve.frequencies.push_back(spectrum.frequencies[k]);
    curve.amplitudes.push_back(spectrum.amplitudes[k]);
  }
  return curve;
}

double highestBinFrequency(std::size_t samples, double sampleInterval) {
  const double rate = 1.0 / sampleInterval;
  if (samples < 2 || !isRate(rate)) return 0.0;
  return binFrequency(samples / 2 - 1, rate, samples);
}

void HighestFrequency::see(const Spectrum& spectrum) {
  for (const double frequency : spectrum.frequencies) mValue = std::max(mValue, frequency);
}

}  // namespace talvesk

#include "processing/Dft.h"

#include <cmath>
#include <cstddef>

#define EIGEN_MPL2_ONLY
#include <unsupported/Eigen/FFT>

namespace talvesk {
namespace {

using Complex = std::complex<double>;

/// The mixed-radix transform takes n times the largest prime factor of n.
constexpr std::size_t kLargestRadix = 64;

bool hasSmallFactorsOnly(std::size_t n) {
  for (std::size_t factor = 2; factor <= kLargestRadix; ++factor) {
    while (n % factor == 0) n /= factor;
  }
  return n == 1;
}

/// exp(-i pi j^2 / n). The square is reduced first: the angle of a large one would be rounded away.
Complex chirp(std::size_t j, std::size_t n) {
  const std::size_t reduced = static_cast<std::size_t>(std::uint64_t{j} * j % (2 * n));
  const double angle = M_PI * static_cast<double>(reduced) / static_cast<double>(n);
  return {std::cos(angle), -std::sin(angle)};
}

/// The transform as a convolution with a chirp, done with transforms of a power of two: L. I.
/// Bluestein, "A linear filtering approach to the computation of discrete Fourier transform", IEEE
/// Transactions on Audio and Electroacoustics 18 (1970).
std::vector<Complex> chirpTransform(const std::vector<double>& samples) {
  const std::size_t n = samples.size();
  std::size_t m = 1;
  while (m < 2 * n - 1) m *= 2;
  std::vector<Complex> signal(m);
  std::vector<Complex> filter(m);
  for (std::size_t j = 0; j < n; ++j) {
    const Complex c = chirp(j, n);
    signal[j] = samples[j] * c;
    filter[j] = std::conj(c);
    filter[(m - j) % m] = filter[j];
  }
  Eigen::FFT<double> fft;
  std::vector<Complex> product;
  std::vector<Complex> filterBins;
  fft.fwd(product, signal);
  fft.fwd(filterBins, filter);
  for (std::size_t k = 0; k < m; ++k) product[k] *= filterBins[k];
  fft.inv(signal, product);
  signal.resize(n);
  for (std::size_t k = 0; k < n; ++k) signal[k] *= chirp(k, n);
  return signal;
}

}  // namespace

std::vector<Complex> dft(const std::vector<double>& samples) {
  if (samples.size() < 2) return {samples.begin(), samples.end()};
  if (!hasSmallFactorsOnly(samples.size())) return chirpTransform(samples);
  std::vector<Complex> bins;
  Eigen::FFT<double> fft;
  fft.fwd(bins, samples);
  return bins;
}

}  // namespace talvesk

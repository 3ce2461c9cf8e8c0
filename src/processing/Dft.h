#pragma once

#include <complex>
#include <vector>

namespace talvesk {

/// The discrete Fourier transform X[k] = sum x[j] exp(-2 pi i j k / n), not normalised, of any
/// length: the time grows as n log n also where n is a prime. Error about 1e-15 of the largest bin,
/// more by log n. Empty for an empty input.
std::vector<std::complex<double>> dft(const std::vector<double>& samples);

}  // namespace talvesk

#pragma once

#include <cstdint>

namespace talvesk {

/// Normally distributed numbers, near enough: the sum of twelve uniform ones. Written out, as the
/// standard library leaves the values of its own distributions to each implementation.
class DemoNoise {
 public:
  explicit DemoNoise(std::uint64_t seed) : mState(seed) {}

  /// Mean 0, standard deviation 1, magnitude below 6.
  double next() {
    double sum = -6.0;
    for (int i = 0; i < 12; ++i) sum += uniform();
    return sum;
  }

 private:
  /// SplitMix64 (Steele, Lea and Flood 2014, Fast splittable pseudorandom number generators).
  double uniform() {
    mState += 0x9e3779b97f4a7c15U;
    std::uint64_t z = mState;
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9U;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebU;
    z ^= z >> 31;
    return static_cast<double>(z >> 11) * 0x1p-53;
  }

  std::uint64_t mState;
};

}  // namespace talvesk

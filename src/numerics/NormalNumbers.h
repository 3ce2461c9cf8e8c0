#pragma once

#include <cstdint>

namespace talvesk {

/// Normal numbers that are the same on every machine, for libraries differ in how they make
/// theirs: sums of 48 even numbers of 16 bits, in whole numbers until the last step. Their tails
/// are those of a normal distribution to a few per cent as far as four deviations.
class NormalNumbers {
 public:
  /// \param stream numbers of different streams of one seed have nothing to do with each other
  NormalNumbers(std::uint64_t seed, std::uint64_t stream);

  double next();  ///< of mean 0 and deviation 1

 private:
  std::uint64_t bits();

  std::uint64_t mState;
};

}  // namespace talvesk

#include "numerics/NormalNumbers.h"

namespace talvesk {
namespace {

constexpr std::uint64_t kGolden = 0x9e3779b97f4a7c15ULL;

/// SplitMix64 (Steele, Lea and Flood 2014, Fast splittable pseudorandom number generators).
std::uint64_t mixed(std::uint64_t z) {
  z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ULL;
  z = (z ^ (z >> 27)) * 0x94d049bb133111ebULL;
  return z ^ (z >> 31);
}

}  // namespace

NormalNumbers::NormalNumbers(std::uint64_t seed, std::uint64_t stream)
    : mState(mixed(mixed(seed + kGolden) + (stream + 1) * kGolden)) {}

std::uint64_t NormalNumbers::bits() {
  mState += kGolden;
  return mixed(mState);
}

double NormalNumbers::next() {
  constexpr int kWords = 12;
  constexpr int kParts = 4;
  std::int64_t sum = 0;
  for (int word = 0; word < kWords; ++word) {
    const std::uint64_t value = bits();
    for (int part = 0; part < kParts; ++part) {
      sum += static_cast<std::int64_t>(value >> 16 * part & 0xffff);
    }
  }
  // 48 even numbers below 65536 have a mean of 48 * 65535 / 2 and a deviation of 2 * 65536.
  constexpr std::int64_t kMean = kWords * kParts * 65535 / 2;
  return static_cast<double>(sum - kMean) / (2.0 * 65536.0);
}

}  // namespace talvesk

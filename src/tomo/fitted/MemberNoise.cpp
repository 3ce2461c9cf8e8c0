#include "tomo/fitted/MemberNoise.h"

#include "base/Fingerprint.h"

#include <algorithm>

namespace talvesk {
namespace {

constexpr double kLeastShare = 0.1;  // of a time, below which no error takes it

}  // namespace

FitData perturbedPicks(FitData data, std::uint64_t seed, std::uint64_t member) {
  NormalNumbers normal(seed, member);
  for (FitPick& pick : data.picks) {
    pick.time = std::max(pick.time + pick.sigma * normal.next(), kLeastShare * pick.time);
  }
  return data;
}

std::uint64_t memberDraw(std::uint64_t seed, std::uint64_t member, std::uint64_t draw) {
  Fingerprint numbers;
  for (const std::uint64_t number : {seed, member, draw}) numbers.take(number);
  // The finisher of SplitMix64: a fingerprint of small numbers is not even in its lowest bits.
  std::uint64_t bits = numbers.value();
  bits = (bits ^ (bits >> 30)) * 0xbf58476d1ce4e5b9ULL;
  bits = (bits ^ (bits >> 27)) * 0x94d049bb133111ebULL;
  return bits ^ (bits >> 31);
}

}  // namespace talvesk

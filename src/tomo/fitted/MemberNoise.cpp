#include "tomo/fitted/MemberNoise.h"

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

}  // namespace talvesk

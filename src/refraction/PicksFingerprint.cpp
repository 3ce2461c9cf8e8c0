#include "refraction/PicksFingerprint.h"

#include "model/TravelTime.h"

#include <cstddef>
#include <cstring>

namespace talvesk {

using refractionDataStructure::processingData;

namespace {

/// FNV-1a, 64 bits. (Fowler, Noll and Vo)
class Hash {
 public:
  void take(std::uint64_t value) {
    for (int byte = 0; byte < 8; ++byte) {
      mValue = (mValue ^ (value >> 8 * byte & 0xff)) * 0x100000001b3;
    }
  }
  std::uint64_t value() const { return mValue; }

 private:
  std::uint64_t mValue = 0xcbf29ce484222325;
};

std::uint64_t bitsOf(double value) {
  std::uint64_t bits = 0;
  static_assert(sizeof bits == sizeof value);
  std::memcpy(&bits, &value, sizeof bits);
  return bits;
}

}  // namespace

std::uint64_t fingerprintOf(const std::vector<ShotArrivals>& shots) {
  Hash hash;
  for (std::size_t shot = 0; shot < shots.size(); ++shot) {
    const std::vector<double>& times = shots[shot].times;
    for (std::size_t trace = 0; trace < times.size(); ++trace) {
      if (!hasPick(times[trace])) continue;
      hash.take(shot);
      hash.take(trace);
      hash.take(bitsOf(times[trace]));
    }
  }
  return hash.value() == 0 ? 1 : hash.value();
}

bool picksChangedSince(const std::vector<ShotArrivals>& shots, const processingData& results) {
  return !results.cData.empty() && results.picks != 0 && results.picks != fingerprintOf(shots);
}

bool picksChangedSince(const TomoDocument& document, const processingData& results) {
  return picksChangedSince(shotArrivals(document), results);
}

}  // namespace talvesk

#include "refraction/PicksFingerprint.h"

#include "model/PickFingerprint.h"

#include <cstddef>

namespace talvesk {

using refractionDataStructure::processingData;

std::uint64_t fingerprintOf(const std::vector<ShotArrivals>& shots) {
  Fingerprint picks;
  for (std::size_t shot = 0; shot < shots.size(); ++shot) takePicks(shot, shots[shot].times, picks);
  return picks.value();
}

bool picksChangedSince(const std::vector<ShotArrivals>& shots, const processingData& results) {
  return !results.cData.empty() && results.picks != 0 && results.picks != fingerprintOf(shots);
}

bool picksChangedSince(const TomoDocument& document, const processingData& results) {
  return picksChangedSince(shotArrivals(document), results);
}

}  // namespace talvesk

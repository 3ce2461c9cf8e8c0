#pragma once

#include "base/Fingerprint.h"
#include "model/TravelTime.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace talvesk {

/// Takes the picks of a shot. What is no pick counts the same, whatever marks it.
inline void takePicks(std::size_t shot, const std::vector<double>& times, Fingerprint& picks) {
  for (std::size_t trace = 0; trace < times.size(); ++trace) {
    if (!hasPick(times[trace])) continue;
    picks.take(std::uint64_t{shot});
    picks.take(std::uint64_t{trace});
    picks.take(times[trace]);
  }
}

/// A number by which a result remembers the picks that it was made from: any pick set, moved or
/// removed makes it another. Never 0.
inline std::uint64_t fingerprintOfPicks(const std::vector<TravelTime>& records) {
  Fingerprint picks;
  for (std::size_t shot = 0; shot < records.size(); ++shot) {
    takePicks(shot, records[shot].ttMisurati, picks);
  }
  return picks.value();
}

}  // namespace talvesk

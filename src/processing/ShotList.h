#pragma once

#include "model/Recordings.h"
#include "model/TomoDocument.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace talvesk {

/// The shots that a command works on: every one in ascending order, or the current one alone. Empty
/// when no shot is current (-1) or the document has no such shot.
inline std::vector<std::int32_t> shotList(const TomoDocument& document, bool allShots,
                                          std::int32_t currentShot) {
  const auto count = static_cast<std::int32_t>(document.recordings->traceSets.size());
  std::vector<std::int32_t> shots;
  if (allShots) {
    for (std::int32_t shot = 0; shot < count; ++shot) shots.push_back(shot);
  } else if (currentShot >= 0 && currentShot < count) {
    shots.push_back(currentShot);
  }
  return shots;
}

}  // namespace talvesk

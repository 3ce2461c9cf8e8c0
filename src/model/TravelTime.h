#pragma once

#include "base/Point2D.h"
#include "base/Shared.h"

#include <cstddef>
#include <cstdint>
#include <vector>

// docs/vocabulary.md explains the names.

namespace talvesk {

/// A measured time that was removed or rejected, and a computed time that does not exist, seconds.
inline constexpr double kNoTime = -99.0;
/// A measured time that nobody has picked yet, seconds.
inline constexpr double kUnpicked = 0.0;

/// The first-break times of one shot. Index j of the times is trace j of the trace set and geophone
/// j of the string.
struct TravelTime {
  Point2D shotPos2d;                 ///< position of the source
  std::int32_t indexStesa = 0;       ///< geophone string that recorded the shot, from 0
  SharedVector<double> ttMisurati;   ///< measured first breaks, seconds; see hasPick()
  SharedVector<double> ttCalcolati;  ///< computed times, seconds; kNoTime where there is none
  std::int32_t traceSetID = 0;       ///< trace set that the times belong to, from 0
  /// Not 0 for picks that an autopicker set and nobody has confirmed or changed since. Shorter
  /// where the rest has none.
  SharedVector<std::uint8_t> unconfirmed;

  bool waits(std::size_t trace) const {
    return trace < unconfirmed.size() && unconfirmed[trace] != 0;
  }
  void setWaiting(std::size_t trace, bool waiting) {
    if (waits(trace) == waiting) return;
    std::vector<std::uint8_t>& all = unconfirmed.edit();
    if (all.size() <= trace) all.resize(trace + 1, 0);
    all[trace] = waiting ? 1 : 0;
  }
};

/// Whether a measured time is a pick: neither never picked (0) nor removed (negative).
inline bool hasPick(double measured) {
  return measured > 0.0;
}

}  // namespace talvesk

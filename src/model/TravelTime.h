#pragma once

#include "base/Point2D.h"

#include <cstdint>
#include <vector>

// docs/vocabulary.md explains the names.

namespace talvesk {

/// A measured time that was removed or rejected, and a computed time that does not exist, seconds.
inline constexpr double kNoTime = -99.0;
/// A measured time that nobody has picked yet, seconds.
inline constexpr double kUnpicked = 0.0;

/// The first-break times of one shot. Index j of the times is trace j of the trace set and geophone
/// j of the string. Serialised in the order of the fields.
struct TravelTime {
  Point2D shotPos2d;                ///< position of the source
  std::int32_t indexStesa = 0;      ///< geophone string that recorded the shot, from 0
  std::vector<double> ttMisurati;   ///< measured first breaks, seconds; see hasPick()
  std::vector<double> ttCalcolati;  ///< computed times, seconds; kNoTime where there is none
  std::int32_t traceSetID = 0;      ///< trace set that the times belong to, from 0
};

/// Whether a measured time is a pick: neither never picked (0) nor removed (negative).
inline bool hasPick(double measured) {
  return measured > 0.0;
}

}  // namespace talvesk

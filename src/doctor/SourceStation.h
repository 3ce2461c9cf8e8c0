#pragma once

#include "doctor/TraceOnset.h"

#include <vector>

namespace talvesk::doctor {

/// Beside which channel a shot was, by its first arrivals alone. A station is a channel from 0,
/// with fractions between two.
struct SourceStation {
  enum class Side {
    kUnknown,  ///< the arrivals do not say
    kInside,   ///< beside `station`
    kBefore,   ///< at the first channels, or beyond the first
    kBehind    ///< at the last channels, or beyond the last
  };

  Side side = Side::kUnknown;
  double first = 0.0;    ///< the first channel with a clear arrival
  double last = 0.0;     ///< the last one
  double station = 0.0;  ///< inside only
  double error = 0.0;    ///< stations, inside only
  double time = 0.0;     ///< seconds, at the station
  double pace = 0.0;     ///< seconds per station near the shot
};

/// Times grow on both sides of a shot, near it alike: a V is laid through the arrivals around the
/// earliest ones, and where it fits best its tip is the shot.
SourceStation findSourceStation(const std::vector<Onset>& onsets);

}  // namespace talvesk::doctor

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

/// How far a pick may be off. It goes with one measured time: where the trace has another, or none,
/// it tells nothing.
struct PickError {
  double time = 0.0;   ///< the measured time that it is about, seconds
  double sigma = 0.0;  ///< one standard deviation, seconds; 0: not known

  friend bool operator==(const PickError& a, const PickError& b) {
    return a.time == b.time && a.sigma == b.sigma;
  }
};

/// The largest error that a pick can have, seconds.
inline constexpr double kLargestPickError = 10.0;

/// Whether a number can be the error of a pick: it is above 0 and at most kLargestPickError.
inline bool isPickError(double sigma) {
  return sigma > 0.0 && sigma <= kLargestPickError;
}

/// Whether a measured time is a pick: neither never picked (0) nor removed (negative).
inline bool hasPick(double measured) {
  return measured > 0.0;
}

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
  SharedVector<PickError> pickErrors;  ///< shorter where the rest has none; see errorOf()

  bool waits(std::size_t trace) const {
    return trace < unconfirmed.size() && unconfirmed[trace] != 0;
  }
  void setWaiting(std::size_t trace, bool waiting) {
    if (waits(trace) == waiting) return;
    std::vector<std::uint8_t>& all = unconfirmed.edit();
    if (all.size() <= trace) all.resize(trace + 1, 0);
    all[trace] = waiting ? 1 : 0;
  }

  /// One standard deviation of the pick of a trace, seconds; 0 where it is not known, or where
  /// there is no pick.
  double errorOf(std::size_t trace) const {
    if (trace >= pickErrors.size() || trace >= ttMisurati.size()) return 0.0;
    const bool about = hasPick(ttMisurati[trace]) && pickErrors[trace].time == ttMisurati[trace];
    return about ? pickErrors[trace].sigma : 0.0;
  }
  /// Gives the pick that a trace has now its error; what cannot be one makes it unknown.
  void setError(std::size_t trace, double sigma) {
    const double known = isPickError(sigma) ? sigma : 0.0;
    if (errorOf(trace) == known || trace >= ttMisurati.size()) return;
    std::vector<PickError>& all = pickErrors.edit();
    if (all.size() <= trace) all.resize(trace + 1);
    all[trace] = {ttMisurati[trace], known};
  }
};

}  // namespace talvesk

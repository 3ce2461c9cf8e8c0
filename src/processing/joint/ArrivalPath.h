#pragma once

#include "processing/joint/OnsetTrace.h"

#include <limits>
#include <vector>

namespace talvesk {

/// A channel of a gather as the path of first arrivals sees it.
struct ArrivalChannel {
  const OnsetTrace* onset = nullptr;
  double offset = 0.0;  ///< of the geophone from the shot along the line, metres, signed
  double zero = 0.0;    ///< seconds from the first sample to the shot
  /// Seconds from the first sample, not a number without: the arrival is here and nowhere else.
  double fixed = std::numeric_limits<double>::quiet_NaN();
  /// Seconds after the shot, not a number without: what another record says of the same way; later
  /// onsets are less likely.
  double reciprocal = std::numeric_limits<double>::quiet_NaN();
  /// Seconds after the shot, not a number without: the arrival is within `reach` of it.
  double guide = std::numeric_limits<double>::quiet_NaN();
  double reach = 0.0;  ///< seconds
};

/// The most likely first arrivals of a gather as a whole, seconds from the first sample of each
/// channel; not a number where none is to be seen.
///
/// From the shot outward on either side a path goes through onsets of the channels or passes them
/// by. It gains by their likelihood and by the likeness of its waveforms, and loses where it leaves
/// its straight continuation: little towards earlier times, as a faster layer takes over, and much
/// towards later ones. Fixed arrivals are never passed by. Dynamic programming over the onsets, of
/// which each keeps its few best paths of different slope.
/// \param stretch of all times, see OnsetView
std::vector<double> followArrivals(const std::vector<ArrivalChannel>& channels, double stretch);

}  // namespace talvesk

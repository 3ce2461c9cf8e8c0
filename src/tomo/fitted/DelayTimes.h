#pragma once

#include "tomo/fitted/LinePicks.h"
#include "tomo/fitted/RobustFit.h"

#include <vector>

namespace talvesk {

/// A refractor as head waves tell of it: t = delay(source) + delay(receiver) + offset * slowness.
/// Delays are those of the places where the wave enters and leaves the refractor: some metres from
/// its shot and its receiver toward the other one.
struct DelayTimes {
  std::vector<double> delays;  ///< seconds, per position of the line, none negative
  double slowness = 0.0;       ///< s/m
  std::vector<double> shifts;  ///< those metres, per position; empty: none are known yet
  double decided = 0.0;        ///< unknowns' worth that picks have decided, see RobustFit

  /// Seconds of both ends of a pick's wave.
  double delaysOf(const LinePicks& line, const LinePick& pick) const;
  double at(const LinePicks& line, const LinePick& pick) const {
    return delaysOf(line, pick) + pick.offset * slowness;
  }
};

/// Least squares for delays that run smoothly along the line, gross errors weighted down (Cauchy).
/// Beyond the positions that have picks they stay as they are there.
/// \param used the head waves of the refractor; \param guess its shifts, and times to tell the
/// gross errors by at first \return without delays where the picks do not settle them
DelayTimes fitDelays(const LinePicks& line, const std::vector<LinePick>& used,
                     const DelayTimes& guess);

/// Slownesses of the ground near the surface, s/m, per position of the line, from waves along it,
/// in the same way; no unknowns where the picks do not settle them.
/// \param mean slowness to vary about
RobustFit::Solution fitNearSlownesses(const LinePicks& line, const std::vector<LinePick>& used,
                                      double mean);

/// Mean slowness between source and receiver of a pick, s/m.
double meanSlowness(const LinePicks& line, const std::vector<double>& slownesses,
                    const LinePick& pick);

}  // namespace talvesk

#pragma once

#include "numerics/LinePicks.h"
#include "numerics/RobustFit.h"

#include <vector>

namespace talvesk {

/// A refractor as head waves tell of it: t = delay(source) + delay(receiver) + offset * slowness.
/// Delays are those of the places where the wave enters and leaves the refractor: some metres from
/// its shot and its receiver toward the other one.
struct DelayTimes {
  std::vector<double> delays;           ///< seconds, per position of the line, none negative
  double slowness = 0.0;                ///< s/m; the mean along the line where it varies
  std::vector<double> shifts;           ///< those metres, per position; empty: none are known yet
  std::vector<double> slownesses = {};  ///< s/m, per position; empty: the same everywhere
  std::vector<bool> told = {};          ///< positions that a pick tells of
  double decided = 0.0;                 ///< unknowns' worth that picks have decided, see RobustFit

  /// Seconds of both ends of a pick's wave.
  double delaysOf(const LinePicks& line, const LinePick& pick) const;
  double at(const LinePicks& line, const LinePick& pick) const;
};

/// Whether the slowness of a refractor is one, or varies along the line: evenly between places five
/// gaps apart or, on long lines, a 24th of the line, by about 15 % over ten gaps before any pick is
/// looked at.
enum class AlongRefractor { kOneSlowness, kVaries };

/// Least squares for delays that run smoothly along the line, gross errors weighted down (Cauchy).
/// Beyond the positions that have picks they stay as they are there.
/// \param used the head waves of the refractor; \param guess its shifts, and times to tell the
/// gross errors by at first \return without delays where the picks do not settle them
///   Scheidegger, A. E., Willmore, P. L. (1957): The use of a least squares method for the
///   interpretation of data from seismic surveys. Geophysics 22, 9-22.
DelayTimes fitDelays(const LinePicks& line, const std::vector<LinePick>& used,
                     const DelayTimes& guess, AlongRefractor along = AlongRefractor::kOneSlowness);

/// Slownesses of the ground near the surface, s/m, per position of the line, from waves along it,
/// in the same way; no unknowns where the picks do not settle them.
/// \param mean slowness to vary about
RobustFit::Solution fitNearSlownesses(const LinePicks& line, const std::vector<LinePick>& used,
                                      double mean);

/// Mean slowness between source and receiver of a pick, s/m.
double meanSlowness(const LinePicks& line, const std::vector<double>& slownesses,
                    const LinePick& pick);

}  // namespace talvesk

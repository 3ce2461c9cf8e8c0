#pragma once

#include "base/Message.h"
#include "numerics/DelayTimes.h"
#include "tomo/fitted/GroundColumn.h"
#include "tomo/fitted/LinePicks.h"
#include "tomo/fitted/TimeBranches.h"

#include <cstddef>
#include <vector>

namespace talvesk {

/// Picks of a line read as waves along the surface and along refractors.
struct LayeredReading {
  Message refused;                          ///< why the picks cannot be read so; empty: they can
  TimeBranches branches;                    ///< of the line as a whole
  std::vector<double> nearSlownesses;       ///< s/m at the surface, per position
  double gradient = 0.0;                    ///< of the overburden, 1/s
  std::vector<DelayTimes> refractors;       ///< from above
  std::vector<std::vector<double>> depths;  ///< of each, metres below the surface, per position
  double nearDecided = 0.0;  ///< unknowns' worth that picks have decided near the surface
  /// Squared errors that a curved overburden leaves less of waves along the surface than an even
  /// one, beyond those that its unknown is charged.
  double curveGain = 0.0;

  double decided() const;  ///< of all of it

  /// Seconds of the earliest wave of a pick.
  double at(const LinePicks& line, const LinePick& pick) const;
  /// The ground below a grid abscissa.
  GroundColumn column(const LinePicks& line, double x) const;
};

/// Tells the waves apart by their cross-over distances, at first of the line as a whole, then pick
/// by pick, and reads velocities and delays from those that are well on their side of it.
/// \param refractors 1 or 2
LayeredReading readLayers(const LinePicks& line, std::size_t refractors, NearShape shape,
                          const VelocityBounds& bounds);

}  // namespace talvesk

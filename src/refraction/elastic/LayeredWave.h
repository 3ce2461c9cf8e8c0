#pragma once

#include "base/Point2D.h"
#include "refraction/elastic/ElasticModuli.h"
#include "refraction/methods/MethodComparison.h"

#include <functional>
#include <vector>

namespace talvesk {

class TomoDocument;

/// A layer as one kind of wave has it, per receiver at which it was interpreted.
struct WaveLayer {
  std::vector<double> x;           ///< metres, strictly ascending
  std::vector<Estimate> velocity;  ///< m/s
  std::vector<Estimate> top;       ///< metres below the surface

  /// Between receivers straight from the one to the other; unknown beyond them, and beside one
  /// where it is unknown.
  Estimate velocityAt(double place) const;
  Estimate topAt(double place) const;
};

/// The layered interpretation of one kind of wave.
struct LayeredWave {
  std::vector<Point2D> surface;   ///< at the receivers, ascending x, each x once
  std::vector<WaveLayer> layers;  ///< from the surface down; empty: nothing was built
  /// Errors were asked for, but the profile was fitted to all picks, which gives none.
  bool errorsNotGiven = false;

  bool hasErrors() const;  ///< of a velocity at least
  /// Elevation of the surface, metres; not a number beyond the receivers.
  double elevationAt(double x) const;
};

/// The profile as it was built, without errors. Velocities that no ground has are unknown.
LayeredWave layeredWave(const refractionDataStructure::processingData& results);

/// The same with errors: what velocities and depths scatter by as the picks are moved by theirs,
/// see compareMethods(). The profile of a survey whose picks have changed since gets none, neither
/// does one that was fitted to all picks. \param goOn asked now and then on the calling thread;
/// after false there are no errors; may be empty
LayeredWave layeredWave(const TomoDocument& document,
                        const refractionDataStructure::Interpretation& interpretation,
                        const BoundsOptions& bounds, const std::function<bool()>& goOn = {});

}  // namespace talvesk

#pragma once

#include "tomo/fitted/FitData.h"

#include <functional>
#include <vector>

namespace talvesk {

/// What tracing the rays of all picks through one model gives.
struct TracedRays {
  std::vector<double> times;  ///< seconds per pick, in the order of FitData::picks
  RayMatrix rays;             ///< of the same picks
};

/// Traces the first arrivals of all picks through models that share one grid geometry. The result
/// does not depend on the number of threads.
class RayTracer {
 public:
  virtual ~RayTracer() = default;

  /// \param slownesses s/m, one per cell of the grid, all positive
  /// \param goOn asked between shots, from the calling thread; false stops; may be empty
  /// \return false when it was stopped; `traced` is then undefined
  virtual bool trace(const std::vector<double>& slownesses, TracedRays& traced,
                     const std::function<bool()>& goOn) = 0;
};

}  // namespace talvesk

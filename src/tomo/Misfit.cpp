#include "tomo/Misfit.h"

#include <algorithm>
#include <cmath>

namespace talvesk {

Misfit computeMisfit(const TomoDocument& document) {
  Misfit misfit;
  double squares = 0.0;
  double relativeSquares = 0.0;
  for (const TravelTime& record : document.ttArray) {
    const std::size_t n = std::min(record.ttMisurati.size(), record.ttCalcolati.size());
    for (std::size_t i = 0; i < n; ++i) {
      const double measured = record.ttMisurati[i];
      const double computed = record.ttCalcolati[i];
      if (!hasPick(measured) || computed == kNoTime) continue;
      ++misfit.count;
      squares += (measured - computed) * (measured - computed);
      const double relative = (measured - computed) / measured;
      relativeSquares += relative * relative;
      // One-sided on purpose: only a computed time that comes late can be the largest error.
      const double late = (computed - measured) / measured;
      if (late > misfit.maxRelativeError) {
        misfit.maxRelativeError = late;
        misfit.maxError = std::fabs(computed - measured);
      }
    }
  }
  if (misfit.count == 0) return {};
  misfit.rmse = std::sqrt(squares / misfit.count);
  misfit.relativeRms = std::sqrt(relativeSquares / misfit.count);
  return misfit;
}

}  // namespace talvesk

#include "tomo/Misfit.h"

#include "model/Residuals.h"

#include <cmath>

namespace talvesk {

Misfit computeMisfit(const TomoDocument& document) {
  Misfit misfit;
  double squares = 0.0;
  double relativeSquares = 0.0;
  for (const Residual& each : residualsOf(document)) {
    ++misfit.count;
    squares += each.residual * each.residual;
    const double relative = each.residual / each.measured;
    relativeSquares += relative * relative;
    // One-sided on purpose: only a computed time that comes late can be the largest error.
    if (relative > misfit.maxRelativeError) {
      misfit.maxRelativeError = relative;
      misfit.maxError = std::fabs(each.residual);
    }
  }
  if (misfit.count == 0) return {};
  misfit.rmse = std::sqrt(squares / misfit.count);
  misfit.relativeRms = std::sqrt(relativeSquares / misfit.count);
  return misfit;
}

}  // namespace talvesk

#pragma once

#include "model/TomoDocument.h"

namespace talvesk {

/// How well the computed times fit the picks.
struct Misfit {
  int count = 0;                  ///< picks used; 0 means that nothing below is valid
  double rmse = 0.0;              ///< seconds
  double relativeRms = 0.0;       ///< a fraction, not percent
  double maxError = 0.0;          ///< seconds, of the receiver with the largest late relative error
  double maxRelativeError = 0.0;  ///< a fraction; only computed times later than the pick count
};

/// Over every receiver with a pick and a computed time.
Misfit computeMisfit(const TomoDocument& document);

}  // namespace talvesk

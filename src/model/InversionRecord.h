#pragma once

#include <vector>

namespace talvesk {

/// How well the computed times fit the picks.
struct Misfit {
  int count = 0;                  ///< picks used; 0 means that nothing below is valid
  double rmse = 0.0;              ///< seconds
  double relativeRms = 0.0;       ///< a fraction, not percent
  double maxError = 0.0;          ///< seconds, of the receiver with the largest late relative error
  double maxRelativeError = 0.0;  ///< a fraction; only computed times later than the pick count
};

/// How the inversion was run that the results of the document come from, for who must tell of it
/// later.
struct InversionRecord {
  int externalIterations = 0;  ///< asked for; the history has one entry for each that was done
  int solverIterations = 0;
  int smoothing = 0;      ///< smoothing parameter, cells
  int smoothingType = 0;  ///< 0 uniform, 1 linear, 2 Gaussian, 3 ray based
  bool symmetric = false;
  double minVelocity = 0.0;  ///< m/s
  double maxVelocity = 0.0;  ///< m/s
  double elapsedSeconds = 0.0;
  bool stopped = false;         ///< by the user, before the last iteration
  std::vector<Misfit> history;  ///< after every completed external iteration
};

}  // namespace talvesk

#pragma once

#include "base/Log.h"
#include "base/Status.h"
#include "model/Parameters.h"
#include "tomo/Smoothing.h"
#include "tomo/TraceCrew.h"

#include <vector>

namespace talvesk {

class TomoDocument;

/// How an external iteration goes.
struct IterationSettings {
  int solverIterations = parameters::kSolverIterations.initial;  ///< at least 1
  int smoothing = parameters::kSmoothing.initial;                ///< radius, cells, at least 1
  bool symmetric = false;
  SmoothingType smoothingType = kUsualSmoothing;
};

/// One external iteration, TomoDocument::runTomography(), by threads that outlive it.
/// \param slownesses out, s/m per cell. On failure the document is as before, but for a request to
/// stop
Status runExternalIteration(TomoDocument& document, std::vector<double>& slownesses,
                            const IterationSettings& settings, TraceCrew& crew, Log& log);

}  // namespace talvesk

#pragma once

#include "io/Survey.h"
#include "model/ChiSquare.h"
#include "tomo/TomographyRun.h"
#include "tomo/fitted/References.h"

#include <optional>

namespace talvesk::python {

/// What an inversion has found.
struct Result {
  Survey survey;  ///< with the section and the times through it
  TomographyResult run;
  std::optional<ReferencedRun> fit;  ///< none: solver passes and smoothing
  ChiSquare chi2;
};

}  // namespace talvesk::python

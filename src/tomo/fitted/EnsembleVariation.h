#pragma once

#include "base/Message.h"
#include "tomo/fitted/FitOptions.h"

#include <vector>

namespace talvesk {

/// The settings of a fit that are ways to fit, and not limits or places to start from.
struct FitManner {
  bool robust = true;
  bool blocky = false;
  bool statics = false;
};

/// Settings in which the members of an ensemble differ, beside the errors of their picks and the
/// models that they are held to. Every member takes one of each list, drawn by the seed and its
/// number; of an empty list, what the fit has.
struct EnsembleVariation {
  std::vector<double> smoothing;  ///< times the weight of the roughness; positive
  std::vector<bool> robust;
  std::vector<bool> blocky;
  std::vector<bool> statics;

  bool any() const {
    return !smoothing.empty() || !robust.empty() || !blocky.empty() || !statics.empty();
  }
};

/// All combinations of the manners that a variation allows, each once; one at least.
std::vector<FitManner> mannersOf(const EnsembleVariation& vary, const FittedOptions& fit);

/// A model with the settings that tell it apart from the same model fitted in another manner.
Message namedWith(Message model, const FitManner& manner, const EnsembleVariation& vary);

}  // namespace talvesk

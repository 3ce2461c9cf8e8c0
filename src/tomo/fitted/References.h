#pragma once

#include "tomo/fitted/FittedRun.h"
#include "tomo/fitted/ReferenceModels.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace talvesk {

/// FittedSettings::reference: whichever of the models that the picks support fits best.
inline constexpr const char* kBestReference = "best";

/// How a model is called on the command line, in JSON and in projects: "two-layers", "start".
const char* keyOf(ReferenceKind kind);
std::optional<ReferenceKind> referenceKindOf(const std::string& key);

/// What the fit of a survey can start from and be held to.
struct References {
  /// Those of the picks, then the default model, the present section and what is given; of both the
  /// one first that fits best.
  std::vector<ReferenceModel> models;
  std::vector<Message> refused;  ///< by the picks, each with the name of its model
};

/// The model of a key, with "best" for the best of the picks' models; the present section where the
/// picks support none. Null: the picks do not support the model of that name.
const ReferenceModel* find(const References& references, const std::string& key);

/// Makes them all and traces them. The document holds a grid that rays can be traced through. Only
/// errors, threads, given models and limits of the velocities count of the settings; the least is
/// below the greatest. \param goOn as for RayTracer::trace(); may be empty \return nothing when it
/// was stopped
std::optional<References> referencesOf(const TomoDocument& document, const FittedSettings& settings,
                                       const std::function<bool()>& goOn);

/// How one of several fits has ended.
struct ReferenceTrial {
  std::string reference;  ///< key of the model that it started from
  Message name;
  FitEnd end = FitEnd::kStopped;
  ChiSquare fit;
  int iterations = 0;
};

/// A fit with what it could have started from.
struct ReferencedRun {
  FittedRunResult fit;  ///< its reference is the key of the model that was taken, never "best"
  References references;
  std::vector<ReferenceTrial> trials;  ///< in the order in which they were made; one at least
};

/// Fits the section of a document as runFittedInversion() does, from the model that the settings
/// call `reference` and held to it. Fails, naming the reason, where the picks do not support it.
/// With "best", a fit that does not reach its target, or only by leaving many picks out, is
/// followed by fits from the other models of the picks and from the default model, of 15 iterations
/// at most each: the nearest is kept, see distanceOf(). A stop keeps the nearest so far.
ReferencedRun fitFromReference(TomoDocument& document, const FittedSettings& settings, Log& log,
                               const std::function<void(const FittedRunProgress&)>& progress = {},
                               const std::function<bool()>& cancelled = {});

}  // namespace talvesk

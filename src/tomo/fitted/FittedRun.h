#pragma once

#include "tomo/SecondLook.h"
#include "tomo/TomographyRun.h"
#include "tomo/fitted/FittedInversion.h"
#include "tomo/fitted/GivenModels.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace talvesk {

/// What the user chooses before a section is fitted to the errors of its picks.
struct FittedSettings {
  FittedOptions fit;  ///< without a start: the velocities that the document's grid has
  std::string reference = "start";  ///< what the reference is called
  std::vector<GivenModel> given;    ///< models from outside, beside those that References.h makes
  PickErrorRule errors;
  bool holdKnown = false;  ///< held to the document's known ground, too
  bool singleThread = false;
  unsigned threads = 0;                                        ///< see TomographyParameters
  std::optional<std::chrono::steady_clock::time_point> asked;  ///< see TomographyParameters
};

/// Told after every iteration.
struct FittedRunProgress {
  int completed = 0;
  int most = 0;  ///< iterations allowed; few fits need them
  Message from;  ///< the model that this fit has started from, after others that did not convince
  double elapsedSeconds = 0.0;
  ChiSquare fit;          ///< through the section of this iteration
  SectionMisfit section;  ///< the same in times
};

struct FittedRunResult {
  /// As of the other inversion. There is no last solver pass beside the section: its misfit and
  /// times are those of the section.
  TomographyResult run;
  std::string reference;  ///< as the settings call it
  FitEnd end = FitEnd::kStopped;
  Message outcome;                    ///< whether the section explains the picks, in words
  ChiSquare fit;                      ///< of the section, statics included
  std::vector<double> chi2History;    ///< of the start and after every iteration
  double lambda = 0.0;                ///< see FittedResult
  std::optional<KnownFit> known;      ///< with what it was held to; none: with nothing
  int kept = 0;                       ///< iteration that found the section; 0 is the start
  std::vector<SuspectPick> suspects;  ///< in the order of the records
  std::vector<ShotShift> lateShots;   ///< that seem so, where no shifts were asked for
  /// Seconds per record, late is positive; not a number for shots that took no part; empty when
  /// none were asked for. A shot's times come true when its time shift grows by as much.
  std::vector<double> statics;
};

/// Whether the document holds the section of the run: not after a failure or an early stop.
bool found(const FittedRunResult& result);

/// Fits the section of a document, which must hold a grid, to its picks, and installs it with rays,
/// times, coverage, information density and a record of the run. Picks that the grid does not reach
/// are left out and named as by runInversion(). On failure, or when it is stopped before its first
/// iteration is through, the document is as before.
/// \param progress called after every iteration, from the calling thread; may be empty
/// \param cancelled asked between the rays of shots; true keeps the best section so far
FittedRunResult runFittedInversion(
    TomoDocument& document, const FittedSettings& settings, Log& log,
    const std::function<void(const FittedRunProgress&)>& progress = {},
    const std::function<bool()>& cancelled = {});

}  // namespace talvesk

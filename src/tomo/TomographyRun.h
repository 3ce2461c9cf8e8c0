#pragma once

#include "base/Log.h"
#include "base/Message.h"
#include "base/Status.h"
#include "model/ChiSquare.h"
#include "model/Parameters.h"
#include "tomo/Misfit.h"
#include "tomo/Smoothing.h"

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;

/// What the user chooses before an inversion.
struct TomographyParameters {
  int externalIterations = parameters::kIterations.initial;      ///< at least 1
  int solverIterations = parameters::kSolverIterations.initial;  ///< at least 1
  int smoothing = parameters::kSmoothing.initial;  ///< smoothing parameter, cells, at least 1
  SmoothingType smoothingType = kUsualSmoothing;
  bool symmetric = false;
  /// The radius shrinks to a fifth, see CoarseToFine.h, and the best iteration is kept: that whose
  /// section fits the picks best along fresh rays.
  bool coarseToFine = false;
  bool singleThread = false;
  unsigned threads = 0;  ///< unless it is to be a single one; 0: as many as there are processors
  double minVelocity = parameters::kMinVelocity.initial;  ///< m/s
  double maxVelocity = parameters::kMaxVelocity.initial;  ///< m/s
  PickErrorRule errors;  ///< of picks that state none; the section is told of by them
  /// From when the elapsed time of the result counts, such as the choice of a window's command with
  /// its questions; none: from the start of the run.
  std::optional<std::chrono::steady_clock::time_point> asked;
};

/// Told after every completed external iteration.
struct TomographyProgress {
  int completed = 0;
  int total = 0;
  double elapsedSeconds = 0.0;
  Misfit misfit;  ///< of its last solver pass
  /// Through the section that it started from: that of the iteration before, or the starting model.
  SectionMisfit sectionBefore;
};

/// An inversion whose smoothing radius shrank.
struct CoarseToFineResult {
  int kept = 0;            ///< external iteration whose section the document holds, from 1
  std::vector<int> radii;  ///< cells, of every completed iteration
  /// Through the starting model and the section after every completed iteration, fresh rays.
  std::vector<SectionMisfit> sections;
};

struct TomographyResult {
  Status status;
  int iterationsDone = 0;
  bool stopped = false;           ///< left before the last iteration because of a stop request
  double elapsedSeconds = 0.0;    ///< since the inversion was asked for, questions included
  double computingSeconds = 0.0;  ///< of the run alone
  Misfit misfit;                  ///< of the last solver pass; count 0 without any pick
  /// One per completed external iteration; from coarse to fine up to the one that is kept.
  std::vector<Misfit> history;
  std::vector<std::vector<double>> lastPassTimes;  ///< computed, seconds, per record
  /// Through the section that the document holds now, along fresh rays; count 0 without any pick.
  SectionMisfit sectionMisfit;
  std::optional<CoarseToFineResult> coarseToFine;  ///< none: the radius stayed the same
  /// Titles of runs that were kept and had to go for this one.
  std::vector<Message> runsGone;
};

/// A whole inversion: external iterations until done or stopped, then the information density, the
/// misfit, and rays and times through the finished section, which are those that the document
/// holds afterwards. The document must hold a grid. On failure it keeps the results of the last
/// completed iteration.
/// \param progress called after every external iteration, from the calling thread; may be empty
/// \param cancelled asked after every external iteration; the one under way always completes
TomographyResult runInversion(TomoDocument& document, const TomographyParameters& parameters,
                              Log& log,
                              const std::function<void(const TomographyProgress&)>& progress = {},
                              const std::function<bool()>& cancelled = {});

}  // namespace talvesk

#include "tomo/TomographyRun.h"

#include "base/Console.h"
#include "base/TextNumber.h"
#include "model/GroundModel.h"
#include "model/PickFingerprint.h"
#include "model/Residuals.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "tomo/CoarseToFine.h"
#include "tomo/ExternalIteration.h"
#include "tomo/ForwardPass.h"
#include "tomo/KeepRun.h"
#include "tomo/RayRecomputation.h"

#include <chrono>
#include <cmath>
#include <exception>
#include <ostream>
#include <utility>

namespace talvesk {
namespace {

class Stopwatch {
 public:
  Stopwatch() = default;
  explicit Stopwatch(std::chrono::steady_clock::time_point start) : mStart(start) {}

  double seconds() const {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - mStart).count();
  }

 private:
  std::chrono::steady_clock::time_point mStart = std::chrono::steady_clock::now();
};

Status checkParameters(const TomographyParameters& p) {
  if (p.externalIterations < 1 || p.solverIterations < 1 || p.smoothing < 1) {
    return Status::failure(Message::tr("Iterations and smoothing parameter must be 1 at least."));
  }
  for (const double limit : {p.minVelocity, p.maxVelocity}) {
    if (limit > 0.0 && std::isfinite(limit) && std::isfinite(1.0 / limit)) continue;
    return Status::failure(Message::tr("The velocity limits must be positive numbers; %1 is none.")
                               .arg(Message::velocity(limit)));
  }
  return {};
}

InversionRecord recordOf(const TomographyParameters& p, const TomographyResult& result,
                         const TomoDocument& document) {
  InversionRecord record;
  record.externalIterations = p.externalIterations;
  record.solverIterations = p.solverIterations;
  record.smoothing = p.smoothing;
  record.smoothingType = static_cast<int>(p.smoothingType);
  record.symmetric = p.symmetric;
  record.minVelocity = p.minVelocity;
  record.maxVelocity = p.maxVelocity;
  record.elapsedSeconds = result.elapsedSeconds;
  record.computingSeconds = result.computingSeconds;
  record.stopped = result.stopped;
  record.history = result.history;
  record.sectionHistory = document.result->sectionHistory;
  if (result.coarseToFine) record.coarseToFine = result.iterationsDone;
  record.errorFloor = p.errors.floor;
  record.errorShare = p.errors.share;
  record.picks = fingerprintOfPicks(document.ttArray);
  return record;
}

/// Relative RMS misfit, none without any pick: what an earlier inversion left is no longer true.
double percentOf(const Misfit& misfit) {
  return misfit.count > 0 ? misfit.relativeRms * 100.0 : -1.0;
}

/// The times of the last solver pass make way for those through the section that is shown.
Status traceFinished(TomoDocument& document, TraceCrew& crew, TomographyResult& result, Log& log) {
  for (const TravelTime& record : document.ttArray) {
    result.lastPassTimes.push_back(record.ttCalcolati);
  }
  // An iteration that failed may have been through this section before.
  document.result.edit().sectionHistory.resize(result.history.size());
  const Status status = traceSection(document, crew, log);
  if (!status.ok()) return status;
  result.sectionMisfit = sectionMisfitOf(document);
  document.result.edit().sectionHistory.push_back(result.sectionMisfit);
  return status;
}

void tellEnd(const TomographyResult& result, Log& log) {
  log.write("Elapsed time: " + std::to_string(static_cast<long long>(result.elapsedSeconds)) +
            " seconds.");
  if (result.misfit.count == 0) return;
  console::out() << "[LOG] RMSE: s" << formatDouble(result.misfit.rmse) << '\n'
                 << "[LOG] MaxError: %" << formatDouble(result.misfit.maxRelativeError * 100.0)
                 << std::endl;
}

void begin(TomoDocument& document, const TomographyParameters& p, Log& log) {
  document.stopRequested = false;
  // Every run names anew what it leaves out, and the record is that of the one before.
  document.result.edit().excluded.clear();
  document.result.edit().lastInversion.reset();
  document.result.edit().sectionHistory.clear();
  document.result.edit().certainty.reset();
  document.model.edit().minVelocity = p.minVelocity;
  document.model.edit().maxVelocity = p.maxVelocity;
  log.write(std::string("Running Tomography :") +
            (p.singleThread ? "Single thread mode. " : "Multi thread mode. "));
}

/// The document becomes that of the best iteration. The last one's section has had no rays yet.
Status keepBest(TomoDocument& document, const TomographyParameters& p, BestIteration& best,
                TraceCrew& crew, TomographyResult& result, Log& log) {
  TomoDocument last = document;
  const Status status = traceSection(last, crew, log);
  if (!status.ok()) return status;
  const SectionMisfit misfit = sectionMisfitOf(last);
  best.judge(misfit);
  CoarseToFineResult& all = result.coarseToFine.emplace();
  all.kept = best.number();
  all.sections = document.result->sectionHistory;
  all.sections.resize(result.history.size());
  all.sections.push_back(misfit);
  for (int i = 0; i < result.iterationsDone; ++i) {
    all.radii.push_back(coarseToFineRadius(p.smoothing, i, p.externalIterations));
  }
  log.write("The best of " + std::to_string(result.iterationsDone) +
            " iterations is kept: " + std::to_string(all.kept));
  const bool stop = document.stopRequested;
  document = best.document();
  document.stopRequested = stop;
  result.history.resize(static_cast<std::size_t>(all.kept));
  result.misfit = result.history.back();
  return status;
}

/// What comes after the iterations.
/// \param radius of smoothing with which the section was found
Status finish(TomoDocument& document, const TomographyParameters& p, int radius,
              const Stopwatch& watch, TraceCrew& crew, TomographyResult& result, Log& log) {
  const auto seconds = [&] {
    result.computingSeconds = watch.seconds();
    result.elapsedSeconds = p.asked ? Stopwatch(*p.asked).seconds() : result.computingSeconds;
  };
  Status status;
  try {
    document.result.edit().info_density =
        smoothRayDensity(p.smoothingType, *document.model->grid, document.result->hitCounts, radius,
                         verticalRatio(p.symmetric), log, crew.pool());
    status = traceFinished(document, crew, result, log);
    seconds();
    tellEnd(result, log);
  } catch (const std::exception& error) {
    seconds();
    status = Status::failure(
        Message::tr("The last steps of the inversion failed: %1").arg(error.what()));
  }
  document.result.edit().lastInversion = recordOf(p, result, document);
  return status;
}

}  // namespace

TomographyResult runInversion(TomoDocument& document, const TomographyParameters& p, Log& log,
                              const std::function<void(const TomographyProgress&)>& progress,
                              const std::function<bool()>& cancelled) {
  TomographyResult result;
  result.status = checkParameters(p);
  if (!result.status.ok()) return result;
  const Stopwatch watch;
  const Shared<TomographyOutcome> before = document.result;
  begin(document, p, log);
  TraceCrew crew(searchThreads(p.singleThread, p.threads));
  BestIteration best;
  const auto radiusOf = [&](int iteration) {
    return p.coarseToFine ? coarseToFineRadius(p.smoothing, iteration, p.externalIterations)
                          : p.smoothing;
  };
  for (int i = 0; i < p.externalIterations; ++i) {
    const std::string line = "Running Tomography - external iteration " + std::to_string(i);
    log.write(line);
    std::vector<double> slownesses;
    result.status = runExternalIteration(
        document, slownesses, {p.solverIterations, radiusOf(i), p.symmetric, p.smoothingType}, crew,
        log);
    if (!result.status.ok()) break;
    log.write(line + " ... COMPLETED. ");
    result.iterationsDone = i + 1;
    result.history.push_back(computeMisfit(document));
    document.result.edit().RMSE_tomography = percentOf(result.history.back());
    if (p.coarseToFine) best.add(document);
    log.write("Updating tomographic profile ... ");
    if (progress) {
      progress({i + 1, p.externalIterations, watch.seconds(), result.history.back(),
                document.result->sectionHistory.back()});
    }
    log.write("Updating tomographic profile ... COMPLETED. ");
    if (cancelled && cancelled()) document.stopRequested = true;
    if (document.stopRequested) {
      log.write("Stop Request by the user.");
      result.stopped = true;
      break;
    }
  }
  if (result.iterationsDone == 0) {
    // The exclusions tell which rays are those of which receiver.
    document.result = before;
    result.elapsedSeconds = result.computingSeconds = watch.seconds();
    return result;
  }
  result.misfit = result.history.back();
  const Status kept = p.coarseToFine ? keepBest(document, p, best, crew, result, log) : Status();
  const int radius = radiusOf(static_cast<int>(result.history.size()) - 1);
  const Status finished = finish(document, p, radius, watch, crew, result, log);
  for (const Status& status : {kept, finished}) {
    if (result.status.ok()) result.status = status;
  }
  if (finished.ok()) result.runsGone = keepRun(document);
  return result;
}

}  // namespace talvesk

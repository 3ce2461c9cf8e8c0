#include "tomo/fitted/FittedRun.h"

#include "model/GroundModel.h"
#include "model/KnownGround.h"
#include "model/Mending.h"
#include "model/PickFingerprint.h"
#include "model/Residuals.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "tomo/Coverage.h"
#include "tomo/ForwardPass.h"
#include "tomo/KeepRun.h"
#include "tomo/RayRecomputation.h"
#include "tomo/fitted/SurveyFit.h"

#include <chrono>
#include <cmath>
#include <exception>
#include <memory>
#include <utility>

namespace talvesk {
namespace {

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

/// Misfits of the sections of a run, as the document will show them.
class MisfitHistory {
 public:
  MisfitHistory(const TomoDocument& document, const FitData& data)
      : mDocument(document), mData(data) {
    for (TravelTime& record : mDocument.ttArray.edit()) {
      record.ttCalcolati = std::vector<double>(record.ttMisurati.size(), kNoTime);
    }
  }

  const SectionMisfit& add(const std::vector<double>& times) {
    putTimes(mData, times, mDocument);
    mRun.push_back(computeMisfit(mDocument));
    mSections.push_back(misfitOfTimes(mDocument));
    return mSections.back();
  }
  /// Ends with the section that is kept: those after it are not shown.
  void putInto(InversionRecord& record, int kept) {
    mSections.resize(static_cast<std::size_t>(kept) + 1);
    record.sectionHistory = mSections;
    record.history.assign(mRun.begin() + 1, mRun.begin() + kept + 1);
  }

 private:
  TomoDocument mDocument;
  const FitData& mData;
  std::vector<Misfit> mRun;
  std::vector<SectionMisfit> mSections;
};

std::vector<FoundShift> shiftsOf(const FitData& data, const FittedResult& fit,
                                 const TomoDocument& document) {
  std::vector<FoundShift> shifts;
  if (!fit.statics.empty()) shifts.resize(document.ttArray.size());
  for (std::size_t s = 0; s < fit.statics.size(); ++s) {
    const std::uint32_t record = data.shots[s].record;
    shifts[record] = {fit.statics[s],
                      mendsOfRecord(document, static_cast<std::int32_t>(record)).timeShift};
  }
  return shifts;
}

FitRecord fitRecordOf(const FittedSettings& settings, const FittedResult& fit) {
  FitRecord record;
  record.errorFloor = settings.errors.floor;
  record.errorShare = settings.errors.share;
  record.robust = settings.fit.robust;
  record.blocky = settings.fit.blocky;
  record.statics = settings.fit.statics;
  record.triggerError = settings.fit.triggerError;
  record.lambda = fit.lambda;
  record.chi2 = fit.fit.chi2;
  record.chi2All = fit.fit.all;
  record.suspects = static_cast<int>(fit.fit.suspects.size());
  record.target = fit.end == FitEnd::kTarget;
  record.reference = settings.reference;
  return record;
}

InversionRecord recordOf(const FittedSettings& settings, const FittedResult& fit,
                         const TomoDocument& document) {
  InversionRecord record;
  record.externalIterations = settings.fit.mostIterations;
  record.solverIterations = 1;
  // Of the information density alone.
  record.smoothing = parameters::kSmoothing.initial;
  record.smoothingType = static_cast<int>(kUsualSmoothing);
  record.minVelocity = settings.fit.minVelocity;
  record.maxVelocity = settings.fit.maxVelocity;
  record.stopped = fit.end == FitEnd::kStopped;
  record.fit = fitRecordOf(settings, fit);
  if (settings.holdKnown) record.fit->known = fingerprintOf(*document.known);
  record.picks = fingerprintOfPicks(document.ttArray);
  return record;
}

/// The section and all that belongs to it but its record's times.
Status install(const FittedResult& fit, InversionRecord record, unsigned threads, Log& log,
               TomoDocument& document) {
  auto grid = std::make_unique<Grid>(document.model->grid->sharedGeometry(), fit.slownesses);
  TomographyOutcome& outcome = document.result.edit();
  outcome.coorcount.assign(grid->cellCount(), 0.0);
  outcome.hitCounts.assign(grid->cellCount(), 0);
  const RayMatrix& rays = fit.traced.rays;
  for (std::size_t k = 0; k < rays.cells.size(); ++k) {
    outcome.coorcount[rays.cells[k]] += rays.lengths[k];
    ++outcome.hitCounts[rays.cells[k]];
  }
  outcome.info_density = smoothRayDensity(kUsualSmoothing, *grid, outcome.hitCounts,
                                          record.smoothing, verticalRatio(record.symmetric), log);
  outcome.excluded.clear();  // every run names anew what it leaves out
  outcome.has_tomographic_info = true;
  outcome.smoothedResult = false;
  outcome.certainty.reset();
  outcome.sectionHistory = record.sectionHistory;
  outcome.lastInversion = std::move(record);
  setCoverage(document, *grid);
  document.model.edit().grid = std::move(grid);
  return traceSection(document, threads, log);
}

/// What the document shows of the section.
void complete(const TomoDocument& document, const FittedSettings& settings, Clock::time_point start,
              TomographyResult& run) {
  for (const TravelTime& record : document.ttArray) {
    run.lastPassTimes.push_back(record.ttCalcolati);
  }
  run.history = document.result->lastInversion->history;
  run.misfit = computeMisfit(document);
  run.sectionMisfit = sectionMisfitOf(document);
  run.computingSeconds = secondsSince(start);
  run.elapsedSeconds = settings.asked ? secondsSince(*settings.asked) : run.computingSeconds;
}

Message withLateShots(const Message& outcome, const std::vector<ShotShift>& shots) {
  Message text = outcome;
  for (const ShotShift& shot : shots) {
    Message line = shot.late > 0.0
                       ? Message::tr("%1 Shot %2 seems late by %3 ms: run again with shifts.")
                       : Message::tr("%1 Shot %2 seems early by %3 ms: run again with shifts.");
    text = std::move(line)
               .arg(text)
               .arg(shot.record + 1)
               .arg(Message::number(1000.0 * std::fabs(shot.late), 2));
  }
  return text;
}

void describeFit(const FitData& data, FittedResult fit, const TomoDocument& document,
                 FittedRunResult& result) {
  for (const std::size_t i : fit.fit.suspects) {
    const FitPick& pick = data.picks[i];
    result.suspects.push_back(
        {pick.record, pick.receiver, pick.time, fit.scaled[i] * pick.sigma, pick.sigma});
  }
  if (!fit.statics.empty()) {
    result.statics.assign(document.ttArray.size(), std::nan(""));
    for (std::size_t s = 0; s < data.shots.size(); ++s) {
      result.statics[data.shots[s].record] = fit.statics[s];
    }
  }
  result.end = fit.end;
  result.lateShots = secondLook(document).seeming();
  result.outcome = withLateShots(describe(fit), result.lateShots);
  result.fit = std::move(fit.fit);
  result.chi2History = std::move(fit.chi2History);
  result.lambda = fit.lambda;
  result.kept = fit.kept;
}

FittedRunResult runOnCopy(TomoDocument& document, const FittedSettings& settings, Log& log,
                          const std::function<void(const FittedRunProgress&)>& progress,
                          const std::function<bool()>& cancelled) {
  FittedRunResult result;
  const Clock::time_point start = Clock::now();
  const unsigned threads = searchThreads(settings.singleThread, settings.threads);
  const FitData data = picksToFit(document, settings.errors);
  const Grid& grid = *document.model->grid;
  FittedOptions options = settings.fit;
  if (options.start.empty()) options.start = grid.slownesses();
  if (settings.holdKnown) options.known = knownCellsOf(document);
  const std::shared_ptr<const KnownCells> known = options.known;
  const std::unique_ptr<RayTracer> tracer = fitTracer(grid.sharedGeometry(), data, threads);
  MisfitHistory history(document, data);
  FittedInversion inversion(grid.geometry().size(), data, *tracer, std::move(options));
  FittedResult fit = inversion.run(
      [&](const FitProgress& state) {
        const SectionMisfit& section = history.add(state.times);
        log.write("Fitted section, iteration " + std::to_string(state.iteration) + ": chi-square " +
                  std::to_string(state.fit.chi2));
        if (state.iteration == 0 || !progress) return;
        progress({state.iteration, state.most, {}, secondsSince(start), state.fit, section});
      },
      [&] { return !cancelled || !cancelled(); });
  result.run.status = fit.status;
  result.run.stopped = fit.end == FitEnd::kStopped;
  result.run.iterationsDone = fit.status.ok() ? fit.iterations : 0;
  result.end = fit.end;
  if (!found(result)) return result;

  InversionRecord record = recordOf(settings, fit, document);
  record.fit->shifts = shiftsOf(data, fit, document);
  history.putInto(record, fit.kept);
  result.run.status = install(fit, std::move(record), threads, log, document);
  complete(document, settings, start, result.run);
  InversionRecord& installed = *document.result.edit().lastInversion;
  installed.computingSeconds = result.run.computingSeconds;
  installed.elapsedSeconds = result.run.elapsedSeconds;
  document.result.edit().RMSE_tomography =
      result.run.misfit.count > 0 ? result.run.misfit.relativeRms * 100.0 : -1.0;
  if (result.run.status.ok()) result.run.runsGone = keepRun(document);
  if (known) result.known = fitOf(*known, grid.geometry().size(), fit.slownesses);
  describeFit(data, std::move(fit), document, result);
  result.reference = settings.reference;
  log.write(result.outcome);
  return result;
}

}  // namespace

bool found(const FittedRunResult& result) {
  if (!result.run.status.ok()) return false;
  return result.run.iterationsDone > 0 || result.end == FitEnd::kTarget;
}

FittedRunResult runFittedInversion(TomoDocument& document, const FittedSettings& settings, Log& log,
                                   const std::function<void(const FittedRunProgress&)>& progress,
                                   const std::function<bool()>& cancelled) {
  FittedRunResult result;
  result.run.status = checkTraceable(document);
  if (!result.run.status.ok()) return result;
  try {
    TomoDocument copy = document;
    result = runOnCopy(copy, settings, log, progress, cancelled);
    if (result.run.status.ok() && found(result)) document = std::move(copy);
  } catch (const std::exception& error) {
    result = {};
    result.run.status = Status::failure(Message::tr("The inversion failed: %1").arg(error.what()));
  }
  if (!result.run.status.ok()) result.run.iterationsDone = 0;
  return result;
}

}  // namespace talvesk

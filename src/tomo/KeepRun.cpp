#include "tomo/KeepRun.h"

#include "grid/GridBuilder.h"
#include "model/ChiSquare.h"
#include "model/GroundModel.h"
#include "model/KeptRuns.h"
#include "model/Residuals.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "tomo/Coverage.h"
#include "tomo/RayRecomputation.h"
#include "tomo/Smoothing.h"

#include <algorithm>
#include <ctime>
#include <exception>
#include <memory>
#include <utility>

namespace talvesk {
namespace {

std::string utcNow() {
  const std::time_t now = std::time(nullptr);
  std::tm utc{};
  if (gmtime_r(&now, &utc) == nullptr) return {};
  char text[32];
  const std::size_t length = std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &utc);
  return {text, length};
}

void measure(const TomoDocument& document, KeptRun& run) {
  const SectionMisfit trusted = trustedMisfitOf(document);
  if (trusted.count > 0) run.trustedRms = trusted.rmse;
  if (run.record.fit) {
    run.chi2 = run.record.fit->chi2;
    run.chi2All = run.record.fit->chi2All;
    return;
  }
  const ChiSquare fit = sectionChiSquareOf(document);
  if (fit.count == 0) return;
  run.chi2 = fit.chi2;
  run.chi2All = fit.all;
}

/// The cells of a run, which are those of the document as a rule.
std::shared_ptr<const GridGeometry> geometryOf(const KeptRun& run, const GroundModel& model) {
  if (model.grid != nullptr && sameCells(run.size, model.grid->geometry().size()) &&
      run.surface.X() == model.surface.X() && run.surface.Y() == model.surface.Y()) {
    return model.grid->sharedGeometry();
  }
  return std::make_shared<GridGeometry>(run.size, run.surface);
}

void putOutcome(const KeptRun& run, const Grid& grid, TomoDocument& document) {
  const InversionRecord& record = run.record;
  TomographyOutcome outcome;
  outcome.has_tomographic_info = true;
  outcome.RMSE_tomography = run.rmsPercent;
  outcome.sectionHistory = record.sectionHistory;
  outcome.coorcount = *run.coorcount;
  outcome.hitCounts = *run.hitCounts;
  outcome.info_density.assign(grid.cellCount(), -1.0);
  outcome.lastInversion = record;
  document.result = std::move(outcome);
}

bool hasTimesOf(const KeptRun& run, const TomoDocument& document) {
  const auto sameCount = [](const SharedVector<double>& times, const TravelTime& record) {
    return times.size() == record.ttMisurati.size();
  };
  return run.positions == fingerprintOfPositions(document) &&
         std::equal(run.times.begin(), run.times.end(), document.ttArray.begin(),
                    document.ttArray.end(), sameCount);
}

void putTimes(const KeptRun& run, TomoDocument& document) {
  const bool known = hasTimesOf(run, document);
  std::vector<TravelTime>& records = document.ttArray.edit();
  for (std::size_t i = 0; i < records.size(); ++i) {
    records[i].ttCalcolati =
        known ? run.times[i]
              : SharedVector<double>(std::vector<double>(records[i].ttMisurati.size(), kNoTime));
  }
  document.result.edit().timesOfSection = known;
}

Status putDensity(const KeptRun& run, TomoDocument& document, Log& log) {
  const InversionRecord& record = run.record;
  try {
    TomographyOutcome& outcome = document.result.edit();
    outcome.info_density =
        smoothRayDensity(static_cast<SmoothingType>(record.smoothingType), *document.model->grid,
                         outcome.hitCounts, record.smoothing, verticalRatio(record.symmetric), log);
    return {};
  } catch (const std::exception& error) {
    return Status::failure(
        Message::tr("\"%1\" cannot be used: %2").arg(run.title()).arg(error.what()));
  }
}

}  // namespace

std::vector<Message> keepRun(TomoDocument& document) {
  const Grid& grid = *document.model->grid;
  const TomographyOutcome& outcome = *document.result;
  KeptRun run;
  run.when = utcNow();
  run.record = *outcome.lastInversion;
  run.rmsPercent = outcome.RMSE_tomography;
  run.positions = fingerprintOfPositions(document);
  run.size = grid.geometry().size();
  run.xOffset = document.model->xOffset;
  run.surface = document.model->surface;
  run.slowness = grid.slownesses();
  run.coorcount = outcome.coorcount;
  run.hitCounts = outcome.hitCounts;
  for (const TravelTime& record : document.ttArray) run.times.push_back(record.ttCalcolati);
  measure(document, run);
  return addRun(std::move(run), document.runs.edit());
}

Status putRun(const KeptRun& run, TomoDocument& document) {
  try {
    if (Status status = checkGridSize(run.size, 1); !status.ok()) return status;
    TomoDocument next = document;
    auto grid = std::make_unique<Grid>(geometryOf(run, *document.model), *run.slowness);
    putOutcome(run, *grid, next);
    setCoverage(next, *grid);
    putTimes(run, next);
    GroundModel& model = next.model.edit();
    model.grid = std::move(grid);
    model.surface = run.surface;
    model.xOffset = run.xOffset;
    document = std::move(next);
    return {};
  } catch (const std::exception& error) {
    return Status::failure(
        Message::tr("\"%1\" cannot be shown: %2").arg(run.title()).arg(error.what()));
  }
}

Status useRun(std::size_t index, unsigned threads, TomoDocument& document, Log& log) {
  if (index >= document.runs.size()) {
    return Status::failure(Message::tr("There is no such run any more."));
  }
  const KeptRun run = document.runs[index];
  if (changesSince(run, document).ground) {
    return Status::failure(
        Message::tr("The surface or the ends of the line have changed since \"%1\"; its section "
                    "can be compared with others, but is none of this line any more.")
            .arg(run.title()));
  }
  TomoDocument next = document;
  Status status = putRun(run, next);
  if (status.ok()) status = putDensity(run, next, log);
  if (status.ok()) status = traceSection(next, threads, log);
  if (status.ok()) document = std::move(next);
  return status;
}

}  // namespace talvesk

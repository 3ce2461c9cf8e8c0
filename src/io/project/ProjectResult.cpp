#include "io/project/ProjectResult.h"

#include "model/GroundModel.h"
#include "model/TomoDocument.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>

namespace talvesk {
namespace {

bool finite(std::initializer_list<double> values) {
  return std::all_of(values.begin(), values.end(), [](double v) { return std::isfinite(v); });
}

bool positive(double value) {
  return std::isfinite(value) && value > 0.0;
}

bool isMisfit(const Misfit& m) {
  return m.count >= 0 && finite({m.rmse, m.relativeRms, m.maxError, m.maxRelativeError});
}

bool isSectionMisfit(const SectionMisfit& m) {
  return m.count >= 0 && finite({m.rmse, m.relativeRms, m.bias, m.maxAbs});
}

bool isShift(const FoundShift& shift) {
  constexpr double kLongest = 1000.0;  // seconds; no record of a shot lasts as long
  return std::fabs(shift.late) <= kLongest && std::fabs(shift.mended) <= kLongest;
}

/// By what errors of picks residuals can have been weighed.
bool isErrorRule(double floor, double share) {
  constexpr double kLeast = 1e-9;  // seconds
  constexpr double kMost = 1000.0;
  return floor >= kLeast && floor <= kMost && share >= 0.0 && share <= kMost;
}

/// As models are called, those of later versions among them.
bool isReference(const std::string& key) {
  constexpr std::size_t kLongest = 64;
  return key.size() <= kLongest && std::all_of(key.begin(), key.end(), [](char c) {
           return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-';
         });
}

bool coversGrid(const TomographyOutcome& outcome, const TomoDocument& document) {
  if (document.model->grid == nullptr) return false;
  const std::size_t cells = document.model->grid->cellCount();
  return outcome.hitCounts.size() == cells && outcome.coorcount.size() == cells;
}

bool fits(const ResultMember& result, const TomoDocument& document) {
  const TomographyOutcome& outcome = result.outcome;
  if (!coversGrid(outcome, document)) return false;
  const auto length = [](double metres) { return std::isfinite(metres) && metres >= 0.0; };
  if (!std::all_of(outcome.coorcount.begin(), outcome.coorcount.end(), length)) return false;
  const std::size_t records = document.ttArray.size();
  for (const FitRecord& fit : result.fits) {
    if (!canHaveBeen(fit, records)) return false;
  }
  if (outcome.lastInversion) return canHaveBeen(result.run);
  return std::isfinite(result.run.computingSeconds) && result.run.sectionHistory.empty();
}

}  // namespace

bool hasResult(const TomoDocument& document) {
  return document.result->has_tomographic_info;
}

bool hasCoverage(const TomoDocument& document) {
  return hasResult(document) && coversGrid(*document.result, document);
}

bool knowsResult(const TomoDocument& document) {
  const std::vector<std::uint32_t>& hits = document.result->hitCounts;
  return hasResult(document) &&
         std::any_of(hits.begin(), hits.end(), [](std::uint32_t count) { return count > 0; });
}

ResultMember resultOf(const TomoDocument& document) {
  ResultMember result{
      *document.result, document.result->lastInversion.value_or(InversionRecord()), {}};
  if (result.run.fit) result.fits.push_back(*result.run.fit);
  return result;
}

Status installResult(ResultMember result, TomoDocument& document) {
  if (!hasResult(document) || !fits(result, document)) {
    return Status::failure(Message::tr(
        "its coverage and figures do not go with the grid and the inversion of the project"));
  }
  if (result.outcome.lastInversion) {
    result.outcome.sectionHistory = result.run.sectionHistory;
    result.run.fit = result.fits.empty() ? std::nullopt : std::make_optional(result.fits.front());
    result.outcome.lastInversion = std::move(result.run);
  }
  document.result = std::move(result.outcome);
  return {};
}

bool canHaveBeen(const InversionRecord& run) {
  return run.externalIterations > 0 && run.solverIterations > 0 && run.smoothing > 0 &&
         run.smoothingType >= 0 && positive(run.minVelocity) && positive(run.maxVelocity) &&
         finite({run.elapsedSeconds, run.computingSeconds}) &&
         run.history.size() <= static_cast<std::size_t>(run.externalIterations) &&
         std::all_of(run.history.begin(), run.history.end(), isMisfit) && run.coarseToFine >= 0 &&
         run.coarseToFine <= run.externalIterations &&
         (run.errorFloor == 0.0 || isErrorRule(run.errorFloor, run.errorShare)) &&
         (run.coarseToFine == 0 ||
          run.history.size() <= static_cast<std::size_t>(run.coarseToFine)) &&
         (run.sectionHistory.empty() || run.sectionHistory.size() == run.history.size() + 1) &&
         std::all_of(run.sectionHistory.begin(), run.sectionHistory.end(), isSectionMisfit);
}

bool canHaveBeen(const FitRecord& fit, std::size_t records) {
  const auto isFigure = [](double value) { return std::isfinite(value) && value >= 0.0; };
  return isErrorRule(fit.errorFloor, fit.errorShare) && positive(fit.triggerError) &&
         isFigure(fit.lambda) && isFigure(fit.chi2) && isFigure(fit.chi2All) && fit.suspects >= 0 &&
         isReference(fit.reference) && (fit.shifts.empty() || fit.shifts.size() == records) &&
         std::all_of(fit.shifts.begin(), fit.shifts.end(), isShift);
}

}  // namespace talvesk

#include "io/ProjectResult.h"

#include "model/GroundModel.h"
#include "model/TomographyOutcome.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace talvesk {
namespace {

bool canHaveBeen(const SectionMisfit& misfit) {
  const double values[] = {misfit.rmse, misfit.relativeRms, misfit.bias, misfit.maxAbs};
  return misfit.count >= 0 && std::all_of(std::begin(values), std::end(values),
                                          [](double value) { return std::isfinite(value); });
}

bool fits(const ResultMember& result, const TomoDocument& document) {
  const std::size_t cells = document.model->grid->cellCount();
  if (result.hitCounts.size() != cells || result.coorcount.size() != cells) return false;
  const auto length = [](double metres) { return std::isfinite(metres) && metres >= 0.0; };
  if (!std::all_of(result.coorcount.begin(), result.coorcount.end(), length)) return false;
  if (!std::isfinite(result.computingSeconds)) return false;
  const std::size_t iterations =
      document.result->lastInversion ? document.result->lastInversion->history.size() + 1 : 0;
  const std::vector<SectionMisfit>& history = result.sectionHistory;
  return (history.empty() || history.size() == iterations) &&
         std::all_of(history.begin(), history.end(), canHaveBeen);
}

}  // namespace

bool hasResult(const TomoDocument& document) {
  return document.result->has_tomographic_info;
}

bool knowsResult(const TomoDocument& document) {
  const std::vector<std::uint32_t>& hits = document.result->hitCounts;
  return hasResult(document) &&
         std::any_of(hits.begin(), hits.end(), [](std::uint32_t count) { return count > 0; });
}

std::optional<ResultMember> resultOf(const TomoDocument& document) {
  if (!hasResult(document)) return std::nullopt;
  ResultMember result;
  result.hitCounts = document.result->hitCounts;
  result.coorcount = document.result->coorcount;
  result.smoothed = document.result->smoothedResult;
  result.timesOfSection = document.result->timesOfSection;
  if (!document.result->lastInversion) return result;
  result.computingSeconds = document.result->lastInversion->computingSeconds;
  result.picks = document.result->lastInversion->picks;
  result.sectionHistory = document.result->lastInversion->sectionHistory;
  return result;
}

Status installResult(ResultMember result, TomoDocument& document) {
  if (document.model->grid == nullptr || !document.result->has_tomographic_info ||
      !fits(result, document)) {
    return Status::failure(Message::tr(
        "its coverage and figures do not go with the grid and the inversion of the project"));
  }
  document.result.edit().hitCounts = std::move(result.hitCounts);
  document.result.edit().coorcount = std::move(result.coorcount);
  document.result.edit().smoothedResult = result.smoothed;
  document.result.edit().timesOfSection = result.timesOfSection;
  if (!document.result->lastInversion) return {};
  document.result.edit().lastInversion->computingSeconds = result.computingSeconds;
  document.result.edit().lastInversion->picks = result.picks;
  document.result.edit().lastInversion->sectionHistory = result.sectionHistory;
  document.result.edit().sectionHistory = std::move(result.sectionHistory);
  return {};
}

}  // namespace talvesk

#include "io/ProjectResult.h"

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
  const std::size_t cells = document.grid->cellCount();
  if (result.hitCounts.size() != cells || result.coorcount.size() != cells) return false;
  const auto length = [](double metres) { return std::isfinite(metres) && metres >= 0.0; };
  if (!std::all_of(result.coorcount.begin(), result.coorcount.end(), length)) return false;
  if (!std::isfinite(result.computingSeconds)) return false;
  const std::size_t iterations =
      document.lastInversion ? document.lastInversion->history.size() + 1 : 0;
  const std::vector<SectionMisfit>& history = result.sectionHistory;
  return (history.empty() || history.size() == iterations) &&
         std::all_of(history.begin(), history.end(), canHaveBeen);
}

}  // namespace

ResultMember resultOf(const TomoDocument& document) {
  ResultMember result;
  result.hitCounts = document.hitCounts;
  result.coorcount = document.coorcount;
  result.smoothed = document.smoothedResult;
  result.timesOfSection = document.timesOfSection;
  if (!document.lastInversion) return result;
  result.computingSeconds = document.lastInversion->computingSeconds;
  result.picks = document.lastInversion->picks;
  result.sectionHistory = document.lastInversion->sectionHistory;
  return result;
}

Status installResult(ResultMember result, TomoDocument& document) {
  if (document.grid == nullptr || !document.has_tomographic_info || !fits(result, document)) {
    return Status::failure(Message::tr(
        "its coverage and figures do not go with the grid and the inversion of the project"));
  }
  document.hitCounts = std::move(result.hitCounts);
  document.coorcount = std::move(result.coorcount);
  document.smoothedResult = result.smoothed;
  document.timesOfSection = result.timesOfSection;
  if (!document.lastInversion) return {};
  document.lastInversion->computingSeconds = result.computingSeconds;
  document.lastInversion->picks = result.picks;
  document.lastInversion->sectionHistory = result.sectionHistory;
  document.sectionHistory = std::move(result.sectionHistory);
  return {};
}

}  // namespace talvesk

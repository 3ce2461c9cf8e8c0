#include "tomo/SecondLook.h"

#include "model/ChiSquare.h"
#include "model/GroundModel.h"
#include "model/Recordings.h"
#include "model/Residuals.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "tomo/fitted/FitOptions.h"
#include "tomo/fitted/ShotShifts.h"
#include "tomo/fitted/SurveyFit.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace talvesk {
namespace {

constexpr double kAtLimit = 1e-3;  // as a share of it

void add(const Grid& grid, double xOffset, std::uint32_t row, std::uint32_t column,
         CellPatch& patch) {
  const double left = column * grid.aLato() - xOffset;
  const double top = row * grid.aLato();
  const bool first = patch.cells == 0;
  patch.left = first ? left : std::min(patch.left, left);
  patch.right = first ? left + grid.aLato() : std::max(patch.right, left + grid.aLato());
  patch.top = first ? top : std::min(patch.top, top);
  patch.bottom = std::max(patch.bottom, top + grid.aLato());
  ++patch.cells;
}

void lookAtCells(const TomoDocument& document, SecondLook& look) {
  const Grid& grid = *document.model->grid;
  const std::vector<std::uint32_t>& hits = document.result->hitCounts;
  if (hits.size() != grid.cellCount()) return;
  for (std::uint32_t row = 0; row < grid.righe(); ++row) {
    for (std::uint32_t column = 0; column < grid.col(); ++column) {
      const std::uint32_t cell = grid.cellIndex(row, column);
      const auto addTo = [&](CellPatch& patch) {
        add(grid, document.model->xOffset, row, column, patch);
      };
      if (grid.draw(cell)) ++look.drawn;
      if (hits[cell] == 0) {
        if (grid.draw(cell)) addTo(look.withoutRays);
        continue;
      }
      const double velocity = grid.velocity(cell);
      if (velocity <= look.least * (1.0 + kAtLimit)) addTo(look.atLeast);
      if (velocity >= look.greatest * (1.0 - kAtLimit)) addTo(look.atGreatest);
    }
  }
}

bool hasRecording(const TomoDocument& document, std::size_t record) {
  const auto set = static_cast<std::size_t>(std::max(document.ttArray[record].traceSetID, 0));
  return document.ttArray[record].traceSetID >= 0 && set < document.recordings->traceSets.size() &&
         !document.recordings->traceSets[set].empty();
}

/// Shots whose wave seems to have begun at another time, where nothing has looked for that.
void lookAtShots(const TomoDocument& document, SecondLook& look) {
  const auto& run = document.result->lastInversion;
  if (run && run->fit && run->fit->statics) return;
  const FitData data = picksToFit(document, errorRuleOf(document));
  std::vector<double> times;
  for (const FitPick& pick : data.picks) {
    const auto& found = document.ttArray[pick.record].ttCalcolati;
    if (pick.receiver >= found.size() || !(found[pick.receiver] > 0.0)) return;
    times.push_back(found[pick.receiver]);
  }
  const std::vector<double> shifts = seemingShifts(data, times, FittedOptions().triggerError);
  for (std::size_t s = 0; s < shifts.size(); ++s) {
    const std::size_t record = data.shots[s].record;
    if (shifts[s] != 0.0)
      look.shifts.push_back({record, shifts[s], hasRecording(document, record), true, true});
  }
}

void lookAtPicks(const TomoDocument& document, SecondLook& look) {
  look.suspects = suspectsOf(document);
  const ChiSquare fit = sectionChiSquareOf(document);
  look.limit = fit.limit;
  look.beyond = fit.beyond;
  look.raised = raisedErrors(document);
  std::stable_sort(look.suspects.begin(), look.suspects.end(),
                   [](const SuspectPick& a, const SuspectPick& b) {
                     return std::fabs(a.residual / a.sigma) > std::fabs(b.residual / b.sigma);
                   });
  const PickErrorRule rule = errorRuleOf(document);
  for (std::size_t i = 0; i < document.ttArray.size(); ++i) {
    const double late = outstandingShift(document, i);
    if (late != 0.0)
      look.shifts.push_back({i, late, hasRecording(document, i), std::fabs(late) > rule.floor});
  }
}

}  // namespace

std::vector<ShotShift> SecondLook::seeming() const {
  std::vector<ShotShift> seeming;
  std::copy_if(shifts.begin(), shifts.end(), std::back_inserter(seeming),
               [](const ShotShift& shift) { return shift.seeming; });
  return seeming;
}

SecondLook secondLook(const TomoDocument& document) {
  SecondLook look;
  look.known = sectionMisfitOf(document).count > 0 && document.model->grid != nullptr;
  if (!look.known) return look;
  look.picksChanged = picksChangedSince(document);
  lookAtPicks(document, look);
  lookAtShots(document, look);
  const auto& run = document.result->lastInversion;
  if (!run) return look;
  look.least = run->minVelocity;
  look.greatest = run->maxVelocity;
  lookAtCells(document, look);
  return look;
}

std::vector<SuspectPick> suspectsOf(const TomoDocument& document) {
  const PickErrorRule rule = errorRuleOf(document);
  const std::vector<Residual> residuals = sectionResidualsOf(document);
  std::vector<SuspectPick> suspects;
  for (const std::size_t i : chiSquareOf(document, residuals, rule).suspects) {
    const Residual& each = residuals[i];
    suspects.push_back({each.record, each.receiver, each.measured, each.residual,
                        sigmaOf(document.ttArray[each.record], each.receiver, rule)});
  }
  return suspects;
}

}  // namespace talvesk

#include "python/LineGrid.h"

#include "base/Log.h"
#include "base/TextNumber.h"
#include "grid/GridBuilder.h"
#include "io/Survey.h"
#include "python/Error.h"
#include "session/TableRules.h"
#include "tomo/GridSetup.h"

namespace talvesk::python {
namespace {

void checkWishes(const GridWishes& wishes, const SurveyProfile& profile) {
  if (!profile.hasGeometry()) throw Error("No two geophones have different positions");
  if (wishes.nodes < parameters::kNodes.limits.least) {
    throw Error("A cell side needs " + std::to_string(parameters::kNodes.limits.least) +
                " nodes at least");
  }
  if (wishes.depth && *wishes.depth > profile.arrayLength) {
    throw Error("The depth of " + formatDouble(*wishes.depth) +
                " m is greater than the array length, " + formatDouble(profile.arrayLength) + " m");
  }
}

GridSettings settingsOf(const GridWishes& wishes, Survey& survey, Log& log) {
  SurveyProfile profile;
  GridSettings settings = proposeGrid(survey.document, profile, log);
  checkWishes(wishes, profile);
  settings.cellSize = wishes.cell.value_or(settings.cellSize);
  settings.maxDepth = wishes.depth.value_or(settings.maxDepth);
  settings.nodes = static_cast<std::uint32_t>(wishes.nodes);
  return settings;
}

}  // namespace

LineGrid buildLineGrid(const Survey& survey, const GridWishes& wishes) {
  Survey work = survey;
  Log log;
  const GridSettings settings = settingsOf(wishes, work, log);
  raiseUnless(editSurvey(Edit::kGrid, work,
                         [&](Survey& next) { return setUpGrid(next.document, settings, log); }));
  if (work.document.model->grid->cellCount() == 0) {
    throw Error("A depth of " + formatDouble(settings.maxDepth) + " m with cells of " +
                formatDouble(settings.cellSize) +
                " m makes a grid without rows; choose a greater depth or smaller cells");
  }
  if (!wishes.layers.empty()) {
    raiseUnless(editSurvey(Edit::kStartingModel, work, [&](Survey& next) {
      return applyLayers(next.document, wishes.layers);
    }));
  }
  return {work.document.model};
}

void layUnder(const LineGrid& grid, Survey& survey) {
  Log log;
  const GridGeometry& geometry = grid.grid().geometry();
  const GridSettings settings = {geometry.righe() * geometry.aLato(), geometry.aLato(),
                                 geometry.nV()};
  raiseUnless(editSurvey(Edit::kGrid, survey, [&](Survey& next) {
    const Status status = setUpGrid(next.document, settings, log);
    if (!status.ok()) return status;
    const GroundModel& built = *next.document.model;
    const bool same = built.xOffset == grid.model->xOffset &&
                      built.grid->cellCount() == geometry.cellCount() &&
                      built.grid->geometry().surfaceProfile() == geometry.surfaceProfile();
    if (!same) return Status::failure("The grid was built for a line with other positions");
    next.document.model = grid.model;
    return Status();
  }));
}

}  // namespace talvesk::python

#include "app/presenters/CommandState.h"

#include "app/presenters/Desk.h"
#include "export/LinePlacement.h"
#include "model/Annotations.h"
#include "model/GroundModel.h"
#include "model/KnownGround.h"
#include "model/SurveyFacts.h"
#include "model/SurveyLine.h"
#include "model/TomographyOutcome.h"
#include "processing/ShotTime.h"
#include "ui_Talvesk_MainWindows.h"
#include "view/RefractorLines.h"
#include "widgets/traces/TraceViewOptions.h"
#include "widgets/traces/editTravelTimesWidget.h"

#include <algorithm>

namespace talvesk {
namespace {

bool anyStartsBeforeShot(const std::vector<TraceSet>& sets) {
  return std::any_of(sets.begin(), sets.end(), [](const TraceSet& traces) {
    return std::any_of(traces.begin(), traces.end(), startsBeforeShot);
  });
}

}  // namespace

CommandState::CommandState(const Desk& desk)
    : settings(desk.settings),
      traceView(desk.ui.showTracesWidget->options()),
      tool(desk.ui.showTracesWidget->tool()),
      section(desk.section()) {
  const TomoDocument& document = desk.document();
  const editTravelTimesWidget& editor = *desk.ui.showTracesWidget;
  records = !document.ttArray.empty();
  traces = !document.recordings->traceSets.empty();
  recordInView = records && desk.shot.index() >= 0;
  shotInView = traces && recordInView;
  mends = !document.recordings->mends.empty();
  filteredCopy = desk.hasFilteredCopy(desk.shot.index());
  beforeShot = anyStartsBeforeShot(document.recordings->traceSets);
  picksInRange = editor.hasPicksInRange(false);
  unconfirmedInRange = editor.hasPicksInRange(true);
  picksToReview = records && !traceView.showOnlyTraces;
  canZoomBack = recordInView && editor.canZoomBack();
  canZoomForward = recordInView && editor.canZoomForward();
  canUndo = desk.session.canUndo();
  canRedo = desk.session.canRedo();
  strings = records || !document.line->goephonesStringSet.empty();
  toSave = strings || desk.session.modified();
  grid = document.model->grid != nullptr;
  cells = grid && document.model->grid->cellCount() > 0;
  computed = document.result->has_tomographic_info;
  rays = cells && !document.result->rays.empty();
  density = cells && hasInformationDensity(document);
  inverted = cells && computed;
  certainty = cells && document.result->certainty.has_value();
  refractors = !refractorLines(desk.interpretation()).empty();
  known = cells && !document.known->empty();
  picture = cells || (section.refraction && refractors);
  annotations = picture && !document.annotations->empty();
  line = lineEnds(document).has_value();
  lineAndGrid = line && grid;
  drawable = records || grid;
}

}  // namespace talvesk

#include "batch/StartModel.h"

#include "batch/Failure.h"
#include "grid/SurveyProfile.h"
#include "io/Survey.h"
#include "model/GroundModel.h"
#include "model/TomographyOutcome.h"
#include "session/TableRules.h"
#include "tomo/GridSetup.h"
#include "tomo/LayeredProfile.h"

#include <vector>

namespace talvesk {
namespace {

Status putProposedGrid(Survey& survey) {
  Log log;
  SurveyProfile profile;
  const GridSettings settings = proposeGrid(survey.document, profile, log);
  return editSurvey(Edit::kGrid, survey,
                    [&](Survey& next) { return setUpGrid(next.document, settings, log); });
}

}  // namespace

Status putStartModel(double thickness, Survey& survey) {
  if (survey.document.model->grid == nullptr || survey.document.model->grid->cellCount() == 0) {
    const Status status = putProposedGrid(survey);
    if (!status.ok()) return status;
  }
  const bool inverted = survey.document.result->has_tomographic_info;
  std::vector<Message> notes;
  Status status = editSurvey(Edit::kStartingModel, survey, [&](Survey& next) {
    return startFromProfile(next.document, next.interpretation->refractData, thickness, notes);
  });
  if (!status.ok()) return status;
  for (const Message& note : notes) warn(note);
  if (inverted) warn("the starting model takes the place of the section that the project had");
  return status;
}

}  // namespace talvesk

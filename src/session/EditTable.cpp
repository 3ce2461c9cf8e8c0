#include "session/EditTable.h"

#include <algorithm>

namespace talvesk {

Fate EditRule::fate(Part part) const {
  return part == Part::kView ? Fate::kChanged
                             : static_cast<Fate>(fates[static_cast<std::size_t>(part)]);
}

const std::vector<EditRule>& editTable() {
  // Parts: recordings, picks, geometry, model, result, marks, profile, look, map, runs, known
  // ground, annotations.
  static const std::vector<EditRule> table = {
      {Edit::kOpenShots, Message::tr("Open shot files"), "CCCGVC..SS.."},
      {Edit::kRemoveShot, Message::tr("Remove shot"), "CCCGVCV.SS.."},
      {Edit::kImport, Message::tr("Import travel times"), ".CCGGCV.SS.."},
      {Edit::kImportSurvey, Message::tr("Import travel times"), "CCCGVVVCVVVV"},
      {Edit::kShotTime, Message::tr("Count times from the shot"), "CC..S.S..S.."},
      {Edit::kMend, Message::tr("Mend recordings"), "CC..S.S..S.."},
      {Edit::kTakeShifts, Message::tr("Take over time shifts"), "CC..C.S..C.."},
      {Edit::kPick, Message::tr("Edit picks"), ".C..S.S..S.."},
      {Edit::kConfirmPicks, Message::tr("Confirm picks"), ".C.........."},
      {Edit::kAutoPick, Message::tr("AutoPick"), "CC..S.S..S.."},
      {Edit::kFilter, Message::tr("Filter"), "C..........."},
      {Edit::kGeometry, Message::tr("Geometry"), "..CVV.V.SS.."},
      {Edit::kRecordPairs, Message::tr("S-wave recordings"), "CCCVVCV.SS.."},
      {Edit::kSurveyedPositions, Message::tr("Surveyed positions"), "..CVV.V.CS.."},
      {Edit::kGrid, Message::tr("Grid"), "...CC......."},
      {Edit::kStartingModel, Message::tr("Define model velocity"), "...CC......."},
      {Edit::kSmoothing, Message::tr("Apply smoothing"), "...CC......."},
      {Edit::kInversion, Message::tr("Run tomography inversion"), "...CC....C.."},
      {Edit::kCertainty, Message::tr("Certainty"), "....C......."},
      {Edit::kUseRun, Message::tr("Use run"), "...CC......."},
      {Edit::kRuns, Message::tr("Inversion runs"), ".........C.."},
      {Edit::kKnownGround, Message::tr("Known ground"), "....S....SC."},
      {Edit::kRefraction, Message::tr("Refraction"), ".....CC....."},
      {Edit::kTitle, Message::tr("Set title"), ".......C...."},
      {Edit::kPalette, Message::tr("Palette"), ".......C...."},
      {Edit::kContours, Message::tr("Contour lines"), ".......C...."},
      {Edit::kMarkedIsolines, Message::tr("Marked isolines"), "...........C"},
      {Edit::kAnnotations, Message::tr("Annotations"), "...........C"},
      {Edit::kStyle, Message::tr("Apply style"), ".......C...C"},
      {Edit::kMapPosition, Message::tr("Set geographic coordinates"), "........C..."},
  };
  return table;
}

const EditRule& ruleOf(Edit edit) {
  const std::vector<EditRule>& table = editTable();
  return *std::find_if(table.begin(), table.end(),
                       [edit](const EditRule& rule) { return rule.edit == edit; });
}

}  // namespace talvesk

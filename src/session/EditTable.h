#pragma once

#include "base/Message.h"
#include "session/Parts.h"

#include <array>
#include <vector>

namespace talvesk {

/// The kinds of edits of a survey.
enum class Edit {
  kOpenShots,
  kRemoveShot,
  kImport,
  kImportSurvey,
  kShotTime,
  kMend,
  kTakeShifts,
  kPick,
  kConfirmPicks,
  kAutoPick,
  kFilter,
  kGeometry,
  kRecordPairs,
  kSurveyedPositions,
  kGrid,
  kStartingModel,
  kSmoothing,
  kInversion,
  kCertainty,
  kUseRun,
  kRuns,
  kKnownGround,
  kRefraction,
  kTitle,
  kPalette,
  kContours,
  kMarkedIsolines,
  kAnnotations,
  kStyle,
  kMapPosition
};

/// What becomes of a part by an edit.
enum class Fate : char {
  kKept = '.',      ///< nothing else will do: an edit that touches it is refused
  kChanged = 'C',   ///< may be another, that is what the edit is for
  kVoid = 'V',      ///< is forgotten
  kByGround = 'G',  ///< is forgotten where surface or ends of the line have become others
  kStale = 'S'      ///< is kept, though made from what has changed; what shows it says so
};

struct EditRule {
  Edit edit;
  Message text;       ///< for the menu: "Undo %1"
  const char* fates;  ///< of the parts in their order, one letter of Fate each; the view is kept

  Fate fate(Part part) const;
};

/// The one table of edits: docs/edits.md explains it.
const std::vector<EditRule>& editTable();
const EditRule& ruleOf(Edit edit);

}  // namespace talvesk

#pragma once

#include "base/Message.h"
#include "model/MapAxis.h"
#include "model/SurveyGeometry.h"
#include "model/SurveyedMatch.h"

#include <cstddef>
#include <limits>
#include <optional>
#include <vector>

namespace talvesk {

// What surveyed positions make of a line, and what of it looks wrong.

/// What came of a geophone or a shot.
struct SurveyedPoint {
  static constexpr std::size_t kNoRow = SurveyedMatch::kNoRow;

  bool shot = false;
  std::size_t index = 0;     ///< geophone of the line, or shot, from 0
  std::size_t row = kNoRow;  ///< of the table; none: placed between its neighbours, or left
  double across = std::numeric_limits<double>::quiet_NaN();  ///< metres, positive to the right
  Point2D before;                                            ///< NaN where not known
  Point2D after;
};

/// What a user should look at before taking surveyed positions over.
enum class SurveyedFault {
  kRowUnused,    ///< rows of no geophone or shot
  kRowTwice,     ///< rows of a geophone or shot that has one already
  kBetween,      ///< without a row, placed between neighbours
  kLeft,         ///< without a row, left where they are
  kNoElevation,  ///< rows without one, where others have
  kFarAcross,    ///< farther from the line than half the spacing of geophones
  kDoubled,      ///< geophones nearer to the next one than a tenth of the spacing
  kRunsBack,     ///< geophones that come before the one before them
  kGap           ///< geophones as far from the next one as they should not be
};

struct SurveyedFinding {
  SurveyedFault fault = SurveyedFault::kRowUnused;
  std::vector<std::size_t> points;  ///< of the outcome
  std::vector<std::size_t> rows;    ///< of the table, where it is about those
};

struct SurveyedOutcome {
  std::vector<SurveyedPoint> points;  ///< geophones of the line in their order, then shots
  SurveyGeometry geometry;            ///< with the positions that they would have
  std::optional<MapCourse> map;       ///< none without the code of a system
  MapAxis axis;
  double rmsAcross = 0.0;  ///< of the geophones, metres
  double spacing = 0.0;    ///< median of neighbours along the line, metres
  std::vector<SurveyedFinding> findings;
};

/// Appends what is doubtful about where the points came to stand.
/// \param places on the map, of each point of the outcome that has a row
void findDoubtful(const std::vector<MapPoint>& places, LineShape shape, SurveyedOutcome& outcome);

/// In words for users: "geophones 3, 7-9 stand ...".
Message describe(const SurveyedFinding& finding, const SurveyedOutcome& outcome,
                 const std::vector<SurveyedRow>& rows);

}  // namespace talvesk

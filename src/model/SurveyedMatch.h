#pragma once

#include "model/MapCourse.h"
#include "model/SurveyGeometry.h"

#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace talvesk {

// Which geophone or shot of a survey a place belongs to that was surveyed.

enum class SurveyedKind {
  kStation,  ///< the table does not say what stands there
  kGeophone,
  kShot
};

/// One place that was surveyed.
struct SurveyedRow {
  std::size_t line = 0;  ///< of the table, from 1
  std::string name;      ///< as the table has it; may be empty
  SurveyedKind kind = SurveyedKind::kStation;
  std::optional<double> number;  ///< what its name counts, or its distance
  MapPoint place;                ///< finite
  double elevation = std::numeric_limits<double>::quiet_NaN();  ///< metres; NaN: not surveyed
};

/// What tells which geophone or shot a row belongs to.
enum class StationsBy {
  kNumber,   ///< geophones and shots from 1 on; rows of no kind are geophones, unless others are
             ///< said to be
  kOrder,    ///< the first row of geophones is the first geophone; rows of no kind are geophones
  kDistance  ///< where geophones and shots stand along the line so far; rows of no kind are both
};

/// The geophones of the line: those of all strings, of which some may share a place. In the order
/// of the channels where there is one string, else along the line.
struct LineStation {
  std::vector<std::pair<std::size_t, std::size_t>> geophones;  ///< string and channel, from 0
  Point2D place;                                               ///< as it is now
};
std::vector<LineStation> stationsOf(const SurveyGeometry& geometry);

/// By what the rows fit a survey best.
StationsBy proposeStations(const std::vector<SurveyedRow>& rows, const SurveyGeometry& geometry);

/// Which rows of a table are those of which geophones and shots.
struct SurveyedMatch {
  static constexpr std::size_t kNoRow = static_cast<std::size_t>(-1);

  std::vector<std::size_t> rowOfStation;  ///< kNoRow for those without
  std::vector<std::size_t> rowOfShot;
  std::vector<std::size_t> unused;  ///< rows of none
  std::vector<std::size_t> twice;   ///< rows of those that have one before in the table

  std::size_t stationCount() const;  ///< with a row
};

SurveyedMatch matchRows(const std::vector<SurveyedRow>& rows, StationsBy by,
                        const std::vector<LineStation>& stations,
                        const std::vector<GeometryShot>& shots);

}  // namespace talvesk

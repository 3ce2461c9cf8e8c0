#pragma once

#include "base/Point2D.h"
#include "model/MapCourse.h"

#include <vector>

// docs/vocabulary.md explains the names.

namespace talvesk {

/// Where the geophones of a survey stand, and where the line goes on the map. Where its shots stand
/// is in their travel-time records.
struct SurveyLine {
  std::vector<std::vector<Point2D>> goephonesStringSet;  ///< geophones in channel order, per string
  std::vector<double> shotPositions;                     ///< source abscissa per file, metres
  MapCourse course;                                      ///< holds with its map position only
};

}  // namespace talvesk

#pragma once

#include "base/Status.h"
#include "grid/GridGeometry.h"
#include "model/LeftOut.h"
#include "tomo/GridSetup.h"

#include <optional>

namespace talvesk {

/// What a grid would be, before it is built.
struct GridPreview {
  GridSize size;
  double cells = 0.0;
  double nodes = 0.0;
  double bytes = 0.0;  ///< estimated, the ray searches that run at once included
  /// Positions of geophones and shots that the last column does not reach, since only whole cells
  /// fit below the array.
  int outside = 0;
  LeftOut left;   ///< what an inversion would leave out of the survey, mostly for that reason
  Status status;  ///< why it cannot be built, if so
};

/// \param profile of the survey \param searches how many ray searches run at once
GridPreview previewGrid(const TomoDocument& survey, const SurveyProfile& profile,
                        const GridSettings& settings, unsigned searches);

/// Cell sizes next to a given one, metres.
struct NearestSizes {
  std::optional<double> smaller;
  std::optional<double> larger;
};

/// The nearest cell sizes, in whole millimetres, with which the columns reach every position of the
/// survey.
NearestSizes reachingCellSizes(const SurveyProfile& profile, const GridSettings& settings);

}  // namespace talvesk

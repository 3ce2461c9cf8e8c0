#pragma once

#include "base/Status.h"
#include "grid/GridGeometry.h"
#include "tomo/GridSetup.h"

namespace talvesk {

/// What a grid would be, before it is built.
struct GridPreview {
  GridSize size;
  double cells = 0.0;
  double nodes = 0.0;
  double bytes = 0.0;  ///< estimated, the ray searches that run at once included
  /// Positions of geophones and shots that the last column does not reach, since only whole cells
  /// fit below the array. An inversion leaves them out.
  int outside = 0;
  Status status;  ///< why it cannot be built, if so
};

/// \param searches how many ray searches run at once
GridPreview previewGrid(const SurveyProfile& profile, const GridSettings& settings,
                        unsigned searches);

}  // namespace talvesk

#pragma once

#include "base/Point2D.h"

namespace talvesk {

/// What lies between two points of a section, whatever its vertical exaggeration.
struct SectionMeasure {
  double distance = 0.0;    ///< metres, straight
  double horizontal = 0.0;  ///< metres along the line, never negative
  double vertical = 0.0;    ///< metres, positive upward from the first to the second
  double slope = 0.0;       ///< degrees from the level, -90 to 90, positive upward; 0 for one point
};

SectionMeasure measureSection(const Point2D& from, const Point2D& to);

}  // namespace talvesk

#pragma once

#include "base/Point2D.h"
#include "numerics/Splines.h"

#include <vector>

namespace talvesk {

/// Metres either way; a position beyond is no place of a survey line on this globe.
inline constexpr double kLargestCoordinate = 1e8;

/// The survey as the grid sees it: the known points of the surface, and the numbers that size and
/// place a grid under them.
struct SurveyProfile {
  std::vector<double> x;          ///< survey positions, ascending, each once; metres
  std::vector<double> elevation;  ///< metres, parallel to x
  double minSpacing = 0.0;        ///< smallest non-zero distance of neighbours in a string; 0: none
  double minX = 0.0;
  double maxX = 0.0;
  double xOffset = 0.0;           ///< added to survey x: the leftmost point sits at 1.0 m
  double arrayLength = 0.0;       ///< metres, with one metre of margin at each end
  double proposedCellSize = 0.0;  ///< a quarter of the smallest spacing, to the centimetre

  /// At least two geophones with different positions; without them no grid can be built.
  bool hasGeometry() const { return minSpacing > 0.0; }
  /// No position is beyond kLargestCoordinate. Picks can be made anywhere, but no grid be built.
  bool isOnGlobe() const;

  /// The surface: elevation over grid x (survey x plus xOffset), through every survey point.
  Splines::LinearSpline surface() const;
};

/// \param strings geophone strings in channel order; \param shots source positions
SurveyProfile measureSurvey(const std::vector<std::vector<Point2D>>& strings,
                            const std::vector<Point2D>& shots);

}  // namespace talvesk

#pragma once

#include "view/ContourLines.h"

#include <cstddef>
#include <vector>

namespace talvesk {

/// The drawn cells cut along contour levels. Band k holds the values from level k - 1 up to level
/// k; band 0 is all below the first level, the last band all from the last level on. Most cells lie
/// in one band whole; only the others are cut into pieces.
struct ContourBands {
  static constexpr int kBlank = -1;  ///< the cell is not drawn, or a corner of it has no value
  static constexpr int kCut = -2;    ///< the cell lies in several bands: see pieces

  std::vector<int> cellBand;  ///< per cell: its band, kBlank or kCut

  /// A convex part of a cut cell: `pointCount` of `points` from `firstPoint` on.
  struct Piece {
    int band = 0;
    std::size_t firstPoint = 0;
    std::size_t pointCount = 0;
  };
  std::vector<Piece> pieces;
  std::vector<Point2D> points;
};

/// Cuts along the lines that contourLines() draws for the same values, so that lines run along the
/// edges of bands; but where a cell is a saddle, the line is straight and the edge bends a little.
/// \param cornerValues one per corner; \param levels ascending, finite, each once
ContourBands contourBands(const SectionMesh& mesh, const std::vector<double>& cornerValues,
                          const std::vector<double>& levels);

}  // namespace talvesk

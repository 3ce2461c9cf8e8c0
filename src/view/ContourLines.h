#pragma once

#include "base/Point2D.h"
#include "view/ColorPalette.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace talvesk {

/// The cells of a section as quadrilaterals that share their corners: `rows` by `columns` of them,
/// row 0 at the surface. Corners in rows of columns + 1, left to right, top row first; survey
/// coordinates, elevation upward.
struct SectionMesh {
  std::uint32_t rows = 0;
  std::uint32_t columns = 0;
  std::vector<Point2D> corners;     ///< (rows + 1) * (columns + 1)
  std::vector<std::uint8_t> drawn;  ///< rows * columns, not 0 where the cell is shown

  std::size_t cell(std::uint32_t row, std::uint32_t column) const {
    return std::size_t{row} * columns + column;
  }
  /// \param line 0 .. rows; \param column 0 .. columns
  std::size_t corner(std::uint32_t line, std::uint32_t column) const {
    return std::size_t{line} * (columns + 1) + column;
  }
  bool isDrawn(std::uint32_t row, std::uint32_t column) const {
    return drawn[cell(row, column)] != 0;
  }
};

/// The mean of the cells that meet in a corner, counting those that are drawn and whose value is a
/// finite number; not a number where there is none.
std::vector<double> cornerMeans(const SectionMesh& mesh, const std::vector<double>& cellValues);

/// An iso-line in one piece.
struct ContourLine {
  double value = 0.0;
  bool closed = false;          ///< the last point joins the first (and is not repeated)
  std::vector<Point2D> points;  ///< at least two
};

/// Iso-lines through the drawn cells, by marching squares with linear interpolation along the
/// sides; where a side pair is ambiguous, the mean of the corners decides. Lines end at cells that
/// are not drawn and at corners whose value is not a number. Sorted by level as given, then by
/// place.
/// \param cornerValues one per corner
/// \param levels those that are not a number are left out
std::vector<ContourLine> contourLines(const SectionMesh& mesh,
                                      const std::vector<double>& cornerValues,
                                      const std::vector<double>& levels);

/// The multiples of a round step (1, 2 or 5 times a power of ten) that lie within a range, its ends
/// included: at most `most`, ascending; none for a range that is empty or not finite.
std::vector<double> roundValues(const ValueRange& range, int most);

/// The same, round in the unit that the values are shown in. \param unit as shownUnit() takes it
std::vector<double> shownRoundValues(const ValueRange& range, int most, const std::string& unit);

/// The n values that divide a range into n + 1 equal parts; none for an n below 1 or an empty
/// range.
std::vector<double> equallySpacedValues(const ValueRange& range, int n);

}  // namespace talvesk

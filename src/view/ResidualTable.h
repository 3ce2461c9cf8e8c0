#pragma once

#include <cstddef>
#include <limits>
#include <optional>
#include <vector>

namespace talvesk {

class TomoDocument;
struct CellValues;

/// What residuals are told in.
enum class ResidualUnit {
  kMilliseconds,
  kErrors  ///< of each pick
};

/// A pick beside the time through the section.
struct PickResidual {
  std::size_t record = 0;    ///< from 0
  std::size_t receiver = 0;  ///< trace of the record, from 0
  std::size_t column = 0;    ///< place of its geophone in ResidualTable::columns
  double offset = 0.0;       ///< distance of shot and geophone along the line, metres; NaN: unknown
  double measured = 0.0;     ///< seconds
  double residual = 0.0;     ///< computed, with the time shift of the shot, minus measured; seconds
  double sigma = 0.0;        ///< error of the pick, seconds, positive
  bool suspect = false;      ///< the section cannot explain it, see chiSquareOf()

  double computed() const { return measured + residual; }
  double value(ResidualUnit unit) const {
    return unit == ResidualUnit::kErrors ? residual / sigma : 1e3 * residual;
  }
};

/// A geophone, of whatever string: geophones of one place are one, as long as they do not belong to
/// the same string.
struct ResidualColumn {
  double x = 0.0;  ///< metres along the line; infinite where that is not known
  bool standsOut = false;
};

struct ResidualRow {
  std::size_t record = 0;
  double x = 0.0;  ///< of the shot, metres along the line
  bool standsOut = false;
};

/// Median and spread of some residuals, in the unit that was asked for.
struct ResidualSpread {
  double at = 0.0;  ///< what they have in common: see the functions
  std::size_t count = 0;
  double median = 0.0;
  double low = 0.0;  ///< 16 of 100 lie below: one standard deviation, where they are normal
  double high = 0.0;
  bool standsOut = false;
  std::size_t worst = 0;  ///< pick of the table that is furthest off by its error
};

/// How the section of a document explains its picks, pick by pick.
struct ResidualTable {
  bool known = false;         ///< there is a section with times of its own
  bool shifted = false;       ///< time shifts of shots that nobody has taken over yet are counted
  bool picksChanged = false;  ///< since the section was inverted
  std::vector<PickResidual> picks;      ///< in the order of the records
  std::vector<ResidualRow> rows;        ///< all shots, along the line
  std::vector<ResidualColumn> columns;  ///< all geophones, along the line

  static constexpr std::size_t kNone = std::numeric_limits<std::size_t>::max();
  std::vector<std::size_t> cells;  ///< row by row, index of the pick or kNone
  std::size_t pickAt(std::size_t row, std::size_t column) const {
    return cells[row * columns.size() + column];
  }
  std::size_t rowOf(std::size_t record) const;
  /// kNone without such a pick.
  std::size_t pickOf(std::size_t record, std::size_t receiver) const;
};

/// Of the section that a document holds, by sectionResidualsOf(): the figures that its misfit is
/// made of.
ResidualTable residualTableOf(const TomoDocument& document);

/// Per shot that has picks with a computed time, in the order of the records; `at` is the number of
/// the shot, from 1.
std::vector<ResidualSpread> spreadOfShots(const ResidualTable& table, ResidualUnit unit);
/// Per geophone with such picks, along the line; `at` is its place, metres.
std::vector<ResidualSpread> spreadOfGeophones(const ResidualTable& table, ResidualUnit unit);
/// Along the offset, `at`, metres: of picks that are neighbours by it.
std::vector<ResidualSpread> spreadOverOffset(const ResidualTable& table, ResidualUnit unit);

/// Mean residual of the rays through each cell, by their lengths in it, suspect picks left out; not
/// a number where there is none. None where the rays are not those of the picks as they are.
std::optional<CellValues> residualsAlongRays(const TomoDocument& document,
                                             const ResidualTable& table, ResidualUnit unit);

/// A round number that nearly all sizes of the values are below, and not below one error, or half a
/// millisecond. \param values those that are not numbers do not count
double residualLimit(const std::vector<double>& values, ResidualUnit unit);

}  // namespace talvesk

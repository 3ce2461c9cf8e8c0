#pragma once

#include "base/TextNumber.h"
#include "io/TextCursor.h"

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace talvesk {

/// A column as the heading of a table tells it.
struct TableColumn {
  std::string name;       ///< lower case, plain letters and digits, without its unit: "shotx"
  std::string unit;       ///< lower case, a known one; empty where none is told
  std::string_view told;  ///< as the file has it
};

/// How many of a unit of headings ("m", "ft", "ms", "sec") make one; 0 for no such unit.
double unitsPerMetre(std::string_view unit);
double unitsPerSecond(std::string_view unit);

/// A table whose first row names its columns, as spreadsheets and scripts write it: fields are
/// separated by tabs, semicolons, commas or blanks, whichever of these the heading has first in
/// this order; they may stand in quotes; lines may have any length. Rows without text and rows that
/// begin with "#" are passed over. Reads through a cursor, whose line is that of the last row.
class HeadedTable {
 public:
  using Columns = std::vector<TableColumn>;
  static constexpr std::size_t kNone = static_cast<std::size_t>(-1);

  /// \param separator that somebody says it has, tab, ';', ',' or ' '; 0: as told above
  explicit HeadedTable(TextCursor& text, char separator = 0) : mText(text), mGiven(separator) {}

  /// Looks among the first lines for the heading: the first one whose columns are accepted. A "#"
  /// in front of it is none of its words. False when none is; the cursor stands behind the lines
  /// that were looked at.
  bool findHeading(const std::function<bool(const Columns&)>& accepts);

  /// For a table without a heading: as many columns without names as its first row has fields.
  /// False when there is no row. There decimal commas may stand between blanks, behind a name.
  bool startAtFirstRow();

  const Columns& columns() const { return mColumns; }
  std::size_t linesAbove() const { return mLinesAbove; }  ///< with text, above the heading

  /// The fields of the next row without their quotes, no more than there are columns.
  bool nextRow(std::vector<std::string_view>& fields);

  /// The field as a number, with a decimal comma unless commas separate the fields.
  NumberError number(std::string_view field, double& value) const;

 private:
  void split(std::string_view line, std::size_t most, std::vector<std::string_view>& fields) const;

  TextCursor& mText;
  Columns mColumns;
  char mGiven;
  char mSeparator = '\t';
  std::size_t mLinesAbove = 0;
};

/// The first column that has one of these names; HeadedTable::kNone if none has.
std::size_t columnNamed(const HeadedTable::Columns& columns,
                        const std::vector<std::string_view>& names);
/// The same for names made of two words in either order: "shot" and "x" for "shotx" and "xshot".
std::size_t columnNamed(const HeadedTable::Columns& columns,
                        const std::vector<std::string_view>& words,
                        const std::vector<std::string_view>& others);

}  // namespace talvesk

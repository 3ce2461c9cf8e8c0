#pragma once

#include "base/Status.h"
#include "io/SurveyedNames.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace talvesk {

/// What was read of a table.
struct SurveyedReading {
  std::vector<SurveyedRow> rows;
  std::int32_t epsg = 0;             ///< of easting and northing; 0 where nobody said
  std::vector<std::size_t> without;  ///< lines, from 1, whose fields of the position are empty
};

/// A table of positions as surveyed: a name or number for every geophone and shot with its easting,
/// northing and elevation, or longitude and latitude. Fields are separated as in a HeadedTable;
/// lengths are metres unless the heading says otherwise.
///
/// What is a shot stands in a column of kinds ("shot", "S", "geophone", "R", in the languages of
/// the program) or in the name: "S3", "Shot 3", "SP3" are shots, "G12", "R12" geophones. Of a name
/// the last number counts.
class SurveyedTable {
 public:
  static constexpr std::size_t kMostRows = 20000;

  /// Fails for a file that cannot be read or holds no row, with `table` as it was.
  static Status open(const std::string& path, SurveyedTable& table);
  /// The same of the bytes of a file, in any encoding of tableText(); `name` stands in messages.
  static Status parse(std::string_view bytes, std::string name, SurveyedTable& table);

  /// Says what separates the fields: tab, ';', ',' or ' '; 0 leaves it to the table.
  void separateBy(char separator);

  /// Names of the columns; empty texts where the table has no heading.
  const std::vector<std::string>& columns() const { return mColumns; }
  /// Fields of the first rows below the heading, as many as columns, cut where they are long.
  std::vector<std::vector<std::string>> firstRows(std::size_t most) const;
  /// By the names of the columns in several languages or, where these say nothing and there are
  /// three columns or more, by their order: a name, unless there are three, then east, north and
  /// elevation.
  const SurveyedColumns& proposed() const { return mProposed; }

  /// Reads all rows. Longitude and latitude are projected.
  /// \param epsg code of the system of easting and northing, or that to project into; 0: none, or
  /// the UTM zone of the first place
  /// \return failure that names the line, `reading` as it was, for a field that is no number or no
  /// place, a system that cannot be used, and more rows than kMostRows
  Status read(const SurveyedColumns& columns, std::int32_t epsg, SurveyedReading& reading) const;

 private:
  void look();

  std::string mName;
  std::string mText;
  char mSeparator = 0;
  std::vector<std::string> mColumns;
  SurveyedColumns mProposed;
};

}  // namespace talvesk

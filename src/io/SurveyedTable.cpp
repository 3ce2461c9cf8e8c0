#include "io/SurveyedTable.h"

#include "base/AtomicFile.h"
#include "base/PlainText.h"
#include "base/TableText.h"
#include "io/AngleText.h"
#include "io/PositionColumns.h"
#include "model/GeoTransformer.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

namespace talvesk {
namespace {

/// Far beyond the table of any line: one of 20 000 rows has 2 MB.
constexpr std::size_t kLargestFile = std::size_t{16} << 20;
constexpr std::size_t kLongestShown = 80;  ///< bytes of a field
constexpr std::size_t kNone = SurveyedColumns::kNone;
constexpr std::size_t kRowsLookedAt = 20;

using Fields = std::vector<std::string_view>;

std::string_view fieldAt(const Fields& fields, std::size_t column) {
  return column < fields.size() ? fields[column] : std::string_view{};
}

std::string shown(std::string_view text) {
  return beginningOf(withoutControls(std::string(text.substr(0, kLongestShown))), kLongestShown);
}

bool hasBoth(const HeadedTable::Columns& columns) {
  return namedColumns(columns).complete();
}

/// Finds the first row, behind a heading if there is one. A heading of words that are not known
/// names columns all the same.
bool begin(HeadedTable& table, TextCursor& cursor, std::string_view text, Fields& names) {
  names.clear();
  if (table.findHeading(hasBoth)) {
    for (const TableColumn& column : table.columns()) names.push_back(column.told);
    return true;
  }
  cursor = TextCursor(text);
  if (!table.startAtFirstRow()) return false;
  TextCursor ahead = cursor;
  Fields fields;
  if (!table.nextRow(fields)) return false;
  if (isHeading(fields)) {
    names = fields;
  } else {
    cursor = ahead;
  }
  names.resize(table.columns().size());
  return true;
}

/// Which columns hold nothing but numbers in the rows.
std::vector<std::size_t> numericColumns(const HeadedTable& table, const std::vector<Fields>& rows) {
  std::vector<std::size_t> numeric;
  for (std::size_t c = 0; c < table.columns().size(); ++c) {
    double ignored = 0.0;
    const bool numbers = std::all_of(rows.begin(), rows.end(), [&](const Fields& fields) {
      return table.number(fieldAt(fields, c), ignored) == NumberError::kNone;
    });
    if (numbers && !rows.empty()) numeric.push_back(c);
  }
  return numeric;
}

/// By the order of the columns: [name] east north [elevation].
SurveyedColumns orderedColumns(const HeadedTable& table, const std::vector<Fields>& rows) {
  SurveyedColumns columns;
  std::vector<std::size_t> numeric = numericColumns(table, rows);
  if (numeric.size() < 2) return columns;
  if (numeric.front() > 0) {
    columns.station = 0;
  } else if (numeric.size() > 3) {
    columns.station = 0;
    numeric.erase(numeric.begin());
  }
  columns.east = numeric[0];
  columns.north = numeric[1];
  if (numeric.size() > 2) columns.elevation = numeric[2];
  return columns;
}

/// One row after the other into places.
class RowReader {
 public:
  RowReader(const HeadedTable& table, const SurveyedColumns& columns, const GeoTransformer* globe)
      : mTable(table), mColumns(columns), mGlobe(globe) {}

  /// False where the position is empty.
  bool hasPlace(const Fields& fields) const {
    return !fieldAt(fields, mColumns.east).empty() || !fieldAt(fields, mColumns.north).empty();
  }

  Status read(const Fields& fields, SurveyedRow& row) const {
    const std::string_view name = fieldAt(fields, mColumns.station);
    row.name = shown(name);
    nameStation(name, mTable, row);
    if (const SurveyedKind kind = kindOf(fieldAt(fields, mColumns.kind));
        kind != SurveyedKind::kStation) {
      row.kind = kind;
    }
    Status status = mColumns.degrees ? readAngles(fields, row) : readPlace(fields, row);
    if (!status.ok() || fieldAt(fields, mColumns.elevation).empty()) return status;
    return metres(mColumns.elevation, fields, row.elevation);
  }

  Status readGlobe(const Fields& fields, LonLat& place) const {
    const std::tuple<std::size_t, GlobeAngle, double*> angles[] = {
        {mColumns.east, GlobeAngle::kLongitude, &place.longitude},
        {mColumns.north, GlobeAngle::kLatitude, &place.latitude}};
    for (const auto& [column, angle, degrees] : angles) {
      const NumberError error = parseAngle(fieldAt(fields, column), angle, *degrees);
      if (error == NumberError::kNone) continue;
      return Status::failure(complaintAbout(mTable, column, fields, error));
    }
    return {};
  }

 private:
  Status metres(std::size_t column, const Fields& fields, double& value) const {
    const NumberError error = readMetres(mTable, column, fields, value);
    if (error == NumberError::kNone) return {};
    return Status::failure(complaintAbout(mTable, column, fields, error));
  }
  Status readPlace(const Fields& fields, SurveyedRow& row) const {
    Status status = metres(mColumns.east, fields, row.place.easting);
    return status.ok() ? metres(mColumns.north, fields, row.place.northing) : status;
  }
  Status readAngles(const Fields& fields, SurveyedRow& row) const {
    LonLat place;
    Status status = readGlobe(fields, place);
    if (status.ok() && !mGlobe->project(place, row.place)) {
      return Status::failure(Message::tr("the place lies outside of %1").arg(mGlobe->systemName()));
    }
    return status;
  }

  const HeadedTable& mTable;
  const SurveyedColumns& mColumns;
  const GeoTransformer* mGlobe;
};

}  // namespace

Status SurveyedTable::open(const std::string& path, SurveyedTable& table) {
  std::string bytes;
  Status status = readWholeFile(path, bytes, kLargestFile);
  return status.ok() ? parse(bytes, path, table) : status;
}

Status SurveyedTable::parse(std::string_view bytes, std::string name, SurveyedTable& table) {
  SurveyedTable read;
  read.mName = std::move(name);
  read.mText = tableText(bytes);
  read.look();
  if (read.mColumns.empty()) return Status::failure(joined(read.mName, Message::tr("it is empty")));
  table = std::move(read);
  return {};
}

void SurveyedTable::separateBy(char separator) {
  mSeparator = separator;
  look();
}

void SurveyedTable::look() {
  mColumns.clear();
  mProposed = {};
  TextCursor cursor(mText);
  HeadedTable table(cursor, mSeparator);
  Fields names;
  if (!begin(table, cursor, mText, names)) return;
  for (const std::string_view name : names) mColumns.push_back(shown(name));
  mProposed = namedColumns(table.columns());
  const bool named = mProposed.east != kNone || mProposed.north != kNone ||
                     mProposed.elevation != kNone || mColumns.size() < 3;
  if (named) return;
  std::vector<Fields> rows;
  for (Fields fields; rows.size() < kRowsLookedAt && table.nextRow(fields);) rows.push_back(fields);
  mProposed = orderedColumns(table, rows);
}

std::vector<std::vector<std::string>> SurveyedTable::firstRows(std::size_t most) const {
  std::vector<std::vector<std::string>> rows;
  TextCursor cursor(mText);
  HeadedTable table(cursor, mSeparator);
  Fields fields;
  if (!begin(table, cursor, mText, fields)) return rows;
  while (rows.size() < most && table.nextRow(fields)) {
    auto& row = rows.emplace_back();
    for (std::size_t c = 0; c < mColumns.size(); ++c) row.push_back(shown(fieldAt(fields, c)));
  }
  return rows;
}

Status SurveyedTable::read(const SurveyedColumns& columns, std::int32_t epsg,
                           SurveyedReading& reading) const {
  const bool there = columns.east < mColumns.size() && columns.north < mColumns.size();
  if (!columns.complete() || !there) {
    return Status::failure(joined(
        mName, Message::tr("it is not known which columns hold easting and northing, or longitude "
                           "and latitude")));
  }
  TextCursor cursor(mText);
  HeadedTable table(cursor, mSeparator);
  Fields fields;
  begin(table, cursor, mText, fields);
  SurveyedReading read;
  std::optional<GeoTransformer> globe;
  const auto open = [&](std::int32_t code) {
    read.epsg = code;
    return globe.emplace(code).status();
  };
  if (epsg > 0) {
    if (Status status = open(epsg); !status.ok()) return status;
  }
  const auto at = [&](const Status& status) {
    return Status::failure(
        Message::tr("%1, line %2: %3").arg(mName).arg(cursor.line()).arg(status.text()));
  };
  while (table.nextRow(fields)) {
    if (!RowReader(table, columns, nullptr).hasPlace(fields)) {
      read.without.push_back(cursor.line());
      continue;
    }
    if (columns.degrees && !globe) {
      LonLat first;
      Status status = RowReader(table, columns, nullptr).readGlobe(fields, first);
      if (status.ok()) status = open(utmSystemOf(first));
      if (!status.ok()) return at(status);
    }
    SurveyedRow row;
    row.line = cursor.line();
    const Status status = RowReader(table, columns, globe ? &*globe : nullptr).read(fields, row);
    if (!status.ok()) return at(status);
    if (read.rows.size() == kMostRows) {
      return Status::failure(Message::tr("%1 has more than %2 rows, which is no table of a line")
                                 .arg(mName)
                                 .arg(kMostRows));
    }
    read.rows.push_back(std::move(row));
  }
  if (read.rows.empty()) return Status::failure(joined(mName, Message::tr("it holds no point")));
  reading = std::move(read);
  return {};
}

}  // namespace talvesk

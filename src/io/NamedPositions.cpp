#include "io/NamedPositions.h"

#include "base/AtomicFile.h"
#include "io/PositionColumns.h"

#include <algorithm>
#include <utility>

namespace talvesk {
namespace {

constexpr std::size_t kNone = HeadedTable::kNone;
constexpr std::size_t kLargestFile = std::size_t{2} << 20;  ///< as of GeometryFile.h

struct Layout {
  std::size_t distance = kNone;
  std::size_t elevation = kNone;
  std::size_t kind = kNone;
  std::size_t string = kNone;
};

Layout layoutOf(const HeadedTable::Columns& columns, PositionsOf what) {
  const columnNames::Names& side =
      what == PositionsOf::kShots ? columnNames::kShot : columnNames::kGeophone;
  Layout layout;
  layout.distance = columnNamed(columns, side, columnNames::kAlong);
  if (layout.distance == kNone) layout.distance = columnNamed(columns, columnNames::kAlong);
  layout.elevation = columnNamed(columns, side, columnNames::kUp);
  if (layout.elevation == kNone) layout.elevation = columnNamed(columns, columnNames::kUp);
  layout.kind = columnNamed(columns, {"kind", "type"});
  layout.string = columnNamed(columns, {"string", "spread"});
  return layout;
}

bool findHeading(HeadedTable& table, PositionsOf what) {
  return table.findHeading([what](const HeadedTable::Columns& columns) {
    const Layout layout = layoutOf(columns, what);
    return layout.distance != kNone && layout.elevation != kNone;
  });
}

bool isOfKind(std::string_view kind, PositionsOf what) {
  const char first = kind.empty() ? ' ' : static_cast<char>(kind.front() | 0x20);
  return what == PositionsOf::kShots ? first == 's' : first == 'g' || first == 'r';
}

bool isWanted(const Layout& layout, const std::vector<std::string_view>& fields,
              const WantedPositions& wanted, const HeadedTable& table) {
  const auto fieldAt = [&](std::size_t column) {
    return column < fields.size() ? fields[column] : std::string_view{};
  };
  if (layout.kind != kNone && !isOfKind(fieldAt(layout.kind), wanted.what)) return false;
  if (layout.string == kNone || wanted.what == PositionsOf::kShots) return true;
  double number = 0.0;
  return table.number(fieldAt(layout.string), number) == NumberError::kNone &&
         number == static_cast<double>(wanted.string + 1);
}

/// Whether the heading says that the first two fields, after the label of a shot, are others.
bool namesOtherColumns(std::string_view bytes, PositionsOf what) {
  const std::string text = tableText(bytes);
  TextCursor cursor(text);
  HeadedTable table(cursor);
  if (!findHeading(table, what)) return false;
  const Layout layout = layoutOf(table.columns(), what);
  const std::size_t first = what == PositionsOf::kShots ? 1 : 0;
  return layout.kind != kNone || layout.string != kNone || layout.distance != first ||
         layout.elevation != first + 1;
}

}  // namespace

Status parseNamedPositions(std::string_view bytes, const std::string& name,
                           const WantedPositions& wanted, PositionTable& table) {
  const std::string text = tableText(bytes);
  TextCursor cursor(text);
  HeadedTable rows(cursor);
  if (!findHeading(rows, wanted.what)) {
    return Status::failure(
        joined(name, Message::tr("no heading names a column for the distance and one for the "
                                 "elevation")));
  }
  const Layout layout = layoutOf(rows.columns(), wanted.what);
  PositionTable read;
  std::vector<std::string_view> fields;
  while (rows.nextRow(fields)) {
    if (!isWanted(layout, fields, wanted, rows)) continue;
    std::vector<double>& record = read.records.emplace_back(2, 0.0);
    for (const auto& [column, place] : {std::pair{layout.distance, 0}, {layout.elevation, 1}}) {
      const NumberError error = readMetres(rows, column, fields, record[place]);
      if (error == NumberError::kNone) continue;
      return Status::failure(Message::tr("%1, line %2: %3")
                                 .arg(name)
                                 .arg(cursor.line())
                                 .arg(complaintAbout(rows, column, fields, error)));
    }
  }
  table = std::move(read);
  return {};
}

Status readPositions(const std::string& path, const std::string& separator,
                     const WantedPositions& wanted, PositionTable& table, bool& byName) {
  byName = false;
  std::string bytes;
  if (Status opened = readWholeFile(path, bytes, kLargestFile); !opened.ok()) return opened;
  Status status = parseRecords(bytes, path, separator, wanted.what == PositionsOf::kShots, table);
  std::vector<Point2D> ignored;
  const bool fits =
      status.ok() && table.records.size() == wanted.count && positionsOf(table, ignored).ok();
  if (fits && !namesOtherColumns(bytes, wanted.what)) return status;
  PositionTable named;
  if (!parseNamedPositions(bytes, path, wanted, named).ok() ||
      named.records.size() != wanted.count) {
    return status;
  }
  table = std::move(named);
  byName = true;
  return {};
}

}  // namespace talvesk

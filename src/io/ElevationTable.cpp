#include "io/ElevationTable.h"

#include "base/AtomicFile.h"
#include "base/TableText.h"
#include "io/PositionColumns.h"

#include <utility>

namespace talvesk {
namespace {

/// A profile of a laser scanner has a point per decimetre.
constexpr std::size_t kLargestFile = std::size_t{64} << 20;
constexpr std::size_t kNone = HeadedTable::kNone;

struct Layout {
  std::size_t distance = kNone;
  std::size_t elevation = kNone;

  bool complete() const { return distance != kNone && elevation != kNone; }
};

Layout layoutOf(const HeadedTable::Columns& columns) {
  return {columnNamed(columns, columnNames::kAlong), columnNamed(columns, columnNames::kUp)};
}

bool isHeading(const HeadedTable::Columns& columns) {
  return layoutOf(columns).complete();
}

/// The columns by their names, or of a table without them the only two.
Status findColumns(const std::string& text, TextCursor& cursor, HeadedTable& table,
                   Layout& layout) {
  if (table.findHeading(isHeading)) {
    layout = layoutOf(table.columns());
    return {};
  }
  cursor = TextCursor(text);
  if (!table.startAtFirstRow()) return Status::failure(Message::tr("it is empty"));
  if (table.columns().size() != 2) {
    return Status::failure(
        Message::tr("it has %1 columns and no heading that names one for the distance and one for "
                    "the elevation")
            .arg(table.columns().size()));
  }
  layout = {0, 1};
  return {};
}

}  // namespace

Status parseElevationTable(std::string_view bytes, const std::string& name,
                           std::vector<Point2D>& points) {
  const std::string text = tableText(bytes);
  TextCursor cursor(text);
  HeadedTable table(cursor);
  Layout layout;
  if (const Status found = findColumns(text, cursor, table, layout); !found.ok()) {
    return Status::failure(joined(name, found.text()));
  }
  std::vector<Point2D> read;
  std::vector<std::string_view> fields;
  while (table.nextRow(fields)) {
    Point2D& point = read.emplace_back();
    for (const auto& [column, value] :
         {std::pair{layout.distance, &point.x}, std::pair{layout.elevation, &point.z}}) {
      const NumberError error = readMetres(table, column, fields, *value);
      if (error == NumberError::kNone) continue;
      return Status::failure(Message::tr("%1, line %2: %3")
                                 .arg(name)
                                 .arg(cursor.line())
                                 .arg(complaintAbout(table, column, fields, error)));
    }
  }
  if (read.empty()) return Status::failure(joined(name, Message::tr("it holds no point")));
  points = std::move(read);
  return {};
}

Status readElevationTable(const std::string& path, std::vector<Point2D>& points) {
  std::string bytes;
  if (Status opened = readWholeFile(path, bytes, kLargestFile); !opened.ok()) return opened;
  return parseElevationTable(bytes, path, points);
}

}  // namespace talvesk

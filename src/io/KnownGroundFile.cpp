#include "io/KnownGroundFile.h"

#include "base/AtomicFile.h"
#include "base/PlainText.h"
#include "base/TableText.h"
#include "base/TextNumber.h"
#include "io/HeadedTable.h"
#include "model/KnownRows.h"

#include <algorithm>
#include <cmath>
#include <ostream>
#include <utility>

namespace talvesk {
namespace {

constexpr std::size_t kLargestFile = std::size_t{8} << 20;
constexpr std::size_t kNone = HeadedTable::kNone;
constexpr const char* kKind = "kind";
constexpr const char* kName = "name";

/// Of "velocity (m/s)" a heading has taken the last word for the unit.
std::string nameOf(const TableColumn& column) {
  std::string name = column.name;
  if (column.unit == "s" && !name.empty() && name.back() == 'm') name.pop_back();
  return name;
}

class Reader {
 public:
  explicit Reader(std::string_view text) : mCursor(text), mTable(mCursor) {}

  Status run(const std::string& name, KnownGround& known);

 private:
  bool isHeading(const HeadedTable::Columns& columns);
  Message heading();
  Message row();
  std::string_view field(std::size_t at) const {
    return at < mFields.size() ? mFields[at] : std::string_view();
  }

  TextCursor mCursor;
  HeadedTable mTable;
  std::vector<std::string_view> mFields;
  // Where the heading has them, in which they stand as they like
  std::size_t mKind = kNone;
  std::size_t mName = kNone;
  std::array<std::size_t, kKnownColumns.size()> mNumbers{};
  std::size_t mRows = 0;
  KnownGround mKnown;
};

bool Reader::isHeading(const HeadedTable::Columns& columns) {
  const auto place = [&](const char* name) {
    const auto found = std::find_if(columns.begin(), columns.end(), [&](const TableColumn& column) {
      return nameOf(column) == name;
    });
    return found == columns.end() ? kNone : static_cast<std::size_t>(found - columns.begin());
  };
  mKind = place(kKind);
  mName = place(kName);
  std::transform(kKnownColumns.begin(), kKnownColumns.end(), mNumbers.begin(), place);
  return mKind != kNone && mNumbers[static_cast<std::size_t>(KnownColumn::kX)] != kNone &&
         mNumbers[static_cast<std::size_t>(KnownColumn::kDepth)] != kNone;
}

Message Reader::heading() {
  const bool found = mTable.findHeading([&](const auto& columns) { return isHeading(columns); });
  if (!found || mTable.linesAbove() > 0) {
    return Message::tr(
        "it does not begin with a heading of the columns kind, name, x, depth, "
        "bottom, velocity, error, ...");
  }
  for (const TableColumn& column : mTable.columns()) {
    const std::string name = nameOf(column);
    const bool known =
        name.empty() || name == kKind || name == kName ||
        std::find(kKnownColumns.begin(), kKnownColumns.end(), name) != kKnownColumns.end();
    if (!known) {
      return Message::tr("there is no column %1").arg(quoted(std::string(column.told)));
    }
    if (!column.unit.empty() && column.unit != "m" && column.unit != "s") {
      return Message::tr("column %1 is in another unit than m and m/s")
          .arg(quoted(std::string(column.told)));
    }
  }
  return {};
}

Message Reader::row() {
  if (++mRows > KnownGround::kMostParts) return Message::tr("it has too many rows");
  KnownRow row;
  const auto kind = std::find(kKnownKinds.begin(), kKnownKinds.end(), field(mKind));
  if (kind == kKnownKinds.end()) {
    return Message::tr("%1 is none of borehole, depth, body")
        .arg(quoted(std::string(field(mKind))));
  }
  row.kind = static_cast<KnownKind>(kind - kKnownKinds.begin());
  row.name = withoutControls(std::string(field(mName)));
  for (std::size_t i = 0; i < mNumbers.size(); ++i) {
    const std::string_view text = field(mNumbers[i]);
    if (text.empty()) continue;
    const bool isNumber = parseWholeDouble(text, row.numbers[i]) == NumberError::kNone &&
                          std::isfinite(row.numbers[i]);
    if (isNumber) continue;
    return Message::tr("%1 is no number for %2")
        .arg(quoted(std::string(text)))
        .arg(kKnownColumns[i]);
  }
  return addRow(row, mKnown);
}

Status Reader::run(const std::string& name, KnownGround& known) {
  Message fault = heading();
  while (fault.empty() && mTable.nextRow(mFields)) {
    fault = row();
    if (fault.empty() && mKnown.things() > KnownGround::kMostThings) fault = faultOf(mKnown);
  }
  if (!fault.empty()) {
    return Status::failure(
        Message::tr("%1, line %2: %3").arg(name).arg(mCursor.line()).arg(std::move(fault)));
  }
  fault = faultOf(mKnown);
  if (fault.empty() && mKnown.empty()) fault = Message::tr("there is no row below its heading");
  if (!fault.empty()) return Status::failure(joined(name, std::move(fault)));
  known = std::move(mKnown);
  return {};
}

/// In quotes where it holds what separates fields. A quote cannot be told, and becomes two
/// apostrophes.
std::string fieldOf(std::string name) {
  for (std::size_t at = 0; (at = name.find('"', at)) != std::string::npos;) {
    name.replace(at, 1, "''");
  }
  const bool plain = name.find_first_of(",;\t# ") == std::string::npos;
  return plain ? name : '"' + name + '"';
}

}  // namespace

Status parseKnownGround(std::string_view bytes, const std::string& name, KnownGround& known) {
  const std::string text = tableText(bytes);
  return Reader(text).run(name, known);
}

Status readKnownGround(const std::string& path, KnownGround& known) {
  std::string text;
  if (Status opened = readWholeFile(path, text, kLargestFile); !opened.ok()) return opened;
  return parseKnownGround(text, path, known);
}

Status writeKnownGround(const std::string& path, const KnownGround& known) {
  return writeTextAtomically(path, [&](std::ostream& stream) {
    stream << kKind << ',' << kName;
    for (const char* column : kKnownColumns) stream << ',' << column;
    stream << '\n';
    for (const KnownRow& row : rowsOf(known)) {
      stream << kKnownKinds[static_cast<std::size_t>(row.kind)] << ',' << fieldOf(row.name);
      for (const double number : row.numbers) {
        stream << ',' << (std::isnan(number) ? std::string() : exactDouble(number));
      }
      stream << '\n';
    }
  });
}

}  // namespace talvesk

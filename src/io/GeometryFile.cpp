#include "io/GeometryFile.h"

#include "base/AtomicFile.h"
#include "base/TextNumber.h"
#include "io/TextCursor.h"

#include <cmath>
#include <ostream>
#include <utility>

namespace talvesk {
namespace {

constexpr std::size_t kLineLimit = 256;
constexpr std::size_t kPositionFields = 2;  ///< x and z
/// Positions of a line take kilobytes, those of as many traces as a shot file can count two
/// megabytes. A short line takes thirty times its length as a record, so more is not asked for.
constexpr std::size_t kLargestFile = std::size_t{2} << 20;

void writeFields(std::ostream& stream, const std::string& separator,
                 const std::vector<double>& record) {
  const char* between = "";
  for (const double value : record) {
    stream << between << formatDouble(value);
    between = separator.c_str();
  }
  stream << '\n';
}

/// What stands before the next separator; false when nothing is left.
bool nextField(std::string_view& rest, const std::string& separator, std::string_view& field) {
  if (rest.empty()) return false;
  const std::size_t end = separator.empty() ? std::string_view::npos : rest.find(separator);
  field = rest.substr(0, end);
  rest = end == std::string_view::npos ? std::string_view{} : rest.substr(end + separator.size());
  return true;
}

std::vector<std::string_view> fieldsOf(std::string_view line, const std::string& separator,
                                       bool labelled) {
  std::vector<std::string_view> fields;
  std::string_view field;
  if (labelled) nextField(line, separator, field);
  while (nextField(line, separator, field)) fields.push_back(field);
  return fields;
}

/// False when a number does not fit a double.
bool readFields(const std::vector<std::string_view>& fields, std::size_t line,
                PositionTable& table) {
  std::vector<double>& record = table.records.emplace_back();
  record.reserve(fields.size());
  for (const std::string_view field : fields) {
    double& value = record.emplace_back();
    const NumberError error = parseDouble(field, value);
    if (error == NumberError::kOutOfRange || !std::isfinite(value)) return false;
    const bool used = record.size() <= kPositionFields;
    if (error == NumberError::kNotANumber && used) table.remarks.addZero(line, field);
  }
  return true;
}

Status refused(const std::string& name, std::size_t line, const Message& reason) {
  return Status::failure(Message::tr("%1, line %2: %3").arg(name).arg(line).arg(reason));
}

Status readFile(const std::string& path, const std::string& separator, bool labelled,
                PositionTable& table) {
  std::string bytes;
  if (Status opened = readWholeFile(path, bytes, kLargestFile); !opened.ok()) return opened;
  return parseRecords(bytes, path, separator, labelled, table);
}

}  // namespace

std::string separatorText(const std::string& choice) {
  return choice == kBlankSeparator ? " " : choice;
}

Status writeRecords(const std::string& path, const std::string& separator,
                    const GeometryRecords& records) {
  const std::string between = separatorText(separator);
  return writeTextAtomically(path, [&](std::ostream& stream) {
    for (const auto& record : records) writeFields(stream, between, record);
  });
}

Status writeLabelledRecords(const std::string& path, const std::string& separator,
                            const std::vector<std::string>& labels,
                            const GeometryRecords& records) {
  if (labels.size() != records.size()) {
    return Status::failure(Message::tr("Cannot write %1: there are %2 labels for %3 records")
                               .arg(path)
                               .arg(labels.size())
                               .arg(records.size()));
  }
  const std::string between = separatorText(separator);
  return writeTextAtomically(path, [&](std::ostream& stream) {
    for (std::size_t i = 0; i < records.size(); ++i) {
      stream << labels[i] << between;
      writeFields(stream, between, records[i]);
    }
  });
}

Status parseRecords(std::string_view bytes, const std::string& name, const std::string& separator,
                    bool labelled, PositionTable& table) {
  const std::string between = separatorText(separator);
  const std::string text = tableText(bytes);
  PositionTable read;
  TextCursor cursor(text);
  for (std::string_view line; !cursor.atEnd() && cursor.nextLine(line);) {
    if (line.size() > kLineLimit) {
      return refused(name, cursor.line(),
                     Message::tr("the line holds more than %1 characters").arg(kLineLimit));
    }
    const std::vector<std::string_view> fields = fieldsOf(line, between, labelled);
    if (cursor.line() == 1 && isHeading(fields)) {
      read.remarks.skipHeading(line);
    } else if (!readFields(fields, cursor.line(), read)) {
      return refused(name, cursor.line(), Message::tr("a number is out of range or not finite"));
    }
  }
  while (!read.records.empty() && read.records.back().empty()) read.records.pop_back();
  table = std::move(read);
  return {};
}

Status readRecords(const std::string& path, const std::string& separator, PositionTable& table) {
  return readFile(path, separator, false, table);
}

Status readLabelledRecords(const std::string& path, const std::string& separator,
                           PositionTable& table) {
  return readFile(path, separator, true, table);
}

GeometryFileLook lookAtGeometryFile(const std::string& path) {
  GeometryFileLook look;
  std::string bytes;
  if (!readWholeFile(path, bytes, kLargestFile).ok()) return look;
  const std::string text = tableText(bytes);
  const std::string_view firstLine = std::string_view(text).substr(0, text.find('\n'));
  for (const char* separator : {";", ","}) {
    if (firstLine.find(separator) == std::string_view::npos) continue;
    look.separator = separator;
    break;
  }
  const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
  for (std::size_t i = text.find(','); i != std::string::npos; i = text.find(',', i + 1)) {
    look.decimalCommas =
        i > 0 && i + 1 < text.size() && isDigit(text[i - 1]) && isDigit(text[i + 1]);
    if (look.decimalCommas) break;
  }
  return look;
}

bool cutsNumbers(const GeometryFileLook& look, const std::string& separator) {
  return look.decimalCommas && separator != ",";
}

Status positionsOf(const PositionTable& table, std::vector<Point2D>& positions) {
  std::vector<Point2D> read;
  read.reserve(table.records.size());
  const std::size_t firstLine = table.remarks.skippedHeading ? 2 : 1;
  for (const auto& record : table.records) {
    if (record.size() < kPositionFields) {
      return Status::failure(
          Message::tr("line %1 has no x and z; check the separator").arg(firstLine + read.size()));
    }
    read.push_back({record[0], record[1]});
  }
  positions = std::move(read);
  return {};
}

std::string withCsvSuffix(std::string name) {
  constexpr std::string_view kSuffix = ".csv";
  const bool has = name.size() >= kSuffix.size() &&
                   name.compare(name.size() - kSuffix.size(), kSuffix.size(), kSuffix) == 0;
  if (!has) name += kSuffix;
  return name;
}

}  // namespace talvesk

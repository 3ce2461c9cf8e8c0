#include "base/TypedTable.h"

#include "base/TextNumber.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <utility>

namespace talvesk {
namespace {

constexpr std::string_view kBlanks = " \t\r\n\v\f";
/// More digits than any number that a person writes.
constexpr std::size_t kLongestNumber = 64;

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

/// "1,250" and "12,500,000": one to three digits, then groups of three.
bool canGroup(std::string_view text) {
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) text.remove_prefix(1);
  std::size_t digits = 0;
  bool first = true;
  for (const char c : text) {
    if (isDigit(c)) {
      ++digits;
    } else if (c == ',' && (first ? digits >= 1 && digits <= 3 : digits == 3)) {
      first = false;
      digits = 0;
    } else {
      return false;
    }
  }
  return !first && digits == 3;
}

/// Which of point and comma is the decimal mark; 0 when neither is.
char decimalMark(std::string_view text, bool decimalComma) {
  const auto points = std::count(text.begin(), text.end(), '.');
  const auto commas = std::count(text.begin(), text.end(), ',');
  if (points > 0 && commas > 0) return text.rfind('.') > text.rfind(',') ? '.' : ',';
  if (points == 1) return '.';
  if (commas == 1 && (decimalComma || !canGroup(text))) return ',';
  return '\0';
}

std::string_view unquoted(std::string_view field) {
  field = trimmed(field);
  if (field.size() >= 2 && field.front() == '"' && field.back() == '"') {
    field = trimmed(field.substr(1, field.size() - 2));
  }
  return field;
}

std::vector<std::string_view> linesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = text.find_first_of("\r\n");
    lines.push_back(text.substr(0, end));
    if (end == std::string_view::npos) break;
    const bool pair = text[end] == '\r' && end + 1 < text.size() && text[end + 1] == '\n';
    text.remove_prefix(end + (pair ? 2 : 1));
  }
  while (!lines.empty() && trimmed(lines.back()).empty()) lines.pop_back();
  return lines;
}

bool isDecimalCommaColumn(const std::vector<std::string_view>& lines) {
  return std::all_of(lines.begin(), lines.end(), [](std::string_view line) {
    return std::count(line.begin(), line.end(), ',') <= 1 &&
           line.find('.') == std::string_view::npos;
  });
}

bool anyHas(const std::vector<std::string_view>& lines, char c) {
  return std::any_of(lines.begin(), lines.end(),
                     [c](std::string_view line) { return line.find(c) != std::string_view::npos; });
}

bool anyHasInnerBlank(const std::vector<std::string_view>& lines) {
  return std::any_of(lines.begin(), lines.end(), [](std::string_view line) {
    return trimmed(line).find(' ') != std::string_view::npos;
  });
}

/// What separates the fields; 0 when every line is one field, ' ' stands for runs of blanks.
char separatorOf(const std::vector<std::string_view>& lines, bool decimalComma) {
  if (anyHas(lines, '\t')) return '\t';
  if (anyHas(lines, ';')) return ';';
  // "1, 2" is separated by the comma.
  const bool spacedCommas = std::any_of(lines.begin(), lines.end(), [](std::string_view line) {
    return line.find(", ") != std::string_view::npos;
  });
  if (anyHasInnerBlank(lines) && !spacedCommas) return ' ';
  if (!anyHas(lines, ',')) return '\0';
  return decimalComma && !spacedCommas && isDecimalCommaColumn(lines) ? '\0' : ',';
}

std::vector<std::string_view> fieldsOf(std::string_view line, char separator) {
  std::vector<std::string_view> fields;
  if (separator == ' ') {
    line = trimmed(line);
    while (!line.empty()) {
      const std::size_t end = std::min(line.find_first_of(kBlanks), line.size());
      fields.push_back(line.substr(0, end));
      line = trimmed(line.substr(end));
    }
    return fields;
  }
  for (;;) {
    const std::size_t end = separator == '\0' ? std::string_view::npos : line.find(separator);
    fields.push_back(line.substr(0, end));
    if (end == std::string_view::npos) return fields;
    line.remove_prefix(end + 1);
  }
}

}  // namespace

bool parseTyped(std::string_view text, bool decimalComma, double& value) {
  text = trimmed(text);
  if (text.empty() || text.size() > kLongestNumber) return false;
  const char mark = decimalMark(text, decimalComma);
  std::string plain;
  for (const char c : text) {
    if (c == mark) {
      plain += '.';
    } else if (isDigit(c) || c == '-' || c == '+' || c == 'e' || c == 'E') {
      plain += c;
    } else if (c != '.' && c != ',') {
      return false;  // words, "inf" and "nan" among them
    }
  }
  double read = 0.0;
  if (parseWholeDouble(plain, read) != NumberError::kNone || !std::isfinite(read)) return false;
  value = read;
  return true;
}

Status parseTypedTable(std::string_view copied, bool decimalComma, std::size_t mostRows,
                       TypedTable& table, TableRemarks& remarks) {
  const std::string text = tableText(copied);
  const std::vector<std::string_view> lines = linesOf(text);
  const char separator = separatorOf(lines, decimalComma);
  TypedTable read;
  TableRemarks told;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::vector<std::string_view> fields = fieldsOf(lines[i], separator);
    if (i == 0 && lines.size() > 1 && isHeading(fields)) {
      told.skipHeading(lines[i]);
      continue;
    }
    if (read.size() == mostRows) {
      return Status::failure(Message::tr("there are more than %1 rows").arg(mostRows));
    }
    std::vector<double>& row = read.emplace_back();
    for (const std::string_view field : fields) {
      row.push_back(std::numeric_limits<double>::quiet_NaN());
      const std::string_view number = unquoted(field);
      if (number.empty() || parseTyped(number, decimalComma, row.back())) continue;
      return Status::failure(Message::tr("line %1: \"%2\" is no number")
                                 .arg(i + 1)
                                 .arg(std::string(number.substr(0, kLongestNumber))));
    }
  }
  table = std::move(read);
  remarks = std::move(told);
  return {};
}

}  // namespace talvesk

#include "base/TableText.h"

#include "base/PlainText.h"
#include "base/TextNumber.h"

#include <QString>
#include <algorithm>

namespace talvesk {
namespace {

constexpr std::string_view kMark8 = "\xEF\xBB\xBF";
constexpr std::string_view kMarkLittle = "\xFF\xFE";
constexpr std::string_view kMarkBig = "\xFE\xFF";
/// More of a field or line is not quoted.
constexpr std::size_t kQuotedBytes = 60;

bool startsWith(std::string_view text, std::string_view start) {
  return text.substr(0, start.size()) == start;
}

std::string fromUtf16(std::string_view bytes, bool bigEndian) {
  QString text;
  text.reserve(static_cast<int>(bytes.size() / 2));
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const auto high = static_cast<unsigned char>(bytes[i + (bigEndian ? 0 : 1)]);
    const auto low = static_cast<unsigned char>(bytes[i + (bigEndian ? 1 : 0)]);
    text += QChar(low, high);
  }
  return text.toStdString();
}

/// As it may stand in a message: short, one line, and UTF-8 whatever the bytes.
std::string quotable(std::string_view text) {
  const std::string valid =
      QString::fromUtf8(text.data(), static_cast<int>(text.size())).trimmed().toStdString();
  const std::string shown = withoutControls(beginningOf(valid, kQuotedBytes));
  return shown.size() < valid.size() ? shown + "..." : shown;
}

}  // namespace

std::string tableText(std::string_view bytes) {
  if (startsWith(bytes, kMark8)) return std::string(bytes.substr(kMark8.size()));
  if (startsWith(bytes, kMarkLittle)) return fromUtf16(bytes.substr(kMarkLittle.size()), false);
  if (startsWith(bytes, kMarkBig)) return fromUtf16(bytes.substr(kMarkBig.size()), true);
  const bool pair = bytes.size() >= 2;
  if (pair && bytes[0] != '\0' && bytes[1] == '\0') return fromUtf16(bytes, false);
  if (pair && bytes[0] == '\0' && bytes[1] != '\0') return fromUtf16(bytes, true);
  return std::string(bytes);
}

bool beginsAsNumber(std::string_view field) {
  const std::size_t first = field.find_first_not_of(" \t\r\n\v\f\"");
  if (first == std::string_view::npos) return false;
  field.remove_prefix(first);
  double ignored = 0.0;
  if (parseWholeDouble(field, ignored) != NumberError::kNotANumber) return true;
  if (field.front() == '-' || field.front() == '+') field.remove_prefix(1);
  if (!field.empty() && (field.front() == '.' || field.front() == ',')) field.remove_prefix(1);
  return !field.empty() && field.front() >= '0' && field.front() <= '9';
}

bool isHeading(const std::vector<std::string_view>& fields) {
  const auto blank = [](std::string_view field) {
    return field.find_first_not_of(" \t\r\n\v\f\"") == std::string_view::npos;
  };
  return !std::all_of(fields.begin(), fields.end(), blank) &&
         std::none_of(fields.begin(), fields.end(), beginsAsNumber);
}

void TableRemarks::skipHeading(std::string_view line) {
  skippedHeading = true;
  heading = quotable(line);
}

void TableRemarks::addZero(std::size_t line, std::string_view field) {
  if (zeroCount++ < kNamedZeros) zeros.push_back({line, quotable(field)});
}

std::vector<std::string> describe(const TableRemarks& remarks) {
  std::vector<std::string> texts;
  if (remarks.skippedHeading) {
    texts.push_back("line 1, \"" + remarks.heading + "\", was taken for a heading and skipped");
  }
  if (remarks.zeroCount == 0) return texts;
  std::string fields;
  for (const TableRemarks::Zero& zero : remarks.zeros) {
    fields += (fields.empty() ? "line " : ", line ") + std::to_string(zero.line) + " \"" +
              zero.field + "\"";
  }
  const std::size_t more = remarks.zeroCount - remarks.zeros.size();
  if (more > 0) fields += " and " + std::to_string(more) + " more";
  texts.push_back(std::to_string(remarks.zeroCount) +
                  (remarks.zeroCount == 1 ? " field that is no number was taken as 0: "
                                          : " fields that are no numbers were taken as 0: ") +
                  fields);
  return texts;
}

}  // namespace talvesk

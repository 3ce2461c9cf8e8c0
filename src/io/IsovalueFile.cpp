#include "io/IsovalueFile.h"

#include "base/AtomicFile.h"
#include "base/Console.h"
#include "base/TextNumber.h"
#include "io/GeometryFile.h"
#include "io/TextCursor.h"

#include <algorithm>
#include <cmath>
#include <ostream>

namespace talvesk {
namespace {

constexpr std::size_t kLargestFile = std::size_t{1} << 20;

/// Six significant digits, as streams print by default, and more where they do not bring the number
/// back: one at the end of a range must not come back from beyond it.
std::string shortestText(double value) {
  constexpr int kFewest = 6;
  constexpr int kMost = 17;
  for (int digits = kFewest; digits < kMost; ++digits) {
    std::string text = formatDouble(value, digits);
    double back = 0.0;
    if (parseWholeDouble(text, back) == NumberError::kNone && back == value) return text;
  }
  return formatDouble(value, kMost);
}

/// The first field of a line, which must be a number, and the rest, which is not read.
std::vector<std::string_view> firstAndRest(std::string_view line, const std::string& separator) {
  const std::size_t end = separator.empty() ? std::string_view::npos : line.find(separator);
  if (end == std::string_view::npos) return {line};
  return {line.substr(0, end), line.substr(end + separator.size())};
}

bool isValue(std::string_view field, double& value) {
  return parseWholeDouble(field, value) == NumberError::kNone && std::isfinite(value);
}

/// The text without the line ends behind its last line.
std::string_view withoutEmptyEnd(std::string_view text) {
  const std::size_t last = text.find_last_not_of("\r\n");
  return last == std::string_view::npos ? std::string_view{} : text.substr(0, last + 1);
}

}  // namespace

Status writeIsovalues(const std::string& path, const std::string& separator,
                      std::vector<double> values) {
  std::sort(values.begin(), values.end());
  const std::string between = separatorText(separator);
  return writeTextAtomically(path, [&](std::ostream& stream) {
    for (const double value : values) stream << shortestText(value) << between << "true\n";
  });
}

IsovalueRead parseIsovalues(std::string_view bytes, const std::string& name,
                            const std::string& separator) {
  IsovalueRead read;
  const std::string between = separatorText(separator);
  const std::string text = tableText(bytes);
  TextCursor cursor(withoutEmptyEnd(text));
  for (std::string_view line; !cursor.atEnd() && cursor.nextLine(line);) {
    const std::vector<std::string_view> fields = firstAndRest(line, between);
    if (cursor.line() == 1 && !cursor.atEnd() && isHeading(fields)) {
      read.remarks.skipHeading(line);
      continue;
    }
    double value = 0.0;
    if (line.size() > kIsovalueLineLimit || !isValue(fields.front(), value)) {
      read.invalidLine = cursor.line();
      read.status = Status::failure(
          Message::tr("%1, line %2 does not begin with a number; check the separator")
              .arg(name)
              .arg(cursor.line()));
      return read;
    }
    if (read.values.size() == kMostIsovalues) {
      read.status = Status::failure(
          Message::tr("%1 holds more than %2 values").arg(name).arg(kMostIsovalues));
      return read;
    }
    console::out() << "Value : " << shortestText(value) << std::endl;
    read.values.push_back(value);
  }
  return read;
}

Status readIsovalueText(const std::string& path, std::string& text) {
  return readWholeFile(path, text, kLargestFile);
}

std::string withIsovalueSuffix(std::string name) {
  constexpr std::string_view kSuffix = ".csv";
  const auto sameLetter = [](char a, char b) {
    return a == b || (a >= 'A' && a <= 'Z' && a + ('a' - 'A') == b);
  };
  const bool has = name.size() >= kSuffix.size() &&
                   std::equal(kSuffix.begin(), kSuffix.end(), name.end() - kSuffix.size(),
                              [&](char suffix, char c) { return sameLetter(c, suffix); });
  if (!has) name += kSuffix;
  return name;
}

}  // namespace talvesk

#include "io/HeadedTable.h"

#include "io/LatinLetters.h"

#include <algorithm>
#include <utility>

namespace talvesk {
namespace {

/// A heading stands near the top, and a table of picks or positions has few columns.
constexpr std::size_t kHeadingLines = 50;
constexpr std::size_t kMostColumns = 1000;
constexpr std::string_view kBlanks = " \t\r\v\f";

struct Unit {
  std::string_view name;
  double count;
};

constexpr Unit kLengths[] = {
    {"m", 1.0},    {"metre", 1.0}, {"metres", 1.0},    {"meter", 1.0},       {"meters", 1.0},
    {"cm", 100.0}, {"km", 1e-3},   {"ft", 1 / 0.3048}, {"feet", 1 / 0.3048}, {"foot", 1 / 0.3048}};
constexpr Unit kTimes[] = {{"s", 1.0},           {"sec", 1.0},          {"second", 1.0},
                           {"seconds", 1.0},     {"ms", 1e3},           {"msec", 1e3},
                           {"millisecond", 1e3}, {"milliseconds", 1e3}, {"us", 1e6},
                           {"microseconds", 1e6}};

template <std::size_t kCount>
double unitsIn(const Unit (&units)[kCount], std::string_view name) {
  const auto* const found = std::find_if(std::begin(units), std::end(units),
                                         [&](const Unit& unit) { return unit.name == name; });
  return found == std::end(units) ? 0.0 : found->count;
}

std::string_view trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return text.substr(0, 0);  // still within the line
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

bool isLower(char c) {
  return c >= 'a' && c <= 'z';
}

bool isUpper(char c) {
  return c >= 'A' && c <= 'Z';
}

/// The words of a name: "Shot_X (m)" and "shotX[m]" are "shot", "x" and "m".
std::vector<std::string> wordsOf(std::string_view name) {
  std::vector<std::string> words;
  bool inWord = false;
  char before = ' ';
  for (const char c : name) {
    const bool counts = isLower(c) || isUpper(c) || (c >= '0' && c <= '9');
    if (counts && (!inWord || (isLower(before) && isUpper(c)))) words.emplace_back();
    if (counts) words.back() += isUpper(c) ? static_cast<char>(c - 'A' + 'a') : c;
    inWord = counts;
    before = c;
  }
  return words;
}

TableColumn columnOf(std::string_view told) {
  TableColumn column;
  column.told = trimmed(told);
  std::vector<std::string> words = wordsOf(plainLetters(told));
  const bool hasUnit =
      words.size() > 1 && (unitsPerMetre(words.back()) > 0.0 || unitsPerSecond(words.back()) > 0.0);
  if (hasUnit) {
    column.unit = std::move(words.back());
    words.pop_back();
  }
  for (const std::string& word : words) column.name += word;
  return column;
}

/// "time (ms)" is one name also where blanks separate names.
void joinBrackets(std::vector<std::string_view>& fields) {
  for (std::size_t i = 1; i < fields.size();) {
    const bool bracket =
        !fields[i].empty() && (fields[i].front() == '(' || fields[i].front() == '[');
    if (!bracket) {
      ++i;
      continue;
    }
    const char* const begin = fields[i - 1].data();
    const char* const end = fields[i].data() + fields[i].size();
    fields[i - 1] = {begin, static_cast<std::size_t>(end - begin)};
    fields.erase(fields.begin() + static_cast<std::ptrdiff_t>(i));
  }
}

char separatorOf(std::string_view heading) {
  for (const char separator : {'\t', ';', ','}) {
    if (heading.find(separator) != std::string_view::npos) return separator;
  }
  return ' ';
}

/// The quote that ends a field; one that is doubled stands for itself.
std::size_t closingQuote(std::string_view text, std::size_t from) {
  std::size_t quote = text.find('"', from);
  while (quote != std::string_view::npos && text.substr(quote + 1, 1) == "\"") {
    quote = text.find('"', quote + 2);
  }
  return quote;
}

/// Cuts the next field off; one in quotes may hold separators.
std::string_view takeField(std::string_view& rest, char separator) {
  const std::string_view separators =
      separator == ' ' ? std::string_view(" \t") : std::string_view(&separator, 1);
  const std::size_t first = std::min(rest.find_first_not_of(' '), rest.size());
  const std::size_t quote =
      rest.substr(first, 1) == "\"" ? closingQuote(rest, first + 1) : std::string_view::npos;
  const bool quoted = quote != std::string_view::npos;
  const std::size_t end =
      std::min(rest.find_first_of(separators, quoted ? quote : first), rest.size());
  const std::string_view field =
      quoted ? rest.substr(first + 1, quote - first - 1) : rest.substr(first, end - first);
  rest.remove_prefix(std::min(end + 1, rest.size()));
  return trimmed(field);
}

}  // namespace

double unitsPerMetre(std::string_view unit) {
  return unitsIn(kLengths, unit);
}

double unitsPerSecond(std::string_view unit) {
  return unitsIn(kTimes, unit);
}

void HeadedTable::split(std::string_view line, std::size_t most,
                        std::vector<std::string_view>& fields) const {
  fields.clear();
  if (mSeparator == ' ') line = trimmed(line);
  while (!line.empty() && fields.size() < most) {
    fields.push_back(takeField(line, mSeparator));
    if (mSeparator == ' ') line = trimmed(line);  // of blanks any number stands between two fields
  }
}

bool HeadedTable::findHeading(const std::function<bool(const Columns&)>& accepts) {
  std::string_view line;
  std::vector<std::string_view> fields;
  for (std::size_t i = 0; i < kHeadingLines && mText.nextLine(line); ++i) {
    line = trimmed(line);
    if (line.empty()) continue;
    const bool comment = line.front() == '#';
    if (comment) line.remove_prefix(1);
    mSeparator = mGiven != 0 ? mGiven : separatorOf(line);
    split(line, kMostColumns, fields);
    if (mSeparator == ' ') joinBrackets(fields);
    mColumns.clear();
    for (const std::string_view field : fields) mColumns.push_back(columnOf(field));
    if (accepts(mColumns)) return true;
    if (!comment) ++mLinesAbove;
  }
  mColumns.clear();
  return false;
}

bool HeadedTable::startAtFirstRow() {
  TextCursor ahead = mText;
  std::string_view line;
  do {
    if (!ahead.nextLine(line)) return false;
    line = trimmed(line);
  } while (line.empty() || line.front() == '#');
  std::vector<std::string_view> fields;
  mSeparator = mGiven != 0 ? mGiven : separatorOf(line);
  if (mSeparator == ',' && mGiven == 0) {
    mSeparator = ' ';
    split(line, kMostColumns, fields);
    double ignored = 0.0;
    const auto begin = fields.begin() + (fields.size() > 2 ? 1 : 0);  // a name may stand in front
    const bool numbers = std::all_of(begin, fields.end(), [&](std::string_view field) {
      return number(field, ignored) == NumberError::kNone;
    });
    if (fields.size() < 2 || !numbers) mSeparator = ',';
  }
  split(line, kMostColumns, fields);
  mColumns.assign(fields.size(), {});
  return true;
}

bool HeadedTable::nextRow(std::vector<std::string_view>& fields) {
  for (std::string_view line; mText.nextLine(line);) {
    const std::string_view text = trimmed(line);
    if (text.empty() || text.front() == '#') continue;
    split(line, mColumns.size(), fields);
    return true;
  }
  return false;
}

NumberError HeadedTable::number(std::string_view field, double& value) const {
  const bool comma = mSeparator != ',' && field.find(',') != std::string_view::npos;
  if (!comma) return parseWholeDouble(field, value);
  std::string withPoint(field);
  const bool grouped = withPoint.find('.') != std::string::npos ||
                       std::count(withPoint.begin(), withPoint.end(), ',') > 1;
  if (grouped) return NumberError::kNotANumber;
  std::replace(withPoint.begin(), withPoint.end(), ',', '.');
  return parseWholeDouble(withPoint, value);
}

std::size_t columnNamed(const HeadedTable::Columns& columns,
                        const std::vector<std::string_view>& names) {
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (std::find(names.begin(), names.end(), columns[i].name) != names.end()) return i;
  }
  return HeadedTable::kNone;
}

std::size_t columnNamed(const HeadedTable::Columns& columns,
                        const std::vector<std::string_view>& words,
                        const std::vector<std::string_view>& others) {
  for (std::size_t i = 0; i < columns.size(); ++i) {
    for (const std::string_view word : words) {
      for (const std::string_view other : others) {
        const std::string one(word);
        const std::string two(other);
        if (columns[i].name == one + two || columns[i].name == two + one) return i;
      }
    }
  }
  return HeadedTable::kNone;
}

}  // namespace talvesk

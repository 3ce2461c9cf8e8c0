#include "io/standard/Seg2Header.h"

#include "base/TextNumber.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {
namespace {

constexpr std::size_t kLengthBytes = 2;
constexpr std::string_view kNote = "NOTE";

char capital(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

/// \param capitals without a small letter
bool isKeyword(std::string_view word, std::string_view capitals) {
  return std::equal(word.begin(), word.end(), capitals.begin(), capitals.end(),
                    [](char a, char b) { return capital(a) == b; });
}

/// Blanks, tabs and all that is left of ends of strings and lines.
bool isBlank(char c) {
  return static_cast<unsigned char>(c) <= ' ';
}

std::string_view trimmed(std::string_view text) {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

std::string_view firstWord(std::string_view text) {
  return text.substr(
      0, static_cast<std::size_t>(std::find_if(text.begin(), text.end(), isBlank) - text.begin()));
}

bool endsWith(std::string_view text, std::string_view end) {
  return !end.empty() && text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

/// Takes the text in front of one of the letters, or of the other end that the file tells, off
/// `text`, and that end with it.
std::string_view takeFront(std::string_view& text, std::string_view letters,
                           const std::string& told) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool toldEnd = !told.empty() && text.substr(at, told.size()) == told;
    if (!toldEnd && letters.find(text[at]) == std::string_view::npos) continue;
    const std::string_view front = text.substr(0, at);
    text.remove_prefix(at + (toldEnd ? told.size() : 1));
    return front;
  }
  return std::exchange(text, std::string_view{});
}

constexpr std::array<std::string_view, 11> kKeywords = {"SAMPLE_INTERVAL",
                                                        "DELAY",
                                                        "SKEW",
                                                        "DESCALING_FACTOR",
                                                        "STACK",
                                                        "CHANNEL_NUMBER",
                                                        "SOURCE_LOCATION",
                                                        "RECEIVER_LOCATION",
                                                        "SHOT_SEQUENCE_NUMBER",
                                                        "UNITS",
                                                        kNote};

/// A string that was told apart by what ends it may have its length, or half of it, in front.
std::string_view withoutLength(std::string_view string) {
  for (std::size_t length = 0; length <= kLengthBytes && length < string.size(); ++length) {
    const std::string_view text = string.substr(length);
    const std::string_view word = firstWord(text);
    const auto is = [word](std::string_view keyword) { return isKeyword(word, keyword); };
    if (std::any_of(kKeywords.begin(), kKeywords.end(), is)) return text;
  }
  return string;
}

class Lines {
 public:
  explicit Lines(const Seg2Layout& layout) : mLayout(layout) {}

  std::vector<Seg2Line> of(std::string_view area) {
    if (!followLengths(area)) {
      mLines.clear();
      splitAtEnds(area);
    }
    return std::move(mLines);
  }

 private:
  /// False where lengths do not lead from string to string up to a length of 0 or the end.
  bool followLengths(std::string_view area) {
    while (area.size() >= kLengthBytes) {
      const std::size_t length = ByteReader(area).u16(0, mLayout.order);
      if (length == 0) break;
      if (length < kLengthBytes || length > area.size()) return false;
      if (!addString(area.substr(kLengthBytes, length - kLengthBytes))) return false;
      area.remove_prefix(length);
    }
    return area.find_first_not_of('\0') == std::string_view::npos;
  }

  /// False where zero bytes stand within the string: its length cut others, or took them in.
  bool addString(std::string_view string) {
    if (endsWith(string, mLayout.stringEnd)) string.remove_suffix(mLayout.stringEnd.size());
    string = trimmed(string);
    if (string.find('\0') != std::string_view::npos) return false;
    addLines(string);
    return true;
  }

  void splitAtEnds(std::string_view area) {
    while (!area.empty()) {
      const std::string_view string = takeFront(area, {"\0", 1}, mLayout.stringEnd);
      addLines(withoutLength(trimmed(string)));
    }
  }

  void addLines(std::string_view string) {
    while (!string.empty()) {
      const std::string_view rest = string;
      std::string_view line = trimmed(takeFront(string, "\n\r\f", mLayout.lineEnd));
      if (line.empty()) continue;
      const std::string_view keyword = firstWord(line);
      if (isKeyword(keyword, kNote)) {
        mLines.push_back({keyword, trimmed(rest).substr(keyword.size())});
        return;
      }
      mLines.push_back({keyword, trimmed(line.substr(keyword.size()))});
    }
  }

  const Seg2Layout& mLayout;
  std::vector<Seg2Line> mLines;
};

/// The numbers that a line may hold. A comma is a decimal comma, unless a point or another comma in
/// its word shows that it separates.
class Numbers {
 public:
  explicit Numbers(std::string_view value) : mRest(value) {}

  /// The next word, with a decimal point; empty after the last.
  std::string next() {
    if (mWords.empty()) {
      mRest = trimmed(mRest);
      mWords = firstWord(mRest);
      mRest.remove_prefix(mWords.size());
      while (!mWords.empty() && separates(mWords.back())) mWords.remove_suffix(1);
      const auto commas = std::count(mWords.begin(), mWords.end(), ',');
      mSplit = commas > 1 || (commas == 1 && mWords.find('.') != std::string_view::npos) ||
               mWords.find(';') != std::string_view::npos;
    }
    const std::size_t end =
        mSplit ? std::min(mWords.find_first_of(",;"), mWords.size()) : mWords.size();
    std::string word(mWords.substr(0, end));
    mWords.remove_prefix(std::min(end + 1, mWords.size()));
    std::replace(word.begin(), word.end(), ',', '.');
    return word;
  }

 private:
  static bool separates(char c) { return c == ',' || c == ';'; }

  std::string_view mRest;   ///< of the line
  std::string_view mWords;  ///< what is left of the word before it
  bool mSplit = false;      ///< that word holds several
};

std::optional<double> finite(NumberError error, double number) {
  if (error != NumberError::kNone || !std::isfinite(number)) return std::nullopt;
  return number + 0.0;  // minus zero becomes zero
}

/// The number at the front of a word, which may have a unit behind it.
std::optional<double> numberInFront(const std::string& word) {
  double number = 0.0;
  const NumberError error = parseDouble(word, number);
  return finite(error, number);
}

std::optional<double> wholeNumber(const std::string& word) {
  double number = 0.0;
  const NumberError error = parseWholeDouble(word, number);
  return finite(error, number);
}

Seg2Number numberOf(std::string_view value) {
  return {true, numberInFront(Numbers(value).next())};
}

Seg2Position positionOf(std::string_view value) {
  Seg2Position position;
  position.told = true;
  Numbers numbers(value);
  while (position.numbers < position.at.size()) {
    const std::string word = numbers.next();
    const auto number = position.numbers == 0 ? numberInFront(word) : wholeNumber(word);
    if (!number) break;
    position.at[position.numbers++] = *number;
  }
  return position;
}

struct NumberKeyword {
  std::string_view keyword;
  Seg2Number Seg2TraceHeader::*number;
};

constexpr std::array<NumberKeyword, 6> kNumbers = {{
    {"SAMPLE_INTERVAL", &Seg2TraceHeader::sampleInterval},
    {"DELAY", &Seg2TraceHeader::delay},
    {"SKEW", &Seg2TraceHeader::skew},
    {"DESCALING_FACTOR", &Seg2TraceHeader::descaling},
    {"STACK", &Seg2TraceHeader::stack},
    {"CHANNEL_NUMBER", &Seg2TraceHeader::channel},
}};

void take(const Seg2Line& line, Seg2TraceHeader& header) {
  for (const auto& [keyword, number] : kNumbers) {
    if (isKeyword(line.keyword, keyword)) header.*number = numberOf(line.value);
  }
  if (isKeyword(line.keyword, "SOURCE_LOCATION")) header.source = positionOf(line.value);
  if (isKeyword(line.keyword, "RECEIVER_LOCATION")) header.receiver = positionOf(line.value);
  if (isKeyword(line.keyword, "SHOT_SEQUENCE_NUMBER")) header.shot = firstWord(line.value);
}

}  // namespace

std::vector<Seg2Line> seg2Lines(std::string_view area, const Seg2Layout& layout) {
  return Lines(layout).of(area);
}

Seg2TraceHeader seg2TraceHeader(std::string_view area, const Seg2Layout& layout) {
  Seg2TraceHeader header;
  for (const Seg2Line& line : seg2Lines(area, layout)) take(line, header);
  return header;
}

std::string seg2Units(std::string_view area, const Seg2Layout& layout) {
  std::string units;
  for (const Seg2Line& line : seg2Lines(area, layout)) {
    if (isKeyword(line.keyword, "UNITS")) units = firstWord(line.value);
  }
  std::transform(units.begin(), units.end(), units.begin(), capital);
  return units;
}

}  // namespace talvesk

#include "io/Seg2Strings.h"

#include "base/Console.h"
#include "base/TextNumber.h"
#include "io/ByteReader.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <ostream>
#include <string>

namespace talvesk {
namespace {

constexpr std::size_t kLengthBytes = 2;

bool separates(char c) {
  return c == ' ' || c == '\n' || c == '\0';
}

/// Whether the bytes at the front of `rest` are the length of a string. Two letters of plain text
/// would make a length above 8191; so long a string must at least end where its text does.
bool beginsWithLength(std::string_view rest) {
  if (rest.size() < kLengthBytes) return false;
  const auto length = assembled<ByteOrder::kLittle, std::uint16_t>(rest.data());
  if (length < kLengthBytes) return false;
  const bool maybeLetters = static_cast<unsigned char>(rest[1]) >= ' ';
  return !maybeLetters || rest.find('\0', kLengthBytes) + 1 == length;
}

/// The string at the front, with its length; shorter where the area ends before it.
std::string_view frontString(std::string_view area) {
  return area.substr(0, assembled<ByteOrder::kLittle, std::uint16_t>(area.data()));
}

/// Zero bytes stand at the end of a string only.
bool isOneString(std::string_view string) {
  const std::size_t end = string.find('\0', kLengthBytes);
  return end == std::string_view::npos ||
         string.find_first_not_of('\0', end) == std::string_view::npos;
}

/// Whether lengths lead from string to string. A length that does not count its own two bytes, or
/// is none, would cut numbers in two.
bool isChain(std::string_view area) {
  bool cutsWord = false;
  while (beginsWithLength(area)) {
    const std::string_view string = frontString(area);
    if (!isOneString(string)) return false;
    cutsWord = !separates(string.back());
    area.remove_prefix(string.size());
  }
  return !cutsWord || area.find_first_not_of('\0') != 0;
}

void splitWords(std::string_view text, std::vector<std::string_view>& words) {
  const char* const end = text.data() + text.size();
  for (const char* at = text.data(); at != end;) {
    const char* const first = std::find_if_not(at, end, separates);
    at = std::find_if(first, end, separates);
    if (at != first) words.emplace_back(first, static_cast<std::size_t>(at - first));
  }
}

std::string withPoints(std::string_view word) {
  std::string text(word);
  std::replace(text.begin(), text.end(), ',', '.');
  return text;
}

/// What a word is that a number is looked for in.
enum class Found { kNoNumber, kOutOfRange, kNotFinite, kNumber };

Found found(NumberError error, double number, double& value) {
  if (error == NumberError::kNotANumber) return Found::kNoNumber;
  if (error == NumberError::kOutOfRange) return Found::kOutOfRange;
  if (!std::isfinite(number)) return Found::kNotFinite;
  value = number + 0.0;  // minus zero becomes zero
  return Found::kNumber;
}

Found numberInFront(std::string_view word, double& value) {
  double number = 0.0;
  const NumberError error = parseDouble(withPoints(word), number);
  return found(error, number, value);
}

Found wholeNumber(std::string_view word, double& value) {
  double number = 0.0;
  const NumberError error = parseWholeDouble(withPoints(word), number);
  return found(error, number, value);
}

class StringsParser {
 public:
  explicit StringsParser(std::string_view area) { seg2Words(area, mWords); }

  Seg2Strings parse() {
    bool badInterval = false;
    for (std::size_t i = 0; i < mWords.size(); ++i) {
      const std::string_view word = mWords[i];
      if (word == "SAMPLE_INTERVAL") {
        if (!readInterval(i)) badInterval = true;
      } else if (word == "SOURCE_LOCATION") {
        readLocation(i, "Exception Source location", mRead.source, mRead.badSource);
      } else if (word == "RECEIVER_LOCATION") {
        readLocation(i, "Exception Receiver Location", mRead.receiver, mRead.badReceiver);
      } else if (word == "DELAY") {
        readDelay(i);
      }
    }
    mRead.hasInterval = mRead.hasInterval && !badInterval;
    if (!mRead.hasInterval && !badInterval) tellNoInterval();
    return mRead;
  }

 private:
  /// The word that stands `ahead` words behind the keyword; empty past the end of the string.
  std::string_view after(std::size_t keyword, std::size_t ahead) const {
    return ahead < mWords.size() - keyword ? mWords[keyword + ahead] : std::string_view{};
  }

  static void tellNoInterval() { console::out() << "FATAL ERROR no sample interval provided\n"; }

  bool readInterval(std::size_t keyword) {
    if (numberInFront(after(keyword, 1), mRead.sampleInterval) == Found::kNumber) {
      return mRead.hasInterval = true;
    }
    tellNoInterval();
    return false;
  }

  /// Files write x, x and elevation, or x, y and elevation.
  void readLocation(std::size_t keyword, const char* complaint, Point2D& location, bool& bad) {
    if (numberInFront(after(keyword, 1), location.x) != Found::kNumber) {
      console::out() << complaint << '\n';
      bad = true;
      return;
    }
    double second = 0.0;
    double third = 0.0;
    const Found secondIs = wholeNumber(after(keyword, 2), second);
    const Found thirdIs = wholeNumber(after(keyword, 3), third);
    // What no double can hold is a word like any other, and neither y nor elevation.
    bad = bad || secondIs == Found::kOutOfRange;
    if (secondIs != Found::kNumber && secondIs != Found::kNotFinite) return;
    bad = bad || thirdIs == Found::kOutOfRange;
    const bool hasY = thirdIs == Found::kNumber || thirdIs == Found::kNotFinite;
    if (hasY) console::out() << "Y: " << after(keyword, 2) << '\n';
    if ((hasY ? thirdIs : secondIs) == Found::kNotFinite) {
      bad = true;
      return;
    }
    location.z = hasY ? third : second;
    console::out() << "Z: " << after(keyword, hasY ? 3 : 2) << '\n';
  }

  /// Some instruments write the time from the start of the record to the shot, some the opposite.
  void readDelay(std::size_t keyword) {
    double delay = 0.0;
    const Found is = numberInFront(after(keyword, 1), delay);
    if (is == Found::kNumber) mRead.delay = delay > 0.0 ? -delay : delay;
    mRead.badDelay = mRead.badDelay || is == Found::kOutOfRange || is == Found::kNotFinite;
  }

  std::vector<std::string_view> mWords;
  Seg2Strings mRead;
};

}  // namespace

void seg2Words(std::string_view area, std::vector<std::string_view>& words) {
  const bool chained = isChain(area);
  while (chained && beginsWithLength(area)) {
    const std::string_view string = frontString(area);
    words.emplace_back();
    splitWords(string.substr(kLengthBytes), words);
    area.remove_prefix(string.size());
  }
  words.emplace_back();
  splitWords(area, words);
}

Seg2Strings parseSeg2Strings(std::string_view area) {
  return StringsParser(area).parse();
}

}  // namespace talvesk

#include "io/AngleText.h"

#include <cmath>
#include <cstddef>
#include <limits>
#include <string>
#include <vector>

namespace talvesk {
namespace {

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

constexpr std::string_view kUnits = "DMS";

/// What an angle is written with.
struct Pieces {
  std::vector<std::string> numbers;  ///< with decimal points
  std::string front;                 ///< letters before the first number, in upper case
  std::string between;
  std::string behind;
  bool minus = false;
  bool sound = true;
};

/// Marks of degrees, minutes and seconds, and what stands in their place: all of them only part one
/// number from the next. Bytes beyond ASCII are such marks, too.
bool parts(char c) {
  constexpr std::string_view kMarks = " \t:'\"*_";
  return static_cast<unsigned char>(c) >= 0x80 || kMarks.find(c) != std::string_view::npos;
}

/// A minus sign or a dash, as typesetters have them, in place of the "-" of the keyboard.
bool isDash(std::string_view text) {
  return text.substr(0, 3) == "\u2212" || text.substr(0, 3) == "\u2013";
}

Pieces piecesOf(std::string_view text) {
  Pieces pieces;
  bool inNumber = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    const bool mark = c == '.' || c == ',';
    if (isDigit(c) || (mark && inNumber)) {
      if (!inNumber) pieces.numbers.emplace_back();
      if (!inNumber) pieces.between += pieces.behind;
      if (!inNumber) pieces.behind.clear();
      pieces.numbers.back() += mark ? '.' : c;
      inNumber = true;
      continue;
    }
    inNumber = false;
    const bool signs = c == '-' || c == '+' || isDash(text.substr(i));
    if (signs && pieces.numbers.empty()) {
      pieces.sound = pieces.sound && !pieces.minus;
      pieces.minus = c != '+';
    } else if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z')) {
      (pieces.numbers.empty() ? pieces.front : pieces.behind) +=
          static_cast<char>(c >= 'a' ? c - 'a' + 'A' : c);
    } else if (!parts(c)) {
      pieces.sound = false;
    }
  }
  return pieces;
}

/// 1 or -1 by the letter of a hemisphere, 0 without one; NaN for letters that are none. Units of
/// degrees, minutes and seconds stand behind their numbers.
double hemisphere(const Pieces& pieces, GlobeAngle angle) {
  constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
  const std::size_t count = pieces.numbers.size();
  std::string side = pieces.front + pieces.behind;
  if (!pieces.between.empty() && pieces.between != kUnits.substr(0, count - 1)) return kNone;
  const bool named = !pieces.between.empty() || count == 1;
  if (named && !pieces.behind.empty() && pieces.behind[0] == kUnits[count - 1]) {
    side = pieces.front + pieces.behind.substr(1);
  }
  if (side.empty()) return 0.0;
  if (side.size() != 1) return kNone;
  const bool longitude = angle == GlobeAngle::kLongitude;
  if (side[0] == (longitude ? 'E' : 'N')) return 1.0;
  if (side[0] == (longitude ? 'W' : 'S')) return -1.0;
  return kNone;
}

}  // namespace

NumberError parseAngle(std::string_view text, GlobeAngle angle, double& degrees) {
  const Pieces pieces = piecesOf(text);
  const bool counts = !pieces.numbers.empty() && pieces.numbers.size() <= kUnits.size();
  if (!pieces.sound || !counts) return NumberError::kNotANumber;
  const double side = hemisphere(pieces, angle);
  if (std::isnan(side) || (pieces.minus && side != 0.0)) return NumberError::kNotANumber;
  double sum = 0.0;
  double share = 1.0;
  for (std::size_t i = 0; i < pieces.numbers.size(); ++i) {
    double value = 0.0;
    const NumberError error = parseWholeDouble(pieces.numbers[i], value);
    if (error != NumberError::kNone) return error;
    const bool last = i + 1 == pieces.numbers.size();
    if ((i > 0 && value >= 60.0) || (!last && value != std::floor(value))) {
      return NumberError::kOutOfRange;
    }
    sum += value * share;
    share /= 60.0;
  }
  if (sum > (angle == GlobeAngle::kLongitude ? 180.0 : 90.0)) return NumberError::kOutOfRange;
  degrees = pieces.minus || side < 0.0 ? -sum : sum;
  return NumberError::kNone;
}

}  // namespace talvesk

#include "base/TextNumber.h"

#include "base/CLocale.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <system_error>

#include <stdlib.h>

namespace talvesk {
namespace {

std::string_view skipBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t\n\v\f\r");
  return first == std::string_view::npos ? std::string_view{} : text.substr(first);
}

/// Whether a character may stand in a number: decimal, hexadecimal, "inf" or "nan".
bool belongsToNumber(char c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '.' ||
         c == '+' || c == '-';
}

/// \param used how many characters make the number
NumberError convert(const char* terminated, double& value, std::size_t& used) {
  char* end = nullptr;
  const int before = errno;
  errno = 0;
  const double converted = strtod_l(terminated, &end, cLocale());
  const bool outOfRange = errno == ERANGE;
  errno = before;
  used = static_cast<std::size_t>(end - terminated);
  if (used == 0) return NumberError::kNotANumber;
  if (outOfRange) return NumberError::kOutOfRange;
  value = converted;
  return NumberError::kNone;
}

/// \param text begins with the number
NumberError convert(std::string_view text, double& value, std::size_t& used) {
  // Only the characters of the number are copied for the C function, which needs a terminator: the
  // text may be the rest of a whole file.
  const auto end = std::find_if_not(text.begin(), text.end(), belongsToNumber);
  text = text.substr(0, static_cast<std::size_t>(end - text.begin()));
  std::array<char, 64> buffer;
  if (text.size() >= buffer.size()) return convert(std::string(text).c_str(), value, used);
  text.copy(buffer.data(), text.size());
  buffer[text.size()] = '\0';
  return convert(buffer.data(), value, used);
}

}  // namespace

NumberError parseDouble(std::string_view text, double& value) {
  std::size_t used = 0;
  return convert(skipBlanks(text), value, used);
}

NumberError parseWholeDouble(std::string_view text, double& value) {
  text = skipBlanks(text);
  double number = 0.0;
  std::size_t used = 0;
  const NumberError error = convert(text, number, used);
  if (used != text.size()) return NumberError::kNotANumber;
  if (error == NumberError::kNone) value = number;
  return error;
}

NumberError parseInt(std::string_view text, int& value) {
  text = skipBlanks(text);
  if (text.size() > 1 && text[0] == '+' && text[1] != '-') text.remove_prefix(1);
  int converted = 0;
  const std::errc error = std::from_chars(text.data(), text.data() + text.size(), converted).ec;
  if (error == std::errc::result_out_of_range) return NumberError::kOutOfRange;
  if (error != std::errc{}) return NumberError::kNotANumber;
  value = converted;
  return NumberError::kNone;
}

std::string formatDouble(double value, int significantDigits) {
  std::array<char, 160> buffer;
  const int digits = std::clamp(significantDigits, 1, 100);
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                    std::chars_format::general, digits);
  return {buffer.data(), result.ptr};
}

std::string exactDouble(double value) {
  std::array<char, 1200> buffer;  // the smallest of all numbers has 1077 characters
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value + 0.0,
                                    std::chars_format::fixed);
  return {buffer.data(), result.ptr};
}

std::vector<std::string_view> splitFields(std::string_view text, char separator) {
  std::vector<std::string_view> fields;
  while (!text.empty()) {
    const std::size_t length = std::min(text.find(separator), text.size());
    fields.push_back(text.substr(0, length));
    text.remove_prefix(std::min(length + 1, text.size()));
  }
  return fields;
}

}  // namespace talvesk

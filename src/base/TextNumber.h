#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace talvesk {

/// Numbers in text files, always by the rules of the "C" locale, whatever the user's own is.
enum class NumberError { kNone, kNotANumber, kOutOfRange };

/// Converts like the standard string-to-double conversion: leading blanks are skipped, what follows
/// the number is ignored ("12 m" is 12), and a value that a double cannot hold is out of range.
NumberError parseDouble(std::string_view text, double& value);

/// The same, but text in which anything follows the number is not a number.
NumberError parseWholeDouble(std::string_view text, double& value);

/// As parseDouble() for decimal integers: what follows the number is ignored ("7.9" is 7).
NumberError parseInt(std::string_view text, int& value);

/// Six significant digits, as a C++ stream prints by default.
std::string formatDouble(double value, int significantDigits = 6);

/// As few digits as bring the number back, without an exponent, which not every reader knows.
std::string exactDouble(double value);

/// Splits at every separator. An empty rest after a last separator is no field; an empty text has
/// no field at all.
std::vector<std::string_view> splitFields(std::string_view text, char separator);

}  // namespace talvesk

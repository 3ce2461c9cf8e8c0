#pragma once

#include <string>
#include <string_view>

namespace talvesk {

/// The text with plain letters in place of those with accents ("Höhe" is "Hohe", "géophone"
/// "geophone"), from UTF-8 or from the Latin 1 that older programs write. Other bytes stay.
std::string plainLetters(std::string_view text);

/// The same in lower case and without anything but letters.
std::string lowerLetters(std::string_view text);

}  // namespace talvesk

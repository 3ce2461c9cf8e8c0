#pragma once

#include <cstddef>
#include <string>

namespace talvesk {

/// The text with a blank for every control character, line breaks and tabs among them: what a file
/// says of itself may otherwise steer a terminal, and no title, label or document can hold it.
/// Takes UTF-8.
std::string withoutControls(std::string text);

/// The first so many bytes of a text, less what a character would be cut by. Takes UTF-8.
std::string beginningOf(std::string text, std::size_t mostBytes);

/// A text of unknown origin as it may stand in a message: in quotes, on one line, and cut where it
/// is too long to be read.
std::string quoted(const std::string& text);

}  // namespace talvesk

#pragma once

#include <string>
#include <string_view>

namespace talvesk {

/// The textual headers of SEG-Y, which are EBCDIC or ASCII and do not say which. They are only
/// looked at to judge a file, and for the stanzas that end them.
inline constexpr std::size_t kSegyTextBytes = 3200;

/// Whether the bytes read as text in one of the two codes. Headers of zeros alone, which some
/// writers leave, are no text.
bool isSegyText(std::string_view bytes);

/// The text without its blanks, in capitals; what is no letter, digit or sign of a stanza is '?'.
std::string segyStanza(std::string_view bytes);

/// Whether the bytes begin a stanza, "((NAME: ...".
bool beginsSegyStanza(std::string_view bytes);

}  // namespace talvesk

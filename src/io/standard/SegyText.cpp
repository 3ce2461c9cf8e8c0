#include "io/standard/SegyText.h"

#include <algorithm>

namespace talvesk {
namespace {

bool isAscii(unsigned char byte) {
  return (byte >= 0x20 && byte < 0x7F) || byte == '\r' || byte == '\n' || byte == '\t';
}

/// EBCDIC as far as stanzas need it, in capitals; '?' for the rest.
char fromEbcdic(unsigned char byte) {
  const unsigned char low = byte & 0x0F;
  const unsigned char high = byte & 0xF0;
  if (high == 0xF0 && low <= 9) return static_cast<char>('0' + low);
  if ((high == 0x80 || high == 0xC0) && low >= 1 && low <= 9) return static_cast<char>('@' + low);
  if ((high == 0x90 || high == 0xD0) && low >= 1 && low <= 9) return static_cast<char>('I' + low);
  if ((high == 0xA0 || high == 0xE0) && low >= 2 && low <= 9) return static_cast<char>('Q' + low);
  switch (byte) {
    case 0x40:
      return ' ';
    case 0x4D:
      return '(';
    case 0x5D:
      return ')';
    case 0x7A:
      return ':';
    default:
      return '?';
  }
}

/// Letters, digits, blanks and signs of EBCDIC lie above 0x3F; so does much else.
bool isEbcdic(unsigned char byte) {
  const bool sign = byte >= 0x40 && byte <= 0x7F;
  return sign || byte == 0x15 || byte == 0x25 || byte == 0x0D || fromEbcdic(byte) != '?';
}

char capital(unsigned char byte) {
  if (byte >= 'a' && byte <= 'z') return static_cast<char>(byte - 'a' + 'A');
  const bool known = (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9') || byte == ' ' ||
                     byte == '(' || byte == ')' || byte == ':';
  return known ? static_cast<char>(byte) : '?';
}

template <typename Is>
std::size_t countOf(std::string_view bytes, Is is) {
  return static_cast<std::size_t>(std::count_if(bytes.begin(), bytes.end(), [is](char byte) {
    return is(static_cast<unsigned char>(byte));
  }));
}

}  // namespace

bool isSegyText(std::string_view bytes) {
  const auto filled = [](unsigned char byte) { return byte != 0; };
  const std::size_t written = countOf(bytes, filled);
  if (written < bytes.size() / 50) return false;
  // Umlauts and the like are in neither table, and some lines are padded with zeros.
  const std::size_t enough = written - written / 20;
  return countOf(bytes, isAscii) >= enough || countOf(bytes, isEbcdic) >= enough;
}

std::string segyStanza(std::string_view bytes) {
  const bool ascii = countOf(bytes, isAscii) >= countOf(bytes, isEbcdic);
  std::string text;
  text.reserve(bytes.size());
  for (const char byte : bytes) {
    const auto code = static_cast<unsigned char>(byte);
    const char letter = ascii ? capital(code) : fromEbcdic(code);
    if (letter != ' ') text += letter;
  }
  return text;
}

bool beginsSegyStanza(std::string_view bytes) {
  const std::string_view start = bytes.substr(0, 2);
  return start == "((" || start == "\x4D\x4D";
}

}  // namespace talvesk

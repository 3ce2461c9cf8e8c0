#include "io/LatinLetters.h"

namespace talvesk {
namespace {

/// Of U+00C0 to U+00FF; a blank where there is no plain letter.
constexpr std::string_view kPlain =
    "AAAAAAACEEEEIIIIDNOOOOO OUUUUY saaaaaaaceeeeiiiidnooooo ouuuuy y";
static_assert(kPlain.size() == 0x40);

unsigned char byteAt(std::string_view text, std::size_t i) {
  return i < text.size() ? static_cast<unsigned char>(text[i]) : 0;
}

}  // namespace

std::string plainLetters(std::string_view text) {
  std::string plain;
  plain.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    const unsigned char byte = byteAt(text, i);
    const unsigned char next = byteAt(text, i + 1);
    const bool follows = next >= 0x80 && next < 0xC0;
    char letter = ' ';
    if (byte == 0xC3 && follows) {
      letter = kPlain[next - 0x80U];
    } else if (byte >= 0xC0 && !follows) {
      letter = kPlain[byte - 0xC0U];
    }
    plain += letter == ' ' ? text[i] : letter;
    if (letter != ' ' && follows) ++i;
  }
  return plain;
}

std::string lowerLetters(std::string_view text) {
  std::string letters;
  for (const char c : plainLetters(text)) {
    if (c >= 'a' && c <= 'z') letters += c;
    if (c >= 'A' && c <= 'Z') letters += static_cast<char>(c - 'A' + 'a');
  }
  return letters;
}

}  // namespace talvesk

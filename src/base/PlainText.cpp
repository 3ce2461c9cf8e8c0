#include "base/PlainText.h"

#include <utility>

namespace talvesk {

std::string withoutControls(std::string text) {
  bool afterLead = false;  // U+0080 to U+009F are control characters, too
  for (char& c : text) {
    const auto byte = static_cast<unsigned char>(c);
    const bool isControl = byte < 0x20 || byte == 0x7f || (afterLead && byte < 0xa0);
    afterLead = byte == 0xc2;
    if (!isControl) continue;
    if (byte >= 0x80) *(&c - 1) = ' ';
    c = ' ';
  }
  return text;
}

std::string beginningOf(std::string text, std::size_t mostBytes) {
  if (text.size() <= mostBytes) return text;
  const auto continues = [](char c) { return (static_cast<unsigned char>(c) & 0xc0) == 0x80; };
  while (mostBytes > 0 && continues(text[mostBytes])) --mostBytes;
  text.resize(mostBytes);
  return text;
}

std::string quoted(const std::string& text) {
  constexpr std::size_t kMostBytes = 120;
  std::string shown = beginningOf(withoutControls(text), kMostBytes);
  if (shown.size() < text.size()) shown += "...";
  return '"' + std::move(shown) + '"';
}

}  // namespace talvesk

#include "batch/Failure.h"

#include "batch/Options.h"

#include <iostream>

namespace talvesk {

std::string asOneLine(std::string text) {
  while (!text.empty() && (text.back() == '\n' || text.back() == ' ')) text.pop_back();
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

int failed(const std::string& message) {
  std::cerr << "talvesk-batch: " << asOneLine(message) << std::endl;
  return kFailed;
}

void warn(const std::string& message) {
  std::cerr << "talvesk-batch: warning: " << asOneLine(message) << std::endl;
}

int wrongUsage(const std::string& command, const std::string& message) {
  std::cerr << "talvesk-batch: " << asOneLine(message) << "\nTry 'talvesk-batch "
            << (command.empty() ? "" : command + " ") << "--help'." << std::endl;
  return kWrongUsage;
}

}  // namespace talvesk

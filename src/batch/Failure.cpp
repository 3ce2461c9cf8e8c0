#include "batch/Failure.h"

#include "base/PlainText.h"
#include "batch/Options.h"

#include <iostream>
#include <utility>

namespace talvesk {

std::string asOneLine(std::string text) {
  while (!text.empty() && (text.back() == '\n' || text.back() == ' ')) text.pop_back();
  return withoutControls(std::move(text));
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

#include "io/EntryName.h"

#include "base/AtomicFile.h"

#include <algorithm>

namespace talvesk {

std::string bareName(const std::string& path) {
  return path.substr(path.find_last_of("/\\") + 1);
}

bool isEntryName(const std::string& name) {
  const auto isOdd = [](char c) {
    const bool isControl = static_cast<unsigned char>(c) < 0x20;
    return c == '/' || c == '\\' || (isControl && c != '\t' && c != '\n' && c != '\r');
  };
  return !name.empty() && name != "." && name != ".." && isFileName(name) &&
         std::none_of(name.begin(), name.end(), isOdd);
}

}  // namespace talvesk

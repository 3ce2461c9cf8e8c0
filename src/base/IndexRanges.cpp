#include "base/IndexRanges.h"

namespace talvesk {

std::string ranges(const std::vector<std::size_t>& indices) {
  std::string text;
  for (std::size_t i = 0; i < indices.size();) {
    std::size_t end = i + 1;
    while (end < indices.size() && indices[end] == indices[end - 1] + 1) ++end;
    text += (text.empty() ? "" : ", ") + std::to_string(indices[i] + 1);
    if (end - i > 1) text += "-" + std::to_string(indices[end - 1] + 1);
    i = end;
  }
  return text;
}

}  // namespace talvesk

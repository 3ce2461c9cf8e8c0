#pragma once

#include <string>

#include <nlohmann/json.hpp>

namespace talvesk {

/// Keys stay in the order in which they were set.
using Json = nlohmann::ordered_json;

/// Bytes that are not UTF-8 are replaced; what is no finite number is null.
inline std::string jsonText(const Json& value) {
  return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

/// An object with a line for each of its keys: short enough to read, easy to compare.
inline std::string linePerKey(const Json& object) {
  std::string lines;
  for (const auto& item : object.items()) {
    lines += (lines.empty() ? "{\n" : ",\n") + jsonText(item.key()) + ": " + jsonText(item.value());
  }
  return lines + "\n}";
}

}  // namespace talvesk

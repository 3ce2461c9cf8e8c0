#pragma once

#include "io/PickReader.h"

#include <optional>
#include <string_view>

namespace talvesk {

/// Reads the sectioned pick table (".xyz"): shots and receivers by number, positions in metres,
/// times in milliseconds. Numbers are read as C reads them, so text without a number counts as 0;
/// that is told in the warnings. A number named twice keeps what it was given last.
///
/// \param data out; untouched when the file is refused
std::optional<Refusal> readPickTable(std::string_view bytes, TravelTimeData& data);

}  // namespace talvesk

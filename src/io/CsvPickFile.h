#pragma once

#include "io/PickReader.h"

#include <optional>
#include <string_view>

namespace talvesk {

/// Reads the pick table of one spread (".csv"), whose fields are separated by ";": positions in
/// metres, times in milliseconds. Lines may hold 256 characters. Receivers without an elevation lie
/// at 0 and a shot may lack its last times; both are told in the warnings.
///
/// \param data out; untouched when the file is refused
std::optional<Refusal> readCsvPicks(std::string_view bytes, TravelTimeData& data);

/// The same table with lines of any length, and whether a text is one of longer lines.
std::optional<Refusal> readLongCsvPicks(std::string_view bytes, TravelTimeData& data);
bool looksLikeLongCsvPicks(std::string_view bytes);

}  // namespace talvesk

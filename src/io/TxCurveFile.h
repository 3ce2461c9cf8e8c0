#pragma once

#include "io/PickReader.h"

#include <optional>
#include <string_view>

namespace talvesk {

/// Reads the keyword text of T-x curves (".txt"). A receiver line holds the receiver's number, its
/// distance (metres), its elevation (metres) and the first-break time (milliseconds). A shot
/// location without an elevation takes it from the receivers, linear between them and level beyond
/// them; with the elevation flag 0 everything lies at elevation 0. Shots with the same receivers
/// share a geophone string.
///
/// \param data out; untouched when the file is refused
std::optional<Refusal> readTxCurves(std::string_view bytes, TravelTimeData& data);

}  // namespace talvesk

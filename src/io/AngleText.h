#pragma once

#include "base/TextNumber.h"

#include <string_view>

namespace talvesk {

/// Which of the two angles of a place on the globe is meant.
enum class GlobeAngle { kLongitude, kLatitude };

/// Reads an angle as GPS receivers and maps write it: decimal degrees ("-47.25"), degrees and
/// minutes ("47 15.0"), degrees, minutes and seconds ("47°15'00.0\"", "47:15:00", "47d15m0s"), with
/// a sign or one of N, S, E and W in front or behind; decimal points or commas. The letter O is
/// refused: it is East to some and West to others.
/// \return out of range for minutes or seconds of 60 and more, fractions of what is followed by a
/// smaller unit, and beyond 180 degrees or 90; not a number for all else
NumberError parseAngle(std::string_view text, GlobeAngle angle, double& degrees);

}  // namespace talvesk

#pragma once

#include "io/PickReader.h"

#include <optional>
#include <string_view>

namespace talvesk {

enum class TimeUnit { kMilliseconds, kSeconds };

/// Whether a text is a table of picks with a heading: one pick per row, and columns named for the
/// positions of shot and geophone and for the time.
bool looksLikeHeadedPicks(std::string_view text);

/// Whether it is one whose heading does not say in which unit its times are.
bool lacksTimeUnit(std::string_view text);

/// Reads such a table, see HeadedTable for its separators and numbers. Positions are the columns
/// "sx" and "gx" and names like them (source or shot, geophone or receiver, with x, position or
/// distance); without those "shot" or "source" and "geophone" or "receiver" alone, which a warning
/// says. Elevations are "sz", "gz" and their likes; "elevation" alone is that of the geophone.
/// Where shots have none they are put on the line of the geophones. "t", "time", "traveltime",
/// "pick" and more are the time, "err" or "error" its error, "valid" whether it counts. Rows
/// without a time, or with one that is not above 0, are no picks. Geophones are ordered along the
/// line, shots stay in the order in which they come.
///
/// \param unit of times whose heading names none; such a table is refused without
std::optional<Refusal> readHeadedPicks(std::string_view text, std::optional<TimeUnit> unit,
                                       TravelTimeData& data);

}  // namespace talvesk

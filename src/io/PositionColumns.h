#pragma once

#include "base/Message.h"
#include "io/HeadedTable.h"

#include <string_view>
#include <vector>

namespace talvesk {

// The names that columns of positions go by, and how their fields become metres.

namespace columnNames {

using Names = std::vector<std::string_view>;

inline const Names kShot = {"s", "shot", "source", "src", "sou"};
inline const Names kGeophone = {"g", "r", "geophone", "receiver", "geo", "rec", "rcv", "phone"};
inline const Names kAlong = {"x", "position", "pos", "distance", "dist", "location"};
inline const Names kUp = {"z", "elevation", "elev", "height", "altitude"};

/// The names that mean something without another word.
Names words(const Names& names);

}  // namespace columnNames

/// Positions beyond are slips, metres.
inline constexpr double kFarthestPosition = 1e9;

/// The metres of a field of a column. Out of range is what is not finite or too far.
NumberError readMetres(const HeadedTable& table, std::size_t column,
                       const std::vector<std::string_view>& fields, double& metres);

/// "there is no number in column %1" or its like, for a table that is refused.
Message complaintAbout(const HeadedTable& table, std::size_t column,
                       const std::vector<std::string_view>& fields, NumberError error);

}  // namespace talvesk

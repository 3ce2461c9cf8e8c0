#pragma once

#include "io/GeometryFile.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace talvesk {

enum class PositionsOf { kGeophones, kShots };

/// Which positions of a file are wanted.
struct WantedPositions {
  PositionsOf what = PositionsOf::kGeophones;
  std::size_t count = 0;   ///< of places that need one
  std::size_t string = 0;  ///< of geophones, from 0
};

/// Reads positions from a table whose heading names its columns, see HeadedTable: "x", "position",
/// "distance" and their likes, "z", "elevation", "height"; "gx", "shot_x" and so on go before. Of a
/// column "kind" or "type" only rows count that begin with "s" for shots, or "g" or "r" for
/// geophones, and of one "string" or "spread" those of the number of the string, from 1; in a table
/// of one string any.
/// \return status 1, and `table` as before, for a file without such a heading, or with a position
/// that is no number
Status parseNamedPositions(std::string_view bytes, const std::string& name,
                           const WantedPositions& wanted, PositionTable& table);

/// Reads positions as readRecords() or, for shots, readLabelledRecords() do with this separator.
/// Where they refuse the file or find another number of positions, or where its heading names other
/// columns than they take, reads by the names of the columns, provided that gives the number.
/// \param byName out: whether it was read by names
/// \return the status, and `table` what was read, of those readers where nothing fits
Status readPositions(const std::string& path, const std::string& separator,
                     const WantedPositions& wanted, PositionTable& table, bool& byName);

}  // namespace talvesk

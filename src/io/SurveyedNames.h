#pragma once

#include "io/HeadedTable.h"
#include "model/SurveyedMatch.h"

#include <cstddef>
#include <string_view>

namespace talvesk {

// The words of tables of surveyed positions, in the languages of the program.

/// Which columns of a table hold what of surveyed positions, from 0.
struct SurveyedColumns {
  static constexpr std::size_t kNone = HeadedTable::kNone;

  std::size_t station = kNone;  ///< name or number
  std::size_t kind = kNone;     ///< geophone or shot
  std::size_t east = kNone;     ///< easting or, in degrees, longitude
  std::size_t north = kNone;    ///< northing or latitude
  std::size_t elevation = kNone;
  bool degrees = false;  ///< longitude and latitude, WGS 84

  bool complete() const { return east != kNone && north != kNone && east != north; }
};

inline bool operator==(const SurveyedColumns& a, const SurveyedColumns& b) {
  return a.station == b.station && a.kind == b.kind && a.east == b.east && a.north == b.north &&
         a.elevation == b.elevation && a.degrees == b.degrees;
}

/// Columns by their names; incomplete where these do not tell.
SurveyedColumns namedColumns(const HeadedTable::Columns& columns);

/// "Shot", "SP", "tiro" and their likes; kStation for what says nothing.
SurveyedKind kindOf(std::string_view word);

/// Kind and number that a name tells.
void nameStation(std::string_view name, const HeadedTable& table, SurveyedRow& row);

}  // namespace talvesk

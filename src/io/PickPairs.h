#pragma once

#include "io/TravelTimeData.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace talvesk {

/// A time of a list of picks.
struct PickPair {
  std::uint32_t shot = 0;      ///< from 0
  std::uint32_t geophone = 0;  ///< from 0
  double time = kNoTime;       ///< seconds; none where hasPick() says so
  double error = 0.0;          ///< seconds; 0: not known
};

/// A list of picks, one pair of shot and geophone after the other, as a survey: all geophones are
/// one string, and every shot has a time for each of them, kNoTime where the list has none.
struct PickList {
  std::vector<Point2D> shots;
  std::vector<Point2D> geophones;
  std::vector<PickPair> pairs;  ///< within shots and geophones
};

/// Puts strings, records and errors into `data`, and warnings about pairs that come several times:
/// the first pick of them counts. False, and nothing done, where shots times geophones would take
/// far more memory than the list.
bool takePickList(const PickList& list, TravelTimeData& data);

}  // namespace talvesk

#pragma once

#include "doctor/StationLine.h"
#include "doctor/SurveyView.h"

#include <map>
#include <optional>
#include <vector>

namespace talvesk::doctor {

using Shots = std::vector<const ShotView*>;

/// Those that are among their geophones by their arrivals.
Shots insiders(const Shots& shots);

/// Where those were by their arrivals, as their geophones are said to stand, metres.
std::vector<double> placesByArrivals(const Shots& inside);

/// The strings of shots, each with its shots, by number.
std::map<std::size_t, Shots> byString(const Shots& shots);

/// Positions of shots that the stations of their least times follow linearly.
struct Reading {
  StationLine line;            ///< position over the coordinate of the station
  std::vector<double> places;  ///< metres, of all shots
  bool byName = false;         ///< the names of the files tell them
};

/// Whether the positions that the shots are said to have are a reading; none if not.
/// \param coordinates of the stations of those among their geophones
/// \param tolerance in the unit of the coordinates
std::optional<Reading> claimedReading(const Shots& shots, const std::vector<double>& coordinates,
                                      double tolerance);

/// The same, or what the names of their files tell, if more stations follow that.
std::optional<Reading> bestReading(const Shots& shots, const std::vector<double>& coordinates,
                                   double tolerance);

/// How surely the stations follow the positions, 0 to 1.
double confidenceOf(const StationLine& line);

}  // namespace talvesk::doctor

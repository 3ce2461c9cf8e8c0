#pragma once

#include "doctor/Finding.h"
#include "doctor/SurveyView.h"

#include <optional>
#include <vector>

namespace talvesk::doctor {

/// Stations by which the least time may be off the shot: half of one because geophones stand
/// apart, and one more because the ground on its two sides differs.
inline constexpr double kStationTolerance = 1.5;

/// Where a station is when geophones stand like this. \param station from 0, with fractions
double placeOf(const std::vector<Point2D>& geophones, double station);

/// The same geophones from the last to the first.
std::vector<Point2D> reversed(std::vector<Point2D> geophones);

/// Whether the arrivals of a shot are those of a source at x with geophones like this; none when
/// they do not say.
std::optional<bool> agrees(const ShotView& shot, const std::vector<Point2D>& geophones, double x);

/// What a shot recorded, to be drawn: its clear arrivals over where the geophones stand.
std::vector<Point2D> arrivalsOver(const ShotView& shot, const std::vector<Point2D>& geophones);

/// What a source at x would have given, as a V of the pace found near it. Empty unless the shot is
/// among its geophones.
std::vector<Point2D> veeAround(const ShotView& shot, const std::vector<Point2D>& geophones,
                               double x);

}  // namespace talvesk::doctor

#pragma once

#include "doctor/Finding.h"
#include "doctor/SurveyView.h"

#include <vector>

namespace talvesk::doctor {

/// Shots, geophones and the order of channels against the first arrivals: wherever a shot stands,
/// times must be least beside it and grow alike on both sides.
std::vector<Finding> checkGeometry(const SurveyView& view);

/// The same of shots whose geophones have places of their own, one after the other.
void checkLaidShots(const std::vector<const ShotView*>& shots, std::vector<Finding>& findings);

/// Positions in another unit than those of the shots, or the other way round: station numbers.
/// \return whether there are such
bool findStationNumbers(const std::vector<const ShotView*>& shots, std::vector<Finding>& findings);

/// The same of shots whose geophones, as many for each, are all said to be at one place or two:
/// what the shots say is all there is.
void checkHeapedShots(const std::vector<const ShotView*>& shots, std::vector<Finding>& findings);

}  // namespace talvesk::doctor

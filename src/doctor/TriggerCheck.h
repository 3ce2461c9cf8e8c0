#pragma once

#include "doctor/Finding.h"
#include "doctor/SurveyView.h"

#include <vector>

namespace talvesk::doctor {

/// Shots whose clock was not at zero at the blow. Three things tell: times go to zero beside a
/// shot; the time from one shot to another's place is that of the way back; two records of one shot
/// point have the same times.
/// \param shots whose places can be trusted
std::vector<Finding> checkTriggers(const std::vector<const ShotView*>& shots);

}  // namespace talvesk::doctor

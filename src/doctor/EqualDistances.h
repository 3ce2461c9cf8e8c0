#pragma once

#include "doctor/ClockShifts.h"
#include "doctor/SurveyView.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace talvesk::doctor {

/// By how much the record of a shot is late beside the others, by its times at distances that they
/// have arrivals at, too. The ground differs from shot to shot, so this is rough, and for shots
/// that nothing better is known of. \param late by how much the records of the others are late,
/// seconds, as far as that is known \return none with less than three shots to compare with
std::optional<ClockShift> shiftAtEqualDistances(std::size_t shot,
                                                const std::vector<const ShotView*>& shots,
                                                const std::vector<double>& late);

}  // namespace talvesk::doctor

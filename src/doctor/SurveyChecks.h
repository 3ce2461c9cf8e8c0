#pragma once

#include "doctor/Finding.h"
#include "doctor/SurveyView.h"

#include <vector>

namespace talvesk::doctor {

// What is doubtful about shots and strings beside each other.

/// Geophones whose arrivals are late from one side and early from the other, over several shots:
/// they stand elsewhere, or the channels of two were exchanged. Late from both sides is ground.
/// \param shots whose places can be trusted
std::vector<Finding> checkGeophoneLine(const std::vector<const ShotView*>& shots);

/// Records that are another one once more, sample for sample.
std::vector<Finding> checkCopies(const SurveyView& view);

/// Records of one shot point. \param shots whose places can be trusted
std::vector<Finding> checkRepeats(const SurveyView& view,
                                  const std::vector<const ShotView*>& shots);

/// Sample intervals that differ within a record or between records.
std::vector<Finding> checkIntervals(const SurveyView& view);

/// Strings that contradict each other where they overlap or leave a gap, and a survey without
/// elevations.
std::vector<Finding> checkSpreads(const SurveyView& view);

}  // namespace talvesk::doctor

#pragma once

#include "doctor/Finding.h"
#include "doctor/SurveyView.h"

#include <vector>

namespace talvesk::doctor {

// What is doubtful about single traces of a shot. Traces that are killed are passed over.

/// Traces that say nothing: constant, or far weaker than their neighbours.
std::vector<Finding> checkDeadTraces(const ShotView& shot);

/// Traces whose swings are cut off flat.
std::vector<Finding> checkClippedTraces(const ShotView& shot);

/// Traces whose noise drowns an arrival that their neighbours have.
std::vector<Finding> checkNoisyTraces(const ShotView& shot);

/// Traces that are another one of the shot once more.
std::vector<Finding> checkDoubledTraces(const ShotView& shot);

/// Traces whose arrival comes before or after those of its neighbours by more than any ground
/// explains, with the same waveform.
std::vector<Finding> checkMistimedTraces(const ShotView& shot);

/// Traces that swing against their neighbours. Over several shots a geophone that is wired the
/// wrong way is found even where single records are noisy.
/// \param shots whose places can be trusted
std::vector<Finding> checkPolarity(const std::vector<const ShotView*>& shots);

}  // namespace talvesk::doctor

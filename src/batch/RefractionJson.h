#pragma once

#include "batch/LayerFindings.h"
#include "model/RefractionDataStructure.h"
#include "refraction/LayeredFit.h"
#include "refraction/RefractionWarning.h"
#include "refraction/SurveyProposal.h"

#include <optional>
#include <string>
#include <vector>

namespace talvesk {

/// A finished interpretation as JSON, one key per line, numbers as in the other results: layers and
/// time shifts (seconds) per trace of every shot, both arrival curves and what follows from them
/// per refractor, what picks tell of XY, what carries its values, and other methods; the times
/// through the profile and how they fit the picks; the proposal over the survey where the layers
/// come from one. Positions, depths and XY in metres, times in seconds, velocities in m/s.
std::string refractionJson(const refractionDataStructure::Interpretation& interpretation,
                           const LayeredFit& fit, const std::optional<SurveyProposal>& proposal,
                           const std::vector<std::string>& warnings, const LayerFindings& findings);

}  // namespace talvesk

#pragma once

#include "batch/LayerFindings.h"
#include "model/RefractionDataStructure.h"
#include "refraction/RefractionWarning.h"

#include <string>
#include <vector>

namespace talvesk {

/// A finished interpretation as JSON, one key per line, numbers as in the other results: layers and
/// time shifts (seconds) per trace of every shot, both arrival curves and what follows from them
/// per refractor, what picks tell of XY, what carries its values, and other methods. Positions,
/// depths and XY in metres, times in seconds, velocities in m/s.
std::string refractionJson(const refractionDataStructure::Interpretation& interpretation,
                           const std::vector<RefractionWarning>& warnings,
                           const LayerFindings& findings);

}  // namespace talvesk

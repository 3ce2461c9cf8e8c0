#pragma once

#include "model/RefractionDataStructure.h"
#include "refraction/RefractionWarning.h"

#include <string>
#include <vector>

namespace talvesk {

/// A finished interpretation as JSON, one key per line, numbers as in the other results: layers and
/// time shifts (seconds) per trace of every shot, both arrival curves and what follows from them
/// per refractor. Positions, depths and XY in metres, times in seconds, velocities in m/s.
std::string refractionJson(const refractionDataStructure::Interpretation& interpretation,
                           const std::vector<RefractionWarning>& warnings);

}  // namespace talvesk

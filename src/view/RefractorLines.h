#pragma once

#include "model/RefractionDataStructure.h"
#include "view/SectionScene.h"

#include <vector>

namespace talvesk {

/// The refractors of a layered interpretation as lines below the surface, the shallowest first and
/// without names. A line is broken at receivers without a depth.
std::vector<SectionLine> refractorLines(const refractionDataStructure::Interpretation& records);

}  // namespace talvesk

#pragma once

#include "model/RefractionDataStructure.h"
#include "view/SectionScene.h"

#include <vector>

namespace talvesk {

/// The refractors of a layered interpretation as lines below the surface, the shallowest first and
/// without names. Receivers without a depth are left out; a line has two points at least.
std::vector<SectionLine> refractorLines(const refractionDataStructure::Interpretation& records);

}  // namespace talvesk

#pragma once

#include "model/RefractionDataStructure.h"
#include "view/SectionScene.h"

#include <vector>

namespace talvesk {

class TomoDocument;

/// The refractors of a layered profile to be laid over the section of the document, with the names
/// that the legend shows; they say so when picks have changed since the profile was built.
std::vector<SectionLine> profileLines(const TomoDocument& document,
                                      const refractionDataStructure::Interpretation& records);

}  // namespace talvesk

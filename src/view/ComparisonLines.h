#pragma once

#include "tomo/RefractorReading.h"
#include "view/SectionScene.h"

#include <string>
#include <vector>

namespace talvesk {

/// A refractor by the layers and by the section as two lines to be laid over the section, each
/// broken where it is not known.
/// \param layersName, sectionName for the legend, UTF-8
std::vector<SectionLine> comparisonLines(const LayerComparison& comparison,
                                         const std::string& layersName,
                                         const std::string& sectionName);

/// "Layer 2 of the layered profile" and "Section at 1150 m/s", or "steepest gradient of the
/// section".
Message layersLineName(const LayerComparison& comparison);
Message sectionLineName(const LayerComparison& comparison);

}  // namespace talvesk

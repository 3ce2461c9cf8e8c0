#pragma once

#include "io/projectReader.h"

namespace talvesk {

/// A copy of what a project file holds of a survey, so that it can be saved by another thread while
/// the user goes on. Takes as much memory again as the samples; grid geometry is shared. What a
/// project does not hold (rays, hit counts) is not copied.
LoadedProject snapshotOf(const TomoDocument& document,
                         const refractionDataStructure::Interpretation& interpretation,
                         const ColorPaletteList& palettes, const SectionViewSettings& section,
                         const SharedFolder& folder);

}  // namespace talvesk

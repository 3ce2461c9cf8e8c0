#pragma once

#include "view/ColorPalette.h"

#include <vector>

namespace talvesk {

class TomoDocument;

/// How much faster one section is than another, in percent of the other, per cell of the one. Where
/// their grids differ, the cell of the other counts in which the centre of the cell lies. Not a
/// number where either has no cell that is drawn. Both documents hold a grid.
std::vector<double> velocityDifference(const TomoDocument& section, const TomoDocument& other);

/// The range to colour differences with: as far up as down, and so wide that all but one in fifty
/// lie within it. Never empty.
ValueRange differenceRange(std::vector<double> percent);

/// Blue where a section is slower than the other, pale where they agree, red where it is faster.
ColorPalette differencePalette();

}  // namespace talvesk

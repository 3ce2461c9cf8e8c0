#pragma once

#include "base/Status.h"
#include "view/ColorPalette.h"

#include <cstddef>

namespace talvesk {

/// Limits of what a palette from a file may ask for.
inline constexpr std::size_t kMostGradientStops = 256;
inline constexpr std::size_t kMostPaletteNameBytes = 200;
/// Ends of a value scale; the sliders of the gradient editor count in whole units.
inline constexpr double kLargestPaletteValue = 1e9;

/// Makes a palette that came from outside fit for use: stops sorted, held within 0 and 1, one at
/// either end (the colour of the nearest where there was none); colours within 0 and 1; an inverted
/// scale turned round, an empty one widened; the number of colours within 1 and
/// ColorTable::kMaxColors; blanks for control characters in the name. Fails, with a message that
/// does not name the file and the palette as it was, when there is nothing to repair with: no stop
/// or too many, a number that is not finite, a scale beyond kLargestPaletteValue, an endless name.
Status repairPalette(ColorPalette& palette);

}  // namespace talvesk

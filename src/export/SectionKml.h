#pragma once

#include "base/Status.h"
#include "view/ColorPalette.h"

#include <string>

namespace talvesk {

class TomoDocument;

/// Writes the drawn cells as a wall of upright rectangles along the line, coloured by velocity. The
/// wall stands on the ground: the deepest drawn cell begins at altitude 0, and heights are metres
/// as they are. Fails, with nothing written, without geographic coordinates, geophones, drawn cells
/// or a usable reference system, and for an empty range. For a system that PROJ cannot build
/// easting and northing are written as they are, with a line on the console's error stream. \param
/// palette its stops; colours between them are interpolated \param range velocities at both ends of
/// the palette, m/s; beyond them the end's colour is taken
Status writeSectionKml(const std::string& path, const TomoDocument& document,
                       const ColorPalette& palette, ValueRange range);

/// The colour of a gradient at a fraction of the range, opaque, as "aabbggrr".
std::string kmlColor(const ColorGradient& gradient, double fraction);

}  // namespace talvesk

#pragma once

#include "base/Status.h"

#include <string>

namespace talvesk {

class TomoDocument;

/// Writes geophones ("G-spread-geophone") and shots ("S-shot"), all counted from 0, as marks on the
/// globe. Positions that are not known are left out, with a line on the console's error stream.
/// Fails, with nothing written, without geographic coordinates, geophones or a usable reference
/// system. For a system that PROJ cannot build easting and northing are written as they are, with a
/// line on the console's error stream.
Status writeSeismicLineKml(const std::string& path, const TomoDocument& document);

}  // namespace talvesk

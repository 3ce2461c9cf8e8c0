#pragma once

#include "export/SectionDrawing.h"

#include <string>

namespace talvesk {

/// Writes a survey as layers for a map (GeoPackage, in the reference system of its geographic
/// coordinates; features have elevations, all in metres): "line" the surface, "geophones" and
/// "shots" with their numbers from 1, "isolines" of velocity, those that the user has marked among
/// them with their names, "refractors", and "isovalue_depths",
/// how deep every isovalue is first reached below every column of the section. Fails, with nothing
/// written, as buildDrawing() does, and where the line has no place on the map.
Status writeSectionGeoPackage(const std::string& path, const TomoDocument& document,
                              const DrawingOptions& options);

}  // namespace talvesk

#pragma once

#include "export/SectionDrawing.h"

#include <string>

namespace talvesk {

/// Where the lines of a drawing lie.
enum class DrawingPlace {
  kSection,  ///< x distance along the line, y elevation, z 0
  kMap,      ///< x easting, y northing, z elevation
};

/// Writes the lines of a survey as a drawing (DXF of release 12, one unit a metre): ground surface,
/// coverage limit, isolines, refractors, geophones, shots, title and what the user has drawn, each
/// in a layer with a name and a colour, isolines in one per value, areas in one per kind of ground.
/// Fails, with nothing written, as buildDrawing() does,
/// and on the map without a place of the line there.
Status writeSectionDxf(const std::string& path, const TomoDocument& document,
                       const DrawingOptions& options, DrawingPlace place);

}  // namespace talvesk

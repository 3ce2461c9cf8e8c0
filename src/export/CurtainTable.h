#pragma once

#include "base/Status.h"

#include <string>

namespace talvesk {

class TomoDocument;

/// Writes the section as a curtain of points on the map: a table with a heading, fields separated
/// by commas, a line per drawn cell with easting, northing and elevation of its centre, its
/// distance along the line and depth below the surface (metres), velocity (m/s) and coverage
/// (metres of ray in it, empty where no inversion tells). The names of the columns of the map end
/// in the code of its reference system, "easting_m_epsg32632". Fails, with nothing written, without
/// drawn cells and where the line has no place on the map.
Status writeCurtainTable(const std::string& path, const TomoDocument& document);

}  // namespace talvesk

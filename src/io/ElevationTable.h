#pragma once

#include "base/Point2D.h"
#include "base/Status.h"

#include <string>
#include <string_view>
#include <vector>

namespace talvesk {

/// The ground along a line as a surveyor hands it over: a table of distances and elevations.

/// Reads a table with a heading that names a column for the distance ("x", "distance", "position"
/// and their likes) and one for the elevation ("z", "elevation", "height"), see HeadedTable; or one
/// without a heading that has two columns, distance and elevation. Metres unless the heading says
/// otherwise; any encoding of tableText().
/// \param name of the file, for the messages
/// \param points out, in the order of the file; as before when it is refused
Status parseElevationTable(std::string_view bytes, const std::string& name,
                           std::vector<Point2D>& points);
Status readElevationTable(const std::string& path, std::vector<Point2D>& points);

}  // namespace talvesk

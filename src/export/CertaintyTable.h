#pragma once

#include "base/Status.h"

#include <string>

namespace talvesk {

class TomoDocument;

/// Writes how sure a section is as a table with a heading, fields separated by commas, a line per
/// drawn cell: distance along the line, elevation and depth of its centre (metres), velocity of the
/// section, median and what 16 and 84 % of the members stay below (m/s), spread (half of that range
/// in percent of the median), how many members have a ray in it and the standard deviation of ln
/// velocity. The spread is empty where none has. Fails, with nothing written, without a grid and
/// where no certainty is known.
Status writeCertaintyTable(const std::string& path, const TomoDocument& document);

/// Writes at what depths the velocities that a certainty was asked for are reached: a table with a
/// heading, a line per velocity and column of the grid with the distance along the line, the
/// elevation of the surface, the velocity (m/s), and the median and what 16 and 84 % of the members
/// stay above (metres below the surface; empty where too few members reach it). Fails as the other.
Status writeDepthTable(const std::string& path, const TomoDocument& document);

}  // namespace talvesk

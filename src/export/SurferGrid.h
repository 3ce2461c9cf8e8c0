#pragma once

#include "base/Status.h"

#include <string>

namespace talvesk {

class TomoDocument;

/// Writes velocity (m/s) on a regular raster in Surfer's ASCII grid format (DSAA): x distance along
/// the line as surveyed, y elevation, both in steps of the cell size (metres). A node has the value
/// of the drawn cell around it and is blank (1.70141e+38) outside of the drawn cells; the raster
/// runs through the middle of every column, and of every cell under level ground. Fails, with
/// nothing written, where no cell is drawn and for more than kMaxSurferNodes nodes.
Status writeSurferGrid(const std::string& path, const TomoDocument& document);

inline constexpr double kMaxSurferNodes = 1e7;

}  // namespace talvesk

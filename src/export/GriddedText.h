#pragma once

#include "base/Status.h"

#include <string>

namespace talvesk {

class Grid;
class TomoDocument;

/// How the columns of the gridded text are placed.
struct GriddedTextOptions {
  double lineY = 0.0;    ///< Y coordinate of the line, metres
  double zOffset = 0.0;  ///< added to the elevation, metres
  bool surveyX = false;  ///< X is the distance along the line instead of the grid's abscissa
};

/// Tells the console that the data go to a file. Apart from the writing, because the file is told
/// as soon as it is chosen, before anything else is asked.
void announceGriddedText(const std::string& path);

/// One line "X Y Z V" per drawn cell: X the abscissa of the cell's centre (metres), Y as given, Z
/// the offset minus the centre's depth coordinate (metres), V velocity (m/s).
Status writeGriddedText(const std::string& path, const TomoDocument& document,
                        const GriddedTextOptions& options = {});

/// Elevation of the highest point of the grid's surface, metres: what heights are counted from when
/// only depth matters. 0 for a grid whose surface is unknown.
double referenceElevation(const Grid& grid);

}  // namespace talvesk

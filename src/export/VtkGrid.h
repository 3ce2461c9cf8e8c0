#pragma once

#include "base/Status.h"

#include <string>

namespace talvesk {

class TomoDocument;

/// Writes the drawn cells as an unstructured grid of quadrilaterals in VTK's XML format (.vtu):
/// x distance along the line as surveyed, y 0, z elevation (metres). Per cell "Velocity (m/s)",
/// "Slowness (s/m)", "Vertical gradient (1/s)", and "Information density" where an inversion left
/// one; of a certainty "Median velocity (m/s)", "16 % velocity (m/s)", "84 % velocity (m/s)" and
/// "Uncertainty (%)". Values that do not exist are not a number. Fails, with nothing written, where
/// no cell is drawn.
Status writeVtkGrid(const std::string& path, const TomoDocument& document);

/// The same as a curtain on the map: x easting, y northing, z elevation (metres), with the code of
/// the reference system as the field "EPSG". Fails besides where the line has no place on the map.
Status writeVtkCurtain(const std::string& path, const TomoDocument& document);

}  // namespace talvesk

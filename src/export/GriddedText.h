#pragma once

#include "base/Status.h"
#include "model/TomoDocument.h"

#include <string>

namespace talvesk {

/// One line "X Y Z V" per drawn cell: X grid abscissa of the cell's centre (metres), Y as given, Z
/// the offset minus the centre's depth coordinate (metres), V velocity (m/s).
/// \param lineY Y coordinate of the line, metres; \param zOffset metres
Status writeGriddedText(const std::string& path, const TomoDocument& document, double lineY,
                        double zOffset);

}  // namespace talvesk

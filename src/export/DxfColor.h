#pragma once

#include <cstdint>

namespace talvesk {

/// The colour of the AutoCAD colour index that comes nearest to another one; drawings of release 12
/// know no others. Black becomes 7, which programs show black on white and white on black.
/// \param rgb 0xRRGGBB \return 1 to 255
int nearestDxfColor(std::uint32_t rgb);

}  // namespace talvesk

#pragma once

#include "grid/GridGeometry.h"
#include "tomo/fitted/KnownCells.h"

#include <vector>

namespace talvesk {

/// A model with known ground worked into it, there and in its surroundings: picks alone would not
/// carry what a borehole shows any farther than its own cells, for it is from its reference that a
/// section departs no more than they ask for. Known depths move the velocity that they tell of up
/// or down; layers of boreholes then take the place of what the model has. Both fade out with the
/// distance from where they are known.
/// \param slownesses s/m per cell
std::vector<double> bentToKnown(const KnownCells& known, const GridSize& size,
                                std::vector<double> slownesses);

}  // namespace talvesk

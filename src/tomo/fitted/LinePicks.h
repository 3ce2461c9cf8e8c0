#pragma once

#include "grid/GridGeometry.h"
#include "numerics/LinePicks.h"
#include "tomo/fitted/FitData.h"

namespace talvesk {

/// The picks of a survey on the abscissas of its grid. Picks without a way to go or with numbers
/// that are none are passed over. LinePick::pick is that of FitData::picks.
LinePicks linePicksOf(const FitData& data, const GridGeometry& geometry);

/// Elevation of the surface of a grid, metres; level beyond its ends.
double surfaceElevation(const GridGeometry& geometry, double x);

}  // namespace talvesk

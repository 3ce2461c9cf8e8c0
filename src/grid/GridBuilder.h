#pragma once

#include "base/Status.h"
#include "grid/Grid.h"
#include "grid/SurveyProfile.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace talvesk {

/// The ways to get a grid. Builders return a null pointer and say why on the console when a grid
/// cannot be built; the caller keeps the grid that it had.

/// Velocity of the default starting model at the depth of a row's top below the surface, m/s. It
/// jumps at 3 m and at 20 m on purpose.
double defaultVelocity(double depth);

/// Rows and columns under an array: the columns are truncated while the rows are rounded first.
/// \param maxDepth, cellSize metres; \param nodes per side
GridSize gridSizeFor(double arrayLength, double maxDepth, double cellSize, std::uint32_t nodes);

/// Refuses a size without columns, whose nodes cannot be numbered or whose memory cannot be had,
/// with the numbers. A grid without rows is allowed. \param searches how many ray searches run at
/// once beside the grid
Status checkGridSize(const GridSize& size, unsigned searches);

/// Bytes that a grid and its searches take, estimated.
double estimatedGridBytes(const GridSize& size, unsigned searches);

std::unique_ptr<Grid> buildDefaultGrid(const GridSize& size, const Splines::Spline& surface);
std::unique_ptr<Grid> buildGridFromValues(const GridSize& size, std::vector<double> slownesses,
                                          const Splines::Spline& surface);
/// \param velocityOfDepth m/s at depth in metres; row iz gets slowness 1 / f(iz * aLato)
std::unique_ptr<Grid> buildGridFromVelocity(const GridSize& size,
                                            const std::function<double(double)>& velocityOfDepth,
                                            const Splines::Spline& surface);

}  // namespace talvesk

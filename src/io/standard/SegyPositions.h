#pragma once

#include "base/Point2D.h"
#include "io/standard/SegyTraces.h"

#include <vector>

namespace talvesk {

struct SegyPosition {
  Point2D source;  ///< metres; of the shot itself, below the ground where it was in a hole
  Point2D receiver;
};

/// Where sources and receivers stand along the line, one for every trace. What had to be decided is
/// added to the warnings of the traces.
///
/// Where all receivers share their y, x stays as it is. Otherwise x is the distance along the
/// straight line from the first receiver to the one that is farthest from it, to the millimetre.
/// Where coordinates do not tell receivers apart, and offsets do, a receiver is at its offset from
/// its source. Shots without elevations among geophones that have them stand at that of the
/// nearest. Elevations outside -12000 to 12000 m are no elevations, and then none of the file is
/// taken.
std::vector<SegyPosition> segyPositions(SegyTraces& found);

}  // namespace talvesk

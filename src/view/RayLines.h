#pragma once

#include "base/Point2D.h"

#include <vector>

namespace talvesk {

class TomoDocument;

/// The rays of the last forward pass as lines, survey positions. A forward pass traces every
/// receiver, picked or not; lines of receivers without a pick are left out, for they tell nothing
/// about the ground and may run far below what was inverted. Where the rays are not those of the
/// records as they are now, all of them are lines.
std::vector<std::vector<Point2D>> rayLines(const TomoDocument& document);

}  // namespace talvesk

#pragma once

#include "refraction/methods/MethodResult.h"

namespace talvesk {

/// Interprets picks by one method. Depths are vertical, dips small. Velocities that no ground has
/// and depths beyond the length of the line are left out with a remark. Tells nothing on the
/// console.
MethodResult interpretBy(LayerMethod method, const LayerPicks& picks);

}  // namespace talvesk

#pragma once

#include "base/Point2D.h"

#include <cstddef>
#include <vector>

namespace talvesk {

class TomoDocument;

/// Whose ray it is, both from 0.
struct RayOwner {
  std::size_t record = 0;
  std::size_t receiver = 0;
};

/// Of every ray of the last forward pass: rays follow each other shot by shot, receivers in order,
/// without the shots that were left out as a whole. Empty where the rays are not those of the
/// records as they are now.
std::vector<RayOwner> rayOwners(const TomoDocument& document);

/// The rays of the last forward pass as lines, survey positions. A forward pass traces every
/// receiver, picked or not; lines of receivers without a pick are left out, for they tell nothing
/// about the ground and may run far below what was inverted. Where the rays are not those of the
/// records as they are now, all of them are lines.
std::vector<std::vector<Point2D>> rayLines(const TomoDocument& document);

}  // namespace talvesk

#pragma once

#include "base/Point2D.h"

namespace talvesk {

/// Files of positions hold six significant digits. Whether a position that was read is what a file
/// has of one that was kept, so that nothing has moved: the same, or the kept one as it is written.
bool isWritten(const Point2D& kept, const Point2D& read);

}  // namespace talvesk

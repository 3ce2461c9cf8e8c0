#pragma once

#include "view/ColorPalette.h"

#include <QImage>

namespace talvesk {

struct KeptRun;

/// The covered cells of a run in small, one pixel each, in the colours of a palette over its scale;
/// the rest is transparent. Null for a run without cells.
QImage runThumbnail(const KeptRun& run, const ColorPalette& palette);

}  // namespace talvesk

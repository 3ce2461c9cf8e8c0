#pragma once

#include "base/Status.h"
#include "figures/FigureFile.h"

#include <string>

namespace talvesk {

struct MethodComparison;

struct LayerMethodsFigureOptions {
  double widthMm = 240.0;
  double heightMm = 120.0;
  double dpi = 150.0;  ///< pixels per inch of a PNG
};

/// Depths of the refractors below the surface along the line, by every method in a colour and with
/// a mark of its own: full where picks carry them, dashed elsewhere, between the ends of their
/// error bands where there are some. Marks of the second refractor are hollow. Fails where no
/// method has a depth, and where axes leave too little room.
Status prepareLayerMethodsFigure(const MethodComparison& comparison,
                                 const LayerMethodsFigureOptions& options, FigureDrawing& drawing);

/// The same as a file; the suffix decides between PNG, SVG and PDF. Fails, too, for a size that
/// makes no picture and when the file cannot be written; then one that was there is untouched.
Status writeLayerMethodsFigure(const MethodComparison& comparison,
                               const LayerMethodsFigureOptions& options, const std::string& path);

}  // namespace talvesk

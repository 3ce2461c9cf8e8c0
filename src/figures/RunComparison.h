#pragma once

#include "figures/FigureFile.h"
#include "figures/SectionFigureOptions.h"
#include "model/TomoDocument.h"

#include <string>

namespace talvesk {

/// Two sections that are to be looked at side by side.
struct RunComparison {
  TomoDocument left;  ///< with its grid and coverage, as putRun() gives it
  TomoDocument right;
  std::string leftTitle;  ///< UTF-8
  std::string rightTitle;
  std::string differenceTitle;  ///< of the right one less the left one
  /// Palette, markers, range where it is locked; the rest of the scene is as the comparison asks.
  SectionFigureOptions look;
  bool lockedRange = false;  ///< the palette's scale, else what both sections span
  double widthMm = 280.0;
  double dpi = 150.0;  ///< pixels per inch of a PNG
};

/// Lays out a sheet with both sections above, in the same palette and over the same range, and how
/// much faster the right one is than the left one, in percent, below. Fails as
/// prepareSectionFigure() does, and where the two have no cell in common.
Status prepareRunComparison(const RunComparison& comparison, FigureDrawing& drawing);

/// The same as a file, whose suffix decides between PNG, SVG and PDF: see writeSectionFigure().
Status writeRunComparison(const RunComparison& comparison, const std::string& path);

}  // namespace talvesk

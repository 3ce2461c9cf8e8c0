#pragma once

#include "view/ColorPalette.h"
#include "view/SectionScene.h"
#include "view/SectionViewSettings.h"

#include <string>

namespace talvesk {

/// How iso-lines are drawn.
struct ContourStyle {
  RgbColor color{0.1, 0.1, 0.1};
  double width = 0.9;        ///< points of 1/96 inch
  int labelEvery = 1;        ///< every how many values a line carries its value; 0: no labels
  double labelPoints = 7.5;  ///< label size, points
};

/// Where the colours of a section are explained.
enum class ColorBar { kNone, kVertical, kHorizontal };

struct SectionFigureOptions {
  double widthMm = 280.0;
  double heightMm = 0.0;  ///< 0: as high as the section asks for
  double dpi = 150.0;     ///< pixels per inch of a PNG

  SectionSceneOptions scene;  ///< quantity, value range, contour values, rays
  ColorPalette palette = ColorPaletteList().current();
  ContourStyle contourStyle;
  GeophoneMarkers geophones = GeophoneMarkers::kNormal;
  ColorBar colorBar = ColorBar::kVertical;  ///< beside the section, or above it
  bool gridLines = false;                   ///< at the numbers of the axes
  bool showTitle = true;  ///< false: the title is for the properties of the file only
  std::string title;      ///< UTF-8; empty: the document's title, and without one the quantity

  /// Height of a metre over width of a metre. 0 lets the picture choose: 1 where the section stays
  /// legible, more for one that is long and shallow. The caption states any other than 1.
  double verticalExaggeration = 0.0;
};

/// Where the section lies in its picture: the rectangle between the axes, and what its sides stand
/// for. Who lays something over the picture, or checks it, finds positions with it.
struct SectionFigureLayout {
  double widthMm = 0.0;   ///< whole picture
  double heightMm = 0.0;  ///< whole picture
  double leftMm = 0.0;    ///< of the rectangle, from the picture's left edge
  double topMm = 0.0;     ///< of the rectangle, from the picture's upper edge
  double rightMm = 0.0;
  double bottomMm = 0.0;
  double minX = 0.0;  ///< survey x at the left side, metres
  double maxX = 0.0;
  double minElevation = 0.0;  ///< at the lower side, metres
  double maxElevation = 0.0;
  double verticalExaggeration = 1.0;

  double xToMm(double x) const;                  ///< from the picture's left edge
  double elevationToMm(double elevation) const;  ///< from the picture's upper edge
};

}  // namespace talvesk

#pragma once

#include "base/Status.h"
#include "figures/FigureFile.h"
#include "figures/FigurePlot.h"

#include <functional>
#include <optional>
#include <string>

namespace talvesk {

/// What a figure is laid out for.
struct PrintSize {
  double scale = 0.0;    ///< metres along the line to a metre of paper; of other figures nothing
  double widthMm = 0.0;  ///< room on the sheet
  double heightMm = 0.0;
  double exaggeration = 0.0;     ///< height of a metre over its width; 0: as the figure has it
  double msPerCm = 0.0;          ///< of paper; 0: as high as there is room
  std::optional<PlotPart> part;  ///< of the plot at this scale; none: all of it
};

/// A figure as it lies on paper. It may be larger than the room it was laid out for.
struct LaidFigure {
  FigureDrawing drawing;
  double exaggeration = 0.0;  ///< 0: its upright axis is no length
  PlotPlace place;  ///< of its plot, of a figure along the line that is not larger than any sheet
};

/// A figure that can be printed, and what there is to choose of its size. Looks at what it was made
/// of, which must outlive it.
struct PrintFigure {
  enum class Upright { kOther, kElevation, kTime };

  std::string title;                  ///< UTF-8; the block below the figure has it
  bool alongLine = false;             ///< its lower axis is a distance, which can be true to scale
  Upright upright = Upright::kOther;  ///< what its left axis is, where alongLine
  /// Figures along the line get narrower as the scale number grows; all others fit the room.
  std::function<Status(const PrintSize& size, LaidFigure& laid)> layOut;
};

}  // namespace talvesk

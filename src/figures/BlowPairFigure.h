#pragma once

#include "base/Status.h"
#include "figures/FigureFile.h"
#include "figures/FigureNumbers.h"
#include "figures/GatherPanels.h"
#include "view/BlowPair.h"

#include <QLocale>
#include <QString>
#include <optional>
#include <string>
#include <vector>

namespace talvesk {

/// How two blows are drawn: over each other in two colours, and beside that what is left of one
/// without the other, and what both have in common.
struct BlowPairLook {
  double widthMm = 297.0;
  double heightMm = 180.0;
  double dpi = 150.0;  ///< pixels per inch of a PNG
  bool overlay = true;
  bool difference = true;
  bool sum = true;
  bool trueAmplitudes = false;  ///< all traces to one measure; else each to its own
  double gain = 1.0;            ///< swing of the larger of both blows, in distances between traces
  bool picks = true;
  std::optional<double> endMs;  ///< of the axis of time; none: by the picks
  QString firstName;            ///< of the blows, for the heading
  QString secondName;
  QLocale locale = figureLocale();  ///< of numbers
};

/// Lays the panels out that are wanted and that there are; difference and sum by the measure of the
/// blows that they are made of, so that what is small in them looks small. Fails where no panel is
/// wanted, or the picture is too small.
Status prepareBlowPair(const BlowPair& pair, const BlowPairLook& options, FigureDrawing& drawing,
                       std::vector<GatherPanelPlace>* places = nullptr);

/// Writes the picture as PNG, SVG or PDF by the suffix of `path`, whole or not at all.
Status writeBlowPair(const std::string& path, const BlowPair& pair, const BlowPairLook& options);

}  // namespace talvesk

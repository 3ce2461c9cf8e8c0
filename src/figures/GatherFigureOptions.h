#pragma once

#include "figures/PlotPart.h"
#include "view/ColorPalette.h"
#include "view/GatherMapping.h"

#include <cstddef>
#include <optional>
#include <string>

namespace talvesk {

/// What a full swing of a trace is measured by.
enum class GatherScaling {
  kEachTrace,  ///< the largest swing of the trace itself
  kWholeShot   ///< the largest swing of all traces: amplitudes can be compared
};

/// Part of a record, milliseconds from its first sample, or in reduced time.
struct TimeWindow {
  double beginMs = 0.0;
  double endMs = 0.0;
};

struct GatherFigureOptions {
  double widthMm = 280.0;
  double heightMm = 190.0;
  double dpi = 150.0;    ///< pixels per inch of a PNG
  double scale = 0.0;    ///< metres along the line to a metre of the sheet, whose width follows; 0:
                         ///< as wide as the sheet has room for, as are channels
  double msPerCm = 0.0;  ///< times to a centimetre of the sheet, whose height follows; 0: as high
                         ///< as the sheet has room for
  std::optional<PlotPart> part;  ///< at a scale; its height counts with msPerCm only

  /// The one shot to draw, from 0; none: all of them. Counts in writeGatherFigures() only.
  std::optional<std::size_t> shot;
  /// The filtered copy of a trace that has one; else its samples.
  bool filtered = true;
  GatherScaling scaling = GatherScaling::kEachTrace;
  /// Swing of the largest value within the window, in distances between traces.
  double gain = 2.0;
  /// Swings are cut beyond this, in distances between traces.
  double clip = 0.7;
  bool fillPositive = true;
  /// None: from 0 to half as long again as the last pick takes, or the whole record of a shot
  /// without picks.
  std::optional<TimeWindow> window;
  /// Channel numbers along the axis even where receiver positions are known.
  bool byChannel = false;
  /// An order by offset goes before both.
  GatherManner manner;

  bool picks = true;
  bool errorBars = true;  ///< where errors of picks are known
  RgbColor pickColor{0.85, 0.05, 0.1};
  std::string title;      ///< UTF-8, above every shot; empty: the name of the shot's file
  bool showTitle = true;  ///< false: the title is for the properties of the file only
};

}  // namespace talvesk

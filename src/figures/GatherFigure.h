#pragma once

#include "base/Status.h"
#include "figures/FigureFile.h"
#include "figures/FigurePlot.h"
#include "view/ColorPalette.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

class QByteArray;

namespace talvesk {

class TomoDocument;

/// What a full swing of a trace is measured by.
enum class GatherScaling {
  kEachTrace,  ///< the largest swing of the trace itself
  kWholeShot   ///< the largest swing of all traces: amplitudes can be compared
};

/// Part of a record, milliseconds from its first sample.
struct TimeWindow {
  double beginMs = 0.0;
  double endMs = 0.0;
};

struct GatherFigureOptions {
  double widthMm = 280.0;
  double heightMm = 190.0;
  double dpi = 150.0;  ///< pixels per inch of a PNG

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

  bool picks = true;
  RgbColor pickColor{0.85, 0.05, 0.1};
  std::string title;  ///< UTF-8, above every shot; empty: the name of the shot's file
};

/// Where things lie in the picture of one shot. The lower axis of the place is distance (m) or
/// channel, the left one time (ms).
struct GatherFigureLayout {
  struct Pick {
    std::size_t trace = 0;  ///< of the set, from 0
    double x = 0.0;         ///< on the lower axis
    double timeMs = 0.0;
  };

  PlotPlace place;
  bool byChannel = false;   ///< the lower axis counts channels from 1
  TimeWindow window;        ///< of the traces; the axis reaches a little beyond both ends
  std::vector<Pick> picks;  ///< as drawn
  std::size_t tracesDrawn = 0;
};

/// Draws the traces of a document's shots as wiggles against receiver position, time downward, with
/// their first breaks marked at sample index times interval. Positions are those of the shot's
/// geophone string, else of the traces' headers, else channel numbers. The suffix of `path`
/// decides: .pdf is one file with a page for each shot; .png and .svg are a file for each, with the
/// number of the shot before the suffix ("line.png": "line_01.png", "line_02.png"), or just `path`
/// when the document has one shot or the options ask for one.
///
/// Needs the QApplication and must run on its thread. Every file is replaced whole or not at all. A
/// failure ends the work; files already complete remain.
/// \param written out, the files that were written, in the order of the shots
Status writeGatherFigures(const TomoDocument& document, const GatherFigureOptions& options,
                          const std::string& path, std::vector<std::string>& written);

/// One shot into memory. \param shot trace set, from 0 \param layout null when nobody asks
Status renderGatherFigure(const TomoDocument& document, std::size_t shot,
                          const GatherFigureOptions& options, FigureFormat format,
                          QByteArray& bytes, GatherFigureLayout* layout = nullptr);

}  // namespace talvesk

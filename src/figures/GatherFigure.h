#pragma once

#include "base/Status.h"
#include "figures/FigureFile.h"
#include "figures/FigurePlot.h"
#include "figures/GatherFigureOptions.h"

#include <cstddef>
#include <string>
#include <vector>

class QByteArray;

namespace talvesk {

class TomoDocument;

/// Where things lie in the picture of one shot. The lower axis of the place is distance or offset
/// (m) or channel, the left one time (ms), both as drawn.
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
/// geophone string, else of the traces' headers, else channel numbers; the manner of the options
/// may put traces by their offset and reduce times. The suffix of `path` decides: .pdf is one file
/// with a page for each shot; .png and .svg are a file for each, with the number of the shot before
/// the suffix ("line.png": "line_01.png", "line_02.png"), or just `path` when the document has one
/// shot or the options ask for one.
///
/// Needs the QApplication and must run on its thread. Every file is replaced whole or not at all. A
/// failure ends the work; files already complete remain.
/// \param written out, the files that were written, in the order of the shots
Status writeGatherFigures(const TomoDocument& document, const GatherFigureOptions& options,
                          const std::string& path, std::vector<std::string>& written);

/// The same of one shot for who paints it himself. The document must outlive the drawing.
/// \param shot trace set, from 0 \param place of the plot; null when nobody asks
Status prepareGatherFigure(const TomoDocument& document, std::size_t shot,
                           const GatherFigureOptions& options, FigureDrawing& drawing,
                           PlotPlace* place = nullptr);

/// One shot into memory. \param shot trace set, from 0 \param layout null when nobody asks
Status renderGatherFigure(const TomoDocument& document, std::size_t shot,
                          const GatherFigureOptions& options, FigureFormat format,
                          QByteArray& bytes, GatherFigureLayout* layout = nullptr);

}  // namespace talvesk

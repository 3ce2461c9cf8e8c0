#pragma once

#include "base/Status.h"
#include "figures/FigureFile.h"
#include "figures/FigurePlot.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

class QByteArray;

namespace talvesk {

class TomoDocument;

struct TravelTimeFigureOptions {
  double widthMm = 280.0;
  double heightMm = 160.0;
  double dpi = 150.0;    ///< pixels per inch of a PNG
  double scale = 0.0;    ///< metres along the line to a metre of the sheet, whose width
                         ///< follows; 0: as wide as the sheet has room for
  double msPerCm = 0.0;  ///< times to a centimetre of the sheet, whose height follows; 0: as high
                         ///< as the sheet has room for
  std::optional<PlotPart> part;  ///< at a scale; its height counts with msPerCm only
  bool computed = true;          ///< computed times, where there are any
  /// Times computed through layers, per record and geophone, seconds; empty for none.
  std::vector<std::vector<double>> layered;
  bool errorBars = true;  ///< where errors of picks are known
  std::string title;      ///< UTF-8; empty: the document's title, and without one "Travel times"
  bool showTitle = true;  ///< false: the title is for the properties of the file only
};

/// Where things lie in the picture: distance (m) below, time (ms) upward at the left.
struct TravelTimeFigureLayout {
  struct Pick {
    std::size_t record = 0;    ///< from 0
    std::size_t geophone = 0;  ///< of the record's string, from 0
    double x = 0.0;            ///< metres
    double timeMs = 0.0;
  };

  PlotPlace place;
  std::vector<Pick> picks;  ///< as drawn
  std::size_t computedTimes = 0;
  std::size_t layeredTimes = 0;
};

/// Draws the T-x curves of a survey and replaces the file at `path` by them, whole or not at all;
/// the suffix decides between PNG, SVG and PDF. The picks of a shot are symbols of one colour, as
/// is the star at the shot; its computed times are a thin line of that colour, and without them the
/// line joins the picks of neighbouring geophones. Times through layers are a dashed line. Removed
/// and missing picks leave a gap. Over a pick whose error is known stands a bar of one standard
/// deviation to either side; that of a doubtful one is dashed, and its symbol is a ring. Receiver
/// positions are those of the record's geophone string, else of the headers of its traces.
///
/// Needs the QApplication and must run on its thread. Fails without a time to draw, for a size that
/// makes no picture, and when the file cannot be written; then a file that was there before is
/// untouched.
Status writeTravelTimeFigure(const TomoDocument& document, const TravelTimeFigureOptions& options,
                             const std::string& path);

/// The same for who paints it himself.
/// \param place of the plot; null when nobody asks
Status prepareTravelTimeFigure(const TomoDocument& document, const TravelTimeFigureOptions& options,
                               FigureDrawing& drawing, PlotPlace* place = nullptr);

/// The same into memory. \param layout null when nobody asks
Status renderTravelTimeFigure(const TomoDocument& document, const TravelTimeFigureOptions& options,
                              FigureFormat format, QByteArray& bytes,
                              TravelTimeFigureLayout* layout = nullptr);

}  // namespace talvesk

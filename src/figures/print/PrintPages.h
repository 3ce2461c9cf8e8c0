#pragma once

#include "figures/print/PrintFigure.h"
#include "figures/print/PrintSheet.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

class QPainter;
class QRectF;

namespace talvesk {

/// How a figure is to be printed.
struct PrintSettings {
  static constexpr double kLeastMsPerCm = 0.01;
  static constexpr double kMostMsPerCm = 1e5;

  PrintSheet sheet;
  double exaggeration = 0.0;  ///< as of PrintSize
  double msPerCm = 0.0;       ///< as of PrintSize
  std::string title;          ///< UTF-8; empty: the figure's own
  bool tiles = false;         ///< what is larger than the sheet goes over several
};

/// Sheets of one size that are ready to be painted, as often as one likes and on any device that
/// knows its resolution; what is painted measures the same on paper.
struct PrintPages {
  FigureSheet sheet;        ///< of each
  std::size_t columns = 1;  ///< of a figure that goes over several
  std::size_t rows = 1;
  double scale = 0.0;  ///< as printed, metres along the line to one of paper; 0: there is none
  double figureWidthMm = 0.0;  ///< without the block below
  double figureHeightMm = 0.0;
  /// Where the plot of each sheet lies on it, of a figure along the line.
  std::vector<PlotPlace> places;
  /// \param page from 0, row by row \param rect of the whole sheet, in units of the device
  std::function<void(std::size_t page, QPainter& painter, const QRectF& rect)> paint;

  std::size_t count() const { return columns * rows; }
};

/// Whether a figure has room on a sheet, and what else would have.
struct PrintFit {
  bool fits = false;
  double figureWidthMm = 0.0;  ///< what it takes; of one larger than any sheet about
  double figureHeightMm = 0.0;
  double roomWidthMm = 0.0;  ///< what one sheet has, above its block
  double roomHeightMm = 0.0;
  double scale = 0.0;       ///< the next round one at which it fits; 0: none
  std::string paper;        ///< the smallest on which it fits at this scale; empty: none
  bool landscape = false;   ///< of that
  bool byTimes = false;     ///< more milliseconds to a centimetre may do, too
  std::size_t columns = 0;  ///< sheets it would be split over; 0: too many
  std::size_t rows = 0;
};

/// Lays a figure out on paper above a block with title, scales and a scale bar. At
/// PrintSheet::kToFit the scale is the largest of three digits at which it has room. A figure
/// without a length along the line fills the sheet at any scale. What does not fit fails, with what
/// would in the message, unless it may go over several sheets.
/// \param fit whether there is room; left alone where something else fails. Null when nobody asks
Status preparePrint(const PrintFigure& figure, const PrintSettings& settings, PrintPages& pages,
                    PrintFit* fit = nullptr);

/// The scale to begin with: PrintSheet::kFirstScale where the figure fits one sheet at it, else the
/// next of the usual ones at which it does; kFirstScale, too, where it has room at none.
double proposedScale(const PrintFigure& figure, const PrintSettings& settings);

/// Prints as a PDF, one set of sheets after the other, and replaces the file at `path` by it, whole
/// or not at all. All sheets are as large as the first.
Status writePrint(const std::vector<PrintPages>& sets, const std::string& path);

}  // namespace talvesk

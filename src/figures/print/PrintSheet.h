#pragma once

#include "base/Status.h"
#include "figures/FigureFile.h"
#include "figures/SectionFigureOptions.h"
#include "figures/TravelTimeFigure.h"

#include <cstddef>
#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;

/// A sheet of paper, upright.
struct Paper {
  std::string name;  ///< "A3"
  double widthMm = 0.0;
  double heightMm = 0.0;
};

/// Those that figures are printed on, A4 first.
const std::vector<Paper>& papers();

/// What a figure is printed on, and how large.
struct PrintSheet {
  static constexpr double kLeastScale = 1.0;
  static constexpr double kMostScale = 1e6;
  static constexpr double kToFit = 0.0;      ///< the scale that fills the sheet
  static constexpr double kMarginMm = 10.0;  ///< on every side; printers leave some of it blank

  double scale = 500.0;    ///< metres along the line to a metre of paper
  double widthMm = 420.0;  ///< of the paper as it is turned
  double heightMm = 297.0;

  /// \param landscape the longer side lies below
  static PrintSheet on(const Paper& paper, bool landscape, double scale);
};

/// Most sheets that a figure is split over.
constexpr std::size_t kMostPrintPages = 200;
/// What neighbouring sheets have in common, millimetres. A cross in its middle
/// lies at the same place of both.
constexpr double kPrintOverlapMm = 10.0;

/// Lays a section out on a sheet of paper, along the line true to scale, above
/// a block with title, scales and a scale bar. Elevations are exaggerated as
/// the options tell; their scale stands in the block, too. Sizes and showTitle
/// of the options do not count. What is painted on any device that knows its
/// resolution measures the same on paper. Fails as the figure does; where it
/// does not fit the message names the first round scale at which it does.
Status prepareSectionPrint(const TomoDocument& document, const SectionFigureOptions& options,
                           const PrintSheet& sheet, FigureDrawing& drawing);

/// The same of travel-time curves.
Status prepareTravelTimePrint(const TomoDocument& document, const TravelTimeFigureOptions& options,
                              const PrintSheet& sheet, FigureDrawing& drawing);

/// Prints a drawing as a PDF of one page, and replaces the file at `path` by
/// it, whole or not at all.
Status writePrint(const FigureDrawing& drawing, const std::string& path);

}  // namespace talvesk

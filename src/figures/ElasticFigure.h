#pragma once

#include "base/Status.h"
#include "figures/FigureFile.h"
#include "figures/FigurePlot.h"
#include "refraction/elastic/ElasticLine.h"

#include <QString>
#include <cstdint>
#include <optional>
#include <string>

namespace talvesk {

struct ElasticFigureOptions {
  double widthMm = 200.0;  ///< the height follows from what is shown
  double dpi = 150.0;      ///< pixels per inch of a PNG
  double scale = 0.0;      ///< metres along the line to a metre of the sheet, whose width follows;
                           ///< 0: as wide as the sheet has room for
  double heightMm = 0.0;   ///< at most; 0: as much as the curves ask for
  std::optional<PlotPart> part;  ///< at a scale; its height does not count
  std::string title;             ///< UTF-8; may be empty
  std::uint32_t layer = 0;       ///< the only one to be shown, from 1; 0: all
};

/// What a quantity is called, the unit of its values in kElasticColumns, and both: "G0 [MPa]".
QString elasticName(ElasticQuantity quantity);
QString elasticUnit(ElasticQuantity quantity);
QString elasticTitle(ElasticQuantity quantity);
/// Where the densities of a line come from.
QString densityText(const DensityRule& rule);

/// Curves along the line under each other: velocities, Vp/Vs, Poisson's ratio, G0 and E0, K and M,
/// a colour per layer. Moduli have a logarithmic axis where all of them are positive. Fails without
/// anything known to draw, and where axes leave too little room.
/// \param place of all plots together, of no values upward; null when nobody asks
Status prepareElasticFigure(const ElasticLine& line, const ElasticFigureOptions& options,
                            FigureDrawing& drawing, PlotPlace* place = nullptr);

/// The same as a file, whose suffix decides between PNG, SVG and PDF.
Status writeElasticFigure(const ElasticLine& line, const ElasticFigureOptions& options,
                          const std::string& path);

}  // namespace talvesk

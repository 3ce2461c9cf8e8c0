#pragma once

#include "base/Status.h"
#include "figures/FigureFile.h"
#include "figures/FigureNumbers.h"
#include "figures/MatrixPicture.h"
#include "figures/PlotSeries.h"
#include "figures/SectionFigureOptions.h"
#include "view/ResidualTable.h"

#include <QLocale>
#include <QString>
#include <optional>
#include <string>
#include <vector>

namespace talvesk {

class TomoDocument;

/// The views of the residuals of a section, for the screen and for files: shot by geophone, over
/// the offset, per shot above per geophone, and along the rays.
enum class ResidualView { kMap, kOffset, kGroups, kSection };

/// What a view is made of.
struct ResidualLook {
  ResidualUnit unit = ResidualUnit::kMilliseconds;
  std::optional<std::size_t> shot;   ///< whose dots have a colour of their own, from 0
  bool onDark = false;               ///< of a dark desktop
  QLocale numbers = figureLocale();  ///< as they are written
};

/// "Computed minus measured [ms]", or in errors of the picks.
QString residualAxis(ResidualUnit unit);
/// "Shot 3, geophone 10 at 28 m, offset 12.5 m: measured 14.2 ms, ..." as long as it is known.
QString residualText(const ResidualTable& table, std::size_t pick, const QLocale& locale);

/// Shots by geophones, both along the line; suspects carry a dot, rows and columns that stand out
/// are bold.
MatrixPicture residualMatrix(const ResidualTable& table, const ResidualLook& look);
/// The dots of all picks over their offset, with zero, running median and band of one standard
/// deviation.
std::vector<PlotSeries> offsetSeries(const ResidualTable& table, const ResidualLook& look);
/// Medians with bars of one standard deviation either way.
std::vector<PlotSeries> spreadSeries(const std::vector<ResidualSpread>& spreads,
                                     const ResidualLook& look);

/// What makes a section show the residuals along the rays. Fails where there are no rays.
/// \param section look to begin with, and the outcome
Status showResidualsAlongRays(const TomoDocument& document, const ResidualTable& table,
                              ResidualUnit unit, SectionFigureOptions& section);

/// A view as a figure. Fails where there is nothing to show, and as prepareSectionFigure() does.
/// \param sheet its size, and the look of the section in ResidualView::kSection
Status prepareResidualFigure(const TomoDocument& document, const ResidualTable& table,
                             ResidualView view, const ResidualLook& look,
                             const SectionFigureOptions& sheet, FigureDrawing& drawing);

/// The same as a file, whose suffix decides between PNG, SVG and PDF.
Status writeResidualFigure(const TomoDocument& document, const ResidualTable& table,
                           ResidualView view, const ResidualLook& look,
                           const SectionFigureOptions& sheet, const std::string& path);

}  // namespace talvesk

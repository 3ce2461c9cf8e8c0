#pragma once

#include "base/Status.h"
#include "figures/FigureFile.h"

namespace talvesk {

class TomoDocument;
struct InversionRecord;

/// RMS misfit in milliseconds through the starting model and through the section after every
/// external iteration, and paler that of the solver's last pass in each. Fails without a misfit to
/// draw.
Status prepareMisfitHistoryFigure(const InversionRecord& record, double widthMm, double heightMm,
                                  FigureDrawing& drawing);

/// Residuals in milliseconds against offset. Fails without any.
Status prepareResidualFigure(const TomoDocument& document, double widthMm, double heightMm,
                             FigureDrawing& drawing);

}  // namespace talvesk

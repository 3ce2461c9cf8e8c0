#pragma once

#include "base/Status.h"
#include "figures/FigureFile.h"

namespace talvesk {

struct InversionRecord;

/// RMS misfit in milliseconds through the starting model and through the section after every
/// external iteration, and paler that of the solver's last pass in each. Fails without a misfit to
/// draw.
Status prepareMisfitHistoryFigure(const InversionRecord& record, double widthMm, double heightMm,
                                  FigureDrawing& drawing);

}  // namespace talvesk

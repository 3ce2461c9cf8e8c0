#pragma once

#include "base/Status.h"
#include "figures/FigureFile.h"

#include <cstddef>
#include <vector>

namespace talvesk {

class TomoDocument;
struct InversionRecord;
struct TravelTime;

/// How a computed time fits its pick.
struct Residual {
  std::size_t record = 0;
  double offset = 0.0;    ///< distance of shot and geophone along the line, metres; NaN: unknown
  double measured = 0.0;  ///< seconds
  double residual = 0.0;  ///< computed minus measured, seconds: late is positive
};

/// Of every pick with a computed time, in the order of the records.
std::vector<Residual> residualsOf(const TomoDocument& document);

/// RMS misfit in milliseconds after every external iteration. Fails without a misfit to draw.
Status prepareMisfitHistoryFigure(const InversionRecord& record, double widthMm, double heightMm,
                                  FigureDrawing& drawing);

/// Residuals in milliseconds against offset. Fails without any.
Status prepareResidualFigure(const TomoDocument& document, double widthMm, double heightMm,
                             FigureDrawing& drawing);

}  // namespace talvesk

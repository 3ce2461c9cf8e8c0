#pragma once

#include "figures/ElasticFigure.h"
#include "figures/GatherFigureOptions.h"
#include "figures/RefractionFigure.h"
#include "figures/ResidualFigures.h"
#include "figures/SectionFigureOptions.h"
#include "figures/TravelTimeFigure.h"
#include "figures/print/PrintFigure.h"
#include "view/DepthProfile.h"

#include <cstddef>

namespace talvesk {

struct InversionRecord;

// The figures of a survey as they are printed. Sizes and showTitle of their options do not count.
// What a figure is made of must outlive it; what has nothing to show fails when it is laid out.

/// Elevations are exaggerated as the options tell where nothing else is asked for.
PrintFigure printedSection(const TomoDocument& document, const SectionFigureOptions& options);
PrintFigure printedCurves(const TomoDocument& document, const TravelTimeFigureOptions& options);
PrintFigure printedLayers(const TomoDocument& document,
                          const refractionDataStructure::Interpretation& profile,
                          const RefractionFigureOptions& options);
/// Along channels, which are no length, where the places of the traces are not known.
/// \param shot trace set, from 0
PrintFigure printedGather(const TomoDocument& document, std::size_t shot,
                          const GatherFigureOptions& options);
PrintFigure printedMisfit(const TomoDocument& document, const InversionRecord& record);
/// \param look of the section in ResidualView::kSection
PrintFigure printedResiduals(const TomoDocument& document, const ResidualTable& table,
                             ResidualView view, const SectionFigureOptions& look);
PrintFigure printedDepthProfile(const TomoDocument& document, const DepthProfiles& section,
                                double x);
PrintFigure printedElastic(const ElasticLine& line, const ElasticFigureOptions& options);

}  // namespace talvesk

#pragma once

#include "model/ChiSquare.h"
#include "tomo/fitted/FitData.h"
#include "tomo/fitted/RayTracer.h"

#include <memory>
#include <vector>

namespace talvesk {

class GridGeometry;
class TomoDocument;
struct KnownCells;

/// The picks of a survey as a fit takes them: all but those that its grid does not reach, which
/// findExcluded() names. The document holds a grid.
FitData picksToFit(const TomoDocument& document, const PickErrorRule& errors);

/// The same of every receiver that the grid reaches, picked or not; errors and missing times are 0.
FitData receiversToTrace(const TomoDocument& document);

/// What a document's known ground asks of the cells of its grid; null where nothing is known.
std::shared_ptr<const KnownCells> knownCellsOf(const TomoDocument& document);

/// The tracer with which sections are fitted, and with which the times of a fitted section are
/// computed ever after. \param threads at least 1
std::unique_ptr<RayTracer> fitTracer(const std::shared_ptr<const GridGeometry>& geometry,
                                     const FitData& data, unsigned threads);

/// Writes times into the document; receivers that the data does not have keep theirs.
/// \param times seconds, of the picks of the data
void putTimes(const FitData& data, const std::vector<double>& times, TomoDocument& document);

/// The times through a fitted section take the place of those along the nodes of its grid. May
/// throw. \param threads at least 1
void traceFittedTimes(TomoDocument& document, unsigned threads);

}  // namespace talvesk

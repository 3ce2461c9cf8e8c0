#include "figures/FigureWords.h"
#include "figures/LayerMethodsFigure.h"
#include "figures/report/LayerMethodTexts.h"
#include "figures/report/ReportBuilder.h"
#include "refraction/methods/MethodComparison.h"

#include <algorithm>

// The layers by several methods, side by side.

namespace talvesk::report {
namespace {

bool anyHas(const MethodComparison& comparison, std::uint32_t layer) {
  return std::any_of(comparison.results.begin(), comparison.results.end(),
                     [layer](const MethodResult& r) { return r.layer(layer) != nullptr; });
}

}  // namespace

void addLayerMethods(ReportBuilder& builder) {
  const MethodComparison* comparison = builder.source.methods;
  if (comparison == nullptr || comparison->results.empty()) return;
  builder.heading(ReportWords::tr("Layers by method"));
  FigureDrawing figure;
  if (prepareLayerMethodsFigure(*comparison, {builder.widthMm(), 0.5 * builder.widthMm()}, figure)
          .ok()) {
    builder.figure(ReportWords::tr("Depth of refractors by method"), figure);
  }
  for (const QString& note : layerMethodNotes(*comparison)) builder.paragraph(note);
  for (const Message& line : comparisonSummary(*comparison)) {
    builder.paragraph(FigureWords::message(line) + '.');
  }
  for (const MethodResult& result : comparison->results) {
    for (const Message& remark : result.remarks) {
      builder.paragraph(layerMethodName(result.method) + ": " + FigureWords::message(remark));
    }
  }
  for (std::uint32_t layer = 2; layer <= refractionDataStructure::kLastLayer; ++layer) {
    if (!anyHas(*comparison, layer)) continue;
    builder.table(ReportWords::tr("Layer %1 by method").arg(layer),
                  layerMethodTable(*comparison, layer));
  }
}

}  // namespace talvesk::report

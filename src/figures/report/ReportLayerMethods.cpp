#include "figures/FigureWords.h"
#include "figures/report/ReportBuilder.h"
#include "refraction/methods/MethodComparison.h"

#include <algorithm>
#include <cmath>

// The layers by several methods, side by side.

namespace talvesk::report {
namespace {

QString methodName(LayerMethod method) {
  switch (method) {
    case LayerMethod::kReciprocal:
      return ReportWords::tr("Reciprocal");
    case LayerMethod::kDelayTimes:
      return ReportWords::tr("Delay times");
    case LayerMethod::kIntercept:
      return ReportWords::tr("Intercept times");
    case LayerMethod::kPlusMinus:
      return ReportWords::tr("Plus-minus");
  }
  return {};
}

/// "5.2 ± 0.3", in parentheses where it is not picks that carry it.
QString valueText(double value, const Band& band, std::size_t j, Support support, int places) {
  QString text = number(value, places);
  if (!std::isfinite(value)) return text;
  const double error = band.errorOf(j, value);
  if (std::isfinite(error)) text += QString::fromUtf8(" ± ") + number(error, places);
  return support == Support::kPicks ? text : '(' + text + ')';
}

QString disagreementText(const Disagreement& disagreement, std::size_t j) {
  if (disagreement.depth[j]) {
    return disagreement.velocity[j] ? ReportWords::tr("both") : ReportWords::tr("depth");
  }
  return disagreement.velocity[j] ? ReportWords::tr("velocity") : QString();
}

ReportTable tableOf(const MethodComparison& comparison, std::uint32_t number) {
  ReportTable table{{{ReportWords::tr("Position [m]"), true}}, {}};
  for (const MethodResult& result : comparison.results) {
    if (result.layer(number) == nullptr) continue;
    const QString name = methodName(result.method);
    table.columns.push_back({ReportWords::tr("%1: depth [m]").arg(name), true});
    table.columns.push_back({ReportWords::tr("%1: velocity [m/s]").arg(name), true});
  }
  const Disagreement* disagreement = comparison.disagreement(number);
  if (disagreement != nullptr) table.columns.push_back({ReportWords::tr("Disagree in"), false});
  const auto& receivers = comparison.results.front().receivers;
  for (std::size_t j = 0; j < receivers.size(); ++j) {
    QStringList row{report::number(receivers[j].x, 2)};
    for (const MethodResult& result : comparison.results) {
      const MethodLayer* layer = result.layer(number);
      if (layer == nullptr) continue;
      row << valueText(layer->depth[j], layer->depthBand, j, layer->depthSupport[j], 2)
          << valueText(layer->velocity[j], layer->velocityBand, j, layer->velocitySupport[j], 0);
    }
    if (disagreement != nullptr) row << disagreementText(*disagreement, j);
    table.rows.push_back(row);
  }
  return table;
}

bool anyHas(const MethodComparison& comparison, std::uint32_t layer) {
  return std::any_of(comparison.results.begin(), comparison.results.end(),
                     [layer](const MethodResult& r) { return r.layer(layer) != nullptr; });
}

}  // namespace

void addLayerMethods(ReportBuilder& builder) {
  const MethodComparison* comparison = builder.source.methods;
  if (comparison == nullptr || comparison->results.empty()) return;
  builder.heading(ReportWords::tr("Layers by method"));
  builder.paragraph(ReportWords::tr(
      "Depths are below the surface. A value in parentheses is not carried by picks there, but by "
      "shifted arrivals of other shots, across a gap or by a continuation."));
  if (comparison->bounds.members > 0) {
    builder.paragraph(
        ReportWords::tr("Errors are half the width within which 68 of 100 results lie when picks "
                        "are moved by their errors, by %1 such interpretations. Methods disagree "
                        "where two of them differ by more than three times what their difference "
                        "scatters by.")
            .arg(comparison->bounds.members));
  }
  for (const Message& line : comparisonSummary(*comparison)) {
    builder.paragraph(FigureWords::message(line) + '.');
  }
  for (const MethodResult& result : comparison->results) {
    for (const Message& remark : result.remarks) {
      builder.paragraph(methodName(result.method) + ": " + FigureWords::message(remark));
    }
  }
  for (std::uint32_t layer = 2; layer <= refractionDataStructure::kLastLayer; ++layer) {
    if (!anyHas(*comparison, layer)) continue;
    builder.table(ReportWords::tr("Layer %1 by method").arg(layer), tableOf(*comparison, layer));
  }
}

}  // namespace talvesk::report

#include "figures/report/LayerMethodTexts.h"

#include "figures/report/ReportBuilder.h"
#include "refraction/methods/MethodComparison.h"

#include <cmath>

namespace talvesk {
namespace {

/// "5.2 ± 0.3", in parentheses where it is not picks that carry it.
QString valueText(double value, const Band& band, std::size_t j, Support support, int places,
                  const QLocale& locale) {
  if (!std::isfinite(value)) return report::number(value, places);
  QString text = locale.toString(shownLength(value), 'f', places);
  const double error = band.errorOf(j, value);
  if (std::isfinite(error)) {
    text += QString::fromUtf8(" ± ") + locale.toString(shownLength(error), 'f', places);
  }
  return support == Support::kPicks ? text : '(' + text + ')';
}

QString disagreementText(const Disagreement& disagreement, std::size_t j) {
  if (disagreement.depth[j]) {
    return disagreement.velocity[j] ? ReportWords::tr("both") : ReportWords::tr("depth");
  }
  return disagreement.velocity[j] ? ReportWords::tr("velocity") : QString();
}

}  // namespace

QString layerMethodName(LayerMethod method) {
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

QStringList layerMethodNotes(const MethodComparison& comparison) {
  QStringList notes{ReportWords::tr(
      "Depths are below the surface. A value in parentheses is not carried by picks there, but by "
      "shifted arrivals of other shots, across a gap or by a continuation.")};
  if (comparison.bounds.members > 0) {
    notes << ReportWords::tr(
                 "Errors are half the width within which 68 of 100 results lie when picks "
                 "are moved by their errors, by %1 such interpretations. Methods disagree "
                 "where two of them differ by more than three times what their difference "
                 "scatters by.")
                 .arg(comparison.bounds.members);
  }
  return notes;
}

ReportTable layerMethodTable(const MethodComparison& comparison, std::uint32_t number,
                             const QLocale& locale) {
  ReportTable table{{{ReportWords::tr("Position [%1]").arg(lengthUnitText()), true}}, {}};
  for (const MethodResult& result : comparison.results) {
    if (result.layer(number) == nullptr) continue;
    const QString name = layerMethodName(result.method);
    table.columns.push_back({ReportWords::tr("%1: depth [%2]").arg(name, lengthUnitText()), true});
    table.columns.push_back(
        {ReportWords::tr("%1: velocity [%2]").arg(name, velocityUnitText()), true});
  }
  const Disagreement* disagreement = comparison.disagreement(number);
  if (disagreement != nullptr) table.columns.push_back({ReportWords::tr("Disagree in"), false});
  const auto& receivers = comparison.results.front().receivers;
  for (std::size_t j = 0; j < receivers.size(); ++j) {
    QStringList row{locale.toString(shownLength(receivers[j].x), 'f', 2)};
    for (const MethodResult& result : comparison.results) {
      const MethodLayer* layer = result.layer(number);
      if (layer == nullptr) continue;
      row << valueText(layer->depth[j], layer->depthBand, j, layer->depthSupport[j], 2, locale)
          << valueText(layer->velocity[j], layer->velocityBand, j, layer->velocitySupport[j], 0,
                       locale);
    }
    if (disagreement != nullptr) row << disagreementText(*disagreement, j);
    table.rows.push_back(row);
  }
  return table;
}

}  // namespace talvesk

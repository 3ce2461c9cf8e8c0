#include "figures/report/ReportBuilder.h"
#include "refraction/LayeredFit.h"

#include <algorithm>
#include <cstdint>

// How the layers fit the picks that they were built of.

namespace talvesk::report {
namespace {

/// "1.21 ms", with how many picks it is of.
QString misfitText(const std::vector<LayerMisfit>& misfits, std::uint32_t shot,
                   std::uint32_t layer) {
  const auto found = std::find_if(misfits.begin(), misfits.end(), [&](const LayerMisfit& one) {
    return one.shot == shot && one.layer == layer;
  });
  if (found == misfits.end()) return number(std::numeric_limits<double>::quiet_NaN(), 2);
  return QStringLiteral("%1 (%2)").arg(number(1e3 * found->rms, 2)).arg(found->picks);
}

ReportTable tableOf(const LayeredFit& fit) {
  const std::size_t layers = fit.waves.empty() ? 0 : fit.waves.front().size();
  ReportTable table{{{ReportWords::tr("Shot"), false}}, {}};
  for (std::size_t layer = 1; layer <= layers; ++layer) {
    table.columns.push_back({ReportWords::tr("Layer %1 [ms]").arg(layer), true});
  }
  const auto addRow = [&](const QString& head, const std::vector<LayerMisfit>& misfits,
                          std::uint32_t shot) {
    QStringList row{head};
    for (std::uint32_t layer = 1; layer <= layers; ++layer) row << misfitText(misfits, shot, layer);
    table.rows.push_back(row);
  };
  for (std::size_t i = 0; i < fit.perShot.size(); ++i) {
    const std::uint32_t shot = fit.perShot[i].shot;
    if (i > 0 && fit.perShot[i - 1].shot == shot) continue;  // one row for all of its layers
    addRow(QString::number(shot + 1), fit.perShot, shot);
  }
  addRow(ReportWords::tr("All"), fit.perLayer, 0);
  return table;
}

}  // namespace

void addLayerFit(ReportBuilder& builder) {
  const LayeredFit* fit = builder.source.fit;
  if (fit == nullptr) return;
  if (fit->total.picks == 0) {
    builder.paragraph(
        ReportWords::tr("No misfit of the layers is told: they have no depth, or were built from "
                        "other picks or marks than those of now."));
    return;
  }
  builder.paragraph(
      ReportWords::tr("Times computed through the layers differ from the picks by %1 ms (RMS of %2 "
                      "picks; mean of picks less computed times %3 ms; chi-square %4).")
          .arg(number(1e3 * fit->total.rms, 2))
          .arg(fit->total.picks)
          .arg(number(1e3 * fit->total.mean, 2), number(fit->total.chi2, 2)));
  builder.table(ReportWords::tr("RMS misfit of the layers, by shot (number of picks)"),
                tableOf(*fit));
}

}  // namespace talvesk::report

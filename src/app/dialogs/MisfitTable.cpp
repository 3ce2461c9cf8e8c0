#include "app/dialogs/MisfitTable.h"

#include <QCoreApplication>
#include <QLocale>
#include <QStringList>
#include <QTableWidget>
#include <algorithm>

namespace talvesk {
namespace {

constexpr double kMs = 1e3;

/// Its context in the translations.
struct Texts {
  Q_DECLARE_TR_FUNCTIONS(talvesk::MisfitTable)
};

const LayerMisfit* find(const std::vector<LayerMisfit>& misfits, std::uint32_t shot,
                        std::uint32_t layer) {
  const auto found = std::find_if(misfits.begin(), misfits.end(), [&](const LayerMisfit& one) {
    return one.shot == shot && one.layer == layer;
  });
  return found == misfits.end() ? nullptr : &*found;
}

QTableWidgetItem* cellOf(const LayerMisfit* misfit) {
  const QLocale locale;
  auto* cell = new QTableWidgetItem(misfit == nullptr ? QStringLiteral("–")
                                                      : locale.toString(kMs * misfit->rms, 'f', 1));
  cell->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
  if (misfit != nullptr) {
    cell->setToolTip(Texts::tr("%n pick(s); picks later than computed by %1 ms in the mean; chi2 "
                               "%2",
                               nullptr, static_cast<int>(misfit->picks))
                         .arg(locale.toString(kMs * misfit->mean, 'f', 2),
                              locale.toString(misfit->chi2, 'f', 1)));
  }
  return cell;
}

void addRow(QTableWidget& table, const QString& head, const std::vector<LayerMisfit>& misfits,
            std::uint32_t shot) {
  const int row = table.rowCount();
  table.insertRow(row);
  table.setItem(row, 0, new QTableWidgetItem(head));
  for (int column = 1; column < table.columnCount(); ++column) {
    table.setItem(row, column, cellOf(find(misfits, shot, static_cast<std::uint32_t>(column))));
  }
}

}  // namespace

void fillMisfitTable(const LayeredFit& fit, const std::vector<ShotArrivals>& shots,
                     QTableWidget& table) {
  table.clear();
  table.setRowCount(0);
  const std::size_t layers = fit.waves.empty() ? 0 : fit.waves.front().size();
  QStringList heads{Texts::tr("Misfit (ms)")};
  for (std::size_t layer = 1; layer <= layers; ++layer) heads << Texts::tr("Layer %1").arg(layer);
  table.setColumnCount(heads.size());
  table.setHorizontalHeaderLabels(heads);
  table.horizontalHeaderItem(0)->setToolTip(
      Texts::tr("RMS of picks less computed times, per shot and layer"));
  for (std::uint32_t shot = 0; shot < shots.size(); ++shot) {
    const bool any = std::any_of(fit.perShot.begin(), fit.perShot.end(),
                                 [shot](const LayerMisfit& one) { return one.shot == shot; });
    if (any) addRow(table, Texts::tr("Shot %1").arg(shot + 1), fit.perShot, shot);
  }
  if (!fit.perLayer.empty()) addRow(table, Texts::tr("All shots"), fit.perLayer, 0);
  table.resizeColumnsToContents();
}

QString misfitText(const LayeredFit& fit, std::uint32_t shot, std::uint32_t layer) {
  const LayerMisfit* found = find(fit.perShot, shot, layer);
  if (found == nullptr) return {};
  return Texts::tr("%1 ms").arg(QLocale().toString(kMs * found->rms, 'f', 1));
}

}  // namespace talvesk

#include "app/dialogs/ProfileTable.h"

#include "app/LengthText.h"
#include "app/UnitWords.h"
#include "refraction/Profile.h"
#include "refraction/Support.h"
#include "refraction/methods/ProfileErrors.h"

#include <QCoreApplication>
#include <QStringList>
#include <QTableWidget>
#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

using refractionDataStructure::computedData;

/// Its context in the translations.
struct Texts {
  Q_DECLARE_TR_FUNCTIONS(talvesk::ProfileTable)
};

QString supportText(Support support) {
  switch (support) {
    case Support::kPicks:
      return Texts::tr("picks");
    case Support::kPhantom:
      return Texts::tr("phantom");
    case Support::kGap:
      return Texts::tr("gap");
    case Support::kExtrapolated:
      return Texts::tr("continuation");
  }
  return {};
}

QString supportTip(Support support, bool fitted) {
  if (fitted) {
    return support == Support::kPicks
               ? Texts::tr("Fitted to all picks, some of which come from here or go here.")
               : Texts::tr(
                     "No pick of the layer comes from here or goes here: it lies between "
                     "what others tell.");
  }
  switch (support) {
    case Support::kPicks:
      return Texts::tr("Picks of the shots at both ends of the line carry it.");
    case Support::kPhantom:
      return Texts::tr("Shifted arrivals of other shots carry it.");
    case Support::kGap:
      return Texts::tr("It lies across more than two spacings without arrivals.");
    case Support::kExtrapolated:
      return Texts::tr("It continues what lies beside it, beyond the last arrivals.");
  }
  return {};
}

/// A value per receiver, its support and, where it is known, its band.
struct Column {
  const std::vector<double>& values;
  const std::vector<Support>& support;
  const Band* band;
  int places;
  bool fitted;
};

QTableWidgetItem* textCell(const QString& text, Qt::Alignment align) {
  auto* cell = new QTableWidgetItem(text);
  cell->setTextAlignment(align | Qt::AlignVCenter);
  return cell;
}

QTableWidgetItem* valueCell(const Column& column, std::size_t j) {
  if (j >= column.values.size() || !std::isfinite(column.values[j])) {
    return textCell(QStringLiteral("–"), Qt::AlignRight);
  }
  QString text = lengthNumber(column.values[j], column.places);
  const double error =
      column.band == nullptr ? std::nan("") : column.band->errorOf(j, column.values[j]);
  if (std::isfinite(error)) text += QStringLiteral(" ± ") + lengthNumber(error, column.places);
  const bool carried = j >= column.support.size() || column.support[j] == Support::kPicks;
  auto* cell =
      textCell(carried ? text : QLatin1Char('(') + text + QLatin1Char(')'), Qt::AlignRight);
  if (j < column.support.size()) cell->setToolTip(supportTip(column.support[j], column.fitted));
  return cell;
}

QStringList headsOf(std::size_t refractors) {
  QStringList heads{inShownUnits(Texts::tr("X (m)"))};
  for (std::size_t i = 0; i < refractors; ++i) {
    heads << inShownUnits(Texts::tr("Depth %1 (m)")).arg(i + 1)
          << inShownUnits(Texts::tr("V %1 (m/s)")).arg(i + 1)
          << Texts::tr("Depth %1 by").arg(i + 1);
  }
  return heads;
}

void fillRefractor(const computedData& refractor, const RefractorSupport& support,
                   const ProfileErrors::Refractor* errors, bool fitted, int first,
                   QTableWidget& table, const std::vector<Point2D>& receivers) {
  const Column depth{refractor.depth, support.depth, errors == nullptr ? nullptr : &errors->depth,
                     2, fitted};
  const Column velocity{refractor.velocity, support.velocity,
                        errors == nullptr ? nullptr : &errors->velocity, 0, fitted};
  for (std::size_t row = 0; row < receivers.size(); ++row) {
    const auto same = std::find(refractor.x.begin(), refractor.x.end(), receivers[row].x);
    const auto j = static_cast<std::size_t>(same - refractor.x.begin());
    const int at = static_cast<int>(row);
    table.setItem(at, first, valueCell(depth, j));
    table.setItem(at, first + 1, valueCell(velocity, j));
    const bool known = j < support.depth.size() && std::isfinite(refractor.depth[j]);
    auto* carried = textCell(known ? supportText(support.depth[j]) : QString(), Qt::AlignLeft);
    if (known) carried->setToolTip(supportTip(support.depth[j], fitted));
    table.setItem(at, first + 2, carried);
  }
}

}  // namespace

void fillProfileTable(const std::vector<ShotArrivals>& shots,
                      const refractionDataStructure::Interpretation& interpretation,
                      const ProfileErrors* errors, QTableWidget& table) {
  const auto& results = interpretation.refractData;
  const std::vector<Point2D> receivers = profileSurface(results);
  table.clear();
  const QStringList heads = headsOf(results.cData.size());
  table.setColumnCount(heads.size());
  table.setHorizontalHeaderLabels(heads);
  table.setRowCount(static_cast<int>(receivers.size()));
  for (std::size_t row = 0; row < receivers.size(); ++row) {
    table.setItem(static_cast<int>(row), 0,
                  textCell(lengthNumber(receivers[row].x, 2), Qt::AlignRight));
  }
  for (std::size_t i = 0; i < results.cData.size(); ++i) {
    const bool known = errors != nullptr && i < errors->refractors.size();
    fillRefractor(results.cData[i],
                  supportOf(shots, interpretation, static_cast<std::uint32_t>(i) + 2),
                  known ? &errors->refractors[i] : nullptr, results.isFitted(),
                  1 + 3 * static_cast<int>(i), table, receivers);
  }
  table.resizeColumnsToContents();
}

}  // namespace talvesk

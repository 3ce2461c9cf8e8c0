#include "figures/FigureWords.h"

#include "base/TextNumber.h"
#include "view/SectionTexts.h"

#include <QStringList>
#include <cmath>

namespace talvesk {
namespace {

QString qt(const std::string& utf8) {
  return QString::fromStdString(utf8);
}

}  // namespace

QString FigureWords::quantity(SectionQuantity quantity) {
  switch (quantity) {
    case SectionQuantity::kVerticalGradient:
      return tr("Vertical gradient of velocity");
    case SectionQuantity::kLaplacian:
      return tr("Laplacian of velocity");
    case SectionQuantity::kInformationDensity:
      return tr("Information density");
    case SectionQuantity::kVelocity:
      break;
  }
  return tr("Velocity");
}

QString FigureWords::quantityAxis(SectionQuantity kind) {
  const QString unit = qt(quantityUnit(kind));
  return unit.isEmpty() ? quantity(kind) : QStringLiteral("%1 [%2]").arg(quantity(kind), unit);
}

// Counts are spelt out instead of left to the plurals of a translation: the headless program has no
// translation at all.

QString FigureWords::traces(std::size_t count) {
  return count == 1 ? tr("1 trace") : tr("%1 traces").arg(count);
}

QString FigureWords::picks(std::size_t count) {
  return count == 1 ? tr("1 pick") : tr("%1 picks").arg(count);
}

QString FigureWords::shots(std::size_t count) {
  return count == 1 ? tr("1 shot") : tr("%1 shots").arg(count);
}

QString FigureWords::computedTimes(std::size_t count) {
  return count == 1 ? tr("1 computed time") : tr("%1 computed times").arg(count);
}

QString FigureWords::misfit(const SectionMisfit& misfit) {
  return tr("RMS misfit %1 ms, %2 %")
      .arg(qt(formatDouble(1e3 * misfit.rmse, 3)), qt(formatDouble(1e2 * misfit.relativeRms, 3)));
}

QString FigureWords::lastPassMisfit(double percent) {
  return tr("last solver pass %1 %").arg(qt(formatDouble(percent, 3)));
}

QString FigureWords::picksChanged() {
  return tr("picks have changed since the inversion");
}

QString FigureWords::refractor(std::size_t index) {
  return tr("Refractor %1").arg(index + 1);
}

QString FigureWords::oldRefractor(std::size_t index) {
  return tr("Refractor %1 (picks have changed since)").arg(index + 1);
}

QString FigureWords::sectionCaption(const SectionScene& scene, double verticalExaggeration) {
  const double step = scene.range.span() / 100.0;
  QString unit = qt(quantityUnit(scene.quantity));
  if (!unit.isEmpty()) unit.prepend(QLatin1Char(' '));
  QStringList parts;
  if (scene.fill != SectionFill::kNone) {
    parts += tr("%1 %2 to %3", "quantity, least and greatest value with its unit")
                 .arg(quantity(scene.quantity), qt(valueText(scene.dataRange.min, step)),
                      qt(valueText(scene.dataRange.max, step)) + unit);
  }
  if (const double spacing = levelSpacing(scene.contourLevels); spacing > 0.0) {
    parts += tr("Contours every %1").arg(qt(valueText(spacing, spacing / 10.0)) + unit);
  }
  if (!scene.rays.empty()) {
    parts += scene.rays.size() == 1 ? tr("1 ray") : tr("%1 rays").arg(scene.rays.size());
  }
  if (scene.misfit.count > 0) parts += misfit(scene.misfit);
  if (scene.picksChanged) parts += picksChanged();
  if (scene.smoothed) parts += tr("smoothed since the inversion");
  if (scene.lastPassPercent >= 0.0) parts += lastPassMisfit(scene.lastPassPercent);
  if (std::abs(verticalExaggeration - 1.0) > 1e-9) {
    QString factor = qt(formatDouble(verticalExaggeration, 4));
    if (!factor.contains(QLatin1Char('.')) && !factor.contains(QLatin1Char('e'))) {
      factor += QStringLiteral(".0");
    }
    parts += tr("Vertical exaggeration %1").arg(factor);
  }
  return joined(parts);
}

QString FigureWords::joined(const QStringList& parts) {
  return parts.join(QStringLiteral("   \u00B7   "));
}

}  // namespace talvesk

#include "app/LengthText.h"

#include "app/NumberText.h"
#include "base/LengthUnit.h"
#include "figures/ShownLength.h"

#include <QLocale>
#include <cmath>

namespace talvesk {
namespace {

constexpr int kMostTyped = 6;    // decimals of feet that a user may have typed
constexpr int kUsual = 3;        // of those that nobody typed: a third of a millimetre
constexpr double kSame = 1e-13;  // of a number, far below what differs in a typed decimal

bool inMetres() {
  return lengthUnit() == LengthUnit::kMetre;
}

/// The fewest decimals that give the number, which are those that were typed.
QString feetText(double feet) {
  QLocale locale;
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  int decimals = 0;
  while (decimals <= kMostTyped) {
    const double rounded = QString::number(feet, 'f', decimals).toDouble();
    if (std::abs(rounded - feet) <= kSame * std::abs(feet)) break;
    ++decimals;
  }
  if (decimals > kMostTyped) decimals = std::abs(feet) < 0.1 ? kMostTyped : kUsual;
  // Rounding may leave noughts at the end.
  return numberText(QString::number(feet, 'f', decimals).toDouble());
}

}  // namespace

QString lengthText(double metres) {
  return inMetres() || !std::isfinite(metres) ? numberText(metres) : feetText(shownLength(metres));
}

std::optional<double> lengthFrom(const QString& text, std::optional<double> unedited) {
  const std::optional<double> typed = numberFrom(text);
  return typed ? std::make_optional(metresTyped(*typed, unedited)) : std::nullopt;
}

double metresTyped(double shown, std::optional<double> unedited) {
  if (inMetres()) return shown;
  if (unedited && numberFrom(lengthText(*unedited)) == shown) return *unedited;
  return QString::number(metresOf(shown), 'g', 15).toDouble();
}

QString lengthNumber(double metres, int decimals) {
  return QLocale().toString(shownLength(metres), 'f', decimals);
}

QString lengthDigits(double metres, int significant) {
  return QLocale().toString(shownLength(metres), 'g', significant);
}

QString lengthWithUnit(double metres, int decimals) {
  return withLengthUnit(lengthNumber(metres, decimals));
}

QString velocityWithUnit(double metresPerSecond, int decimals) {
  return withVelocityUnit(lengthNumber(metresPerSecond, decimals));
}

}  // namespace talvesk

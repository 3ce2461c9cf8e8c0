#include "app/NumberText.h"

#include <QLocale>
#include <cmath>

namespace talvesk {

std::optional<double> numberFrom(const QString& text) {
  for (QLocale locale : {QLocale(), QLocale::c()}) {
    locale.setNumberOptions(QLocale::RejectGroupSeparator);
    bool isNumber = false;
    const double value = locale.toDouble(text.trimmed(), &isNumber);
    if (isNumber && std::isfinite(value)) return value;
  }
  return std::nullopt;
}

QString numberText(double value) {
  QLocale locale;
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  return locale.toString(value, 'f', QLocale::FloatingPointShortest);
}

}  // namespace talvesk

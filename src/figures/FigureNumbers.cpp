#include "figures/FigureNumbers.h"

namespace talvesk {

QLocale figureLocale() {
  QLocale locale;
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  return locale;
}

QString withSignOf(const QLocale& locale, const std::string& digits) {
  return QString::fromStdString(digits).replace(QLatin1Char('.'), locale.decimalPoint());
}

QString figureDigits(const std::string& digits) {
  return withSignOf(figureLocale(), digits);
}

}  // namespace talvesk

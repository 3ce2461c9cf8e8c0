#include "widgets/traces/TraceTags.h"

#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace talvesk {

QString screenNumber(double value, int decimals) {
  // Rounding a sum of steps must not leave "-0".
  if (std::fabs(value) < 0.5 * std::pow(10.0, -decimals)) value = 0.0;
  QLocale locale;
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  return locale.toString(value, 'f', decimals);
}

QString exponentText(double exponent) {
  const double hundredths = std::round(100.0 * exponent);
  const int decimals = std::fmod(hundredths, 100.0) == 0.0  ? 0
                       : std::fmod(hundredths, 10.0) == 0.0 ? 1
                                                            : 2;
  return screenNumber(exponent, decimals);
}

void paintTag(QPainter& painter, const TraceColors& colors, const QPointF& corner,
              const QString& text, const QRectF& bounds) {
  const QFontMetricsF metrics(painter.font());
  QRectF plate(corner, QSizeF(metrics.horizontalAdvance(text) + 8.0, metrics.height() + 2.0));
  if (plate.right() > bounds.right()) plate.moveRight(bounds.right());
  if (plate.bottom() > bounds.bottom()) plate.moveBottom(bounds.bottom());
  plate.moveLeft(std::max(plate.left(), bounds.left()));
  plate.moveTop(std::max(plate.top(), bounds.top()));
  QColor back = colors.text;
  back.setAlphaF(0.88);
  painter.setPen(Qt::NoPen);
  painter.setBrush(back);
  painter.drawRoundedRect(plate, 2.0, 2.0);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(colors.background);
  painter.drawText(plate, Qt::AlignCenter, text);
}

}  // namespace talvesk

#include "figures/print/TitleBlock.h"

#include "base/LengthUnit.h"
#include "figures/FigureFile.h"
#include "figures/FigurePlot.h"
#include "figures/FigureWords.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr double kPaddingMm = 3.0;      ///< inside the block
constexpr double kLongestBarMm = 80.0;  ///< of the scale bar; at least three tenths of it are used
constexpr double kBarMm = 2.0;          ///< its height

QString ratio(double scale) {
  return QStringLiteral("1:") + figureNumber(scale, 4);
}

}  // namespace

std::vector<double> roundNumbers(double least, double most) {
  std::vector<double> numbers;
  for (double power = 1e-6; power <= most; power *= 10.0) {
    for (const double digit : {1.0, 2.0, 2.5, 5.0}) {
      const double number = digit * power;
      if (number >= least * (1.0 - 1e-9) && number <= most * (1.0 + 1e-9)) {
        numbers.push_back(number);
      }
    }
  }
  return numbers;
}

QFont sheetFont(double heightMm, bool bold) {
  QFont font = figureFont(9.0, bold);
  font.setPixelSize(static_cast<int>(std::lround(heightMm * kUnitsPerMm)));
  return font;
}

QString TitleBlock::scales() const {
  if (scale <= 0.0) return {};
  QStringList parts{FigureWords::tr("Scale %1").arg(ratio(scale))};
  if (exaggeration > 0.0 && exaggeration != 1.0) {
    parts += FigureWords::tr("Elevation %1").arg(ratio(scale / exaggeration));
  }
  if (msPerCm > 0.0) parts += FigureWords::tr("1 cm is %1 ms").arg(figureNumber(msPerCm, 4));
  return FigureWords::joined(parts);
}

/// \return its left end
double TitleBlock::paintBar(QPainter& painter, const QRectF& room) const {
  const double longest = shownLength(1e-3 * kLongestBarMm * scale);
  const double length = roundNumbers(0.3 * longest, longest).back();
  const double width = 1e3 * metresOf(length) / scale * kUnitsPerMm;
  const QFontMetricsF metrics(painter.font());
  const QString end = figureNumber(length) + QLatin1Char(' ') + QLatin1String(lengthUnitName());
  const double right = room.right() - 0.5 * metrics.horizontalAdvance(end);
  const QRectF bar(right - width, room.bottom() - kBarMm * kUnitsPerMm, width,
                   kBarMm * kUnitsPerMm);
  painter.fillRect(QRectF(bar.topLeft(), QSizeF(0.5 * bar.width(), bar.height())), Qt::black);
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(bar);
  const QString texts[] = {QStringLiteral("0"), figureNumber(0.5 * length), end};
  for (int i = 0; i < 3; ++i) {
    const double x = bar.left() + 0.5 * i * bar.width();
    painter.drawText(QPointF(x - 0.5 * metrics.horizontalAdvance(texts[i]), bar.top() - 100.0),
                     texts[i]);
  }
  return bar.left();
}

void TitleBlock::paint(QPainter& painter, const QRectF& room) const {
  painter.setPen(QPen(Qt::black, 0.25 * kUnitsPerMm, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(room);
  const double padding = kPaddingMm * kUnitsPerMm;
  const QRectF inside = room.adjusted(padding, padding, -padding, -padding);
  painter.setFont(sheetFont(3.0));
  const double end = scale > 0.0 ? paintBar(painter, inside) - padding : inside.right();
  const auto put = [&](const QString& text, double baseline) {
    painter.drawText(QPointF(inside.left(), baseline),
                     QFontMetricsF(painter.font())
                         .elidedText(text, Qt::ElideRight, std::max(end - inside.left(), 0.0)));
  };
  put(scales(), inside.bottom());
  painter.setFont(sheetFont(4.0, true));
  put(title, inside.top() + 3.5 * kUnitsPerMm);
}

}  // namespace talvesk

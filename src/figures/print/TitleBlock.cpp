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
constexpr double kTitleLineMm = 3.5;    ///< from the upper edge within the block
constexpr double kMapMm = 4.0;          ///< height of the little map of sheets
constexpr double kWidestMapMm = 60.0;

/// With four digits at least, and never as a power of ten.
QString plain(double number) {
  const int decimals = std::clamp(3 - static_cast<int>(std::floor(std::log10(number))), 0, 6);
  const double unit = std::pow(10.0, decimals);
  return figureLocale().toString(std::round(number * unit) / unit, 'f',
                                 QLocale::FloatingPointShortest);
}

QString ratio(double scale) {
  return QStringLiteral("1:") + plain(scale);
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
  if (msPerCm > 0.0) parts += FigureWords::tr("1 cm is %1 ms").arg(plain(msPerCm));
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

/// Above the bar, with a little map of the sheets. \return its left end
double TitleBlock::paintPlace(QPainter& painter, const QRectF& room) const {
  const QString words = FigureWords::tr("Sheet %1 of %2").arg(page + 1).arg(columns * rows);
  const QFontMetricsF metrics(painter.font());
  const double left = room.right() - metrics.horizontalAdvance(words);
  painter.drawText(QPointF(left, room.top() + kTitleLineMm * kUnitsPerMm), words);
  const double high = kMapMm * kUnitsPerMm / static_cast<double>(std::max<std::size_t>(rows, 2));
  const double wide =
      std::min(1.4 * high, kWidestMapMm * kUnitsPerMm / static_cast<double>(columns));
  const QPointF corner(
      left - kPaddingMm * kUnitsPerMm - wide * static_cast<double>(columns),
      room.top() + 0.5 * (kMapMm * kUnitsPerMm - high * static_cast<double>(rows)));
  painter.save();
  painter.setPen(QPen(Qt::black, 0.15 * kUnitsPerMm));
  for (std::size_t i = 0; i < columns * rows; ++i) {
    const std::size_t row = i / columns;
    const QPointF at(wide * static_cast<double>(i % columns), high * static_cast<double>(row));
    const QRectF cell(corner + at, QSizeF(wide, high));
    painter.setBrush(i == page ? QBrush(Qt::black) : QBrush(Qt::NoBrush));
    painter.drawRect(cell);
  }
  painter.restore();
  return corner.x();
}

void TitleBlock::paint(QPainter& painter, const QRectF& room) const {
  painter.setPen(QPen(Qt::black, 0.25 * kUnitsPerMm, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(room);
  const double padding = kPaddingMm * kUnitsPerMm;
  const QRectF inside = room.adjusted(padding, padding, -padding, -padding);
  painter.setFont(sheetFont(3.0));
  const double end = scale > 0.0 ? paintBar(painter, inside) - padding : inside.right();
  const auto put = [&](const QString& text, double baseline, double right) {
    painter.drawText(QPointF(inside.left(), baseline),
                     QFontMetricsF(painter.font())
                         .elidedText(text, Qt::ElideRight, std::max(right - inside.left(), 0.0)));
  };
  put(scales(), inside.bottom(), end);
  painter.setFont(sheetFont(4.0, true));
  const double titleEnd =
      columns * rows > 1 ? paintPlace(painter, inside) - padding : inside.right();
  put(title, inside.top() + kTitleLineMm * kUnitsPerMm, titleEnd);
}

}  // namespace talvesk

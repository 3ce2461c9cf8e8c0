#include "figures/print/PrintTiles.h"

#include "figures/FigureFile.h"
#include "figures/FigureWords.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QRectF>
#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr double kMargin = PrintSheet::kMarginMm;
constexpr double kCrossMm = 6.0;        ///< from end to end
constexpr double kCrossInsetMm = 8.0;   ///< from the edge of a sheet's room
constexpr double kCrossAboveMm = 26.0;  ///< of the lower ones: the block lies below
constexpr double kCutMm = 3.0;          ///< length of marks in the margin
constexpr double kPlaceMm = 2.6;        ///< height of the words that tell a sheet's place
constexpr double kMapMm = 3.6;          ///< height of the little map of sheets
const QColor kMarkInk(90, 90, 90);

std::size_t pagesFor(double length, double room) {
  if (length <= room + 1e-6) return 1;
  const double step = room - kPrintOverlapMm;
  if (!(step > kPrintOverlapMm)) return kMostPrintPages + 1;
  return 1 + static_cast<std::size_t>(std::ceil((length - room - 1e-6) / step));
}

QRectF inUnits(double left, double top, double width, double height) {
  return {left * kUnitsPerMm, top * kUnitsPerMm, width * kUnitsPerMm, height * kUnitsPerMm};
}

QPen markPen() {
  return {kMarkInk, 0.15 * kUnitsPerMm, Qt::SolidLine, Qt::FlatCap};
}

}  // namespace

PrintTiles::PrintTiles(const PrintSheet& sheet, const QSizeF& figureMm)
    : mSheet(sheet), mFigure(figureMm) {
  columns = pagesFor(mFigure.width(), room().width());
  rows = pagesFor(mFigure.height() + kBlockGapMm + TitleBlock::kHeightMm, room().height());
}

QSizeF PrintTiles::room() const {
  return {mSheet.widthMm - 2.0 * kMargin, mSheet.heightMm - 2.0 * kMargin};
}

QSizeF PrintTiles::step() const {
  return room() - QSizeF(kPrintOverlapMm, kPrintOverlapMm);
}

/// What all sheets hold. The block stands at its foot, so that no cut goes through it.
QSizeF PrintTiles::whole() const {
  return {room().width() + static_cast<double>(columns - 1) * step().width(),
          room().height() + static_cast<double>(rows - 1) * step().height()};
}

void PrintTiles::paint(std::size_t page, QPainter& painter, const QRectF& rect,
                       const std::function<void(QPainter&, const QRectF&)>& figure) const {
  const std::size_t row = page / columns;
  const std::size_t column = page % columns;
  const double perMm = painter.device()->logicalDpiX() / kMmPerInch;
  const double left = static_cast<double>(column) * step().width();
  const double top = static_cast<double>(row) * step().height();
  painter.fillRect(rect, Qt::white);
  painter.save();
  painter.translate(rect.topLeft());

  painter.save();
  painter.translate(kMargin * perMm, kMargin * perMm);
  if (columns * rows > 1) painter.setClipRect(QRectF(QPointF(), room() * perMm));
  painter.translate(-left * perMm, -top * perMm);
  painter.save();
  const double beside = columns > 1 ? 0.0 : 0.5 * (room().width() - mFigure.width());
  painter.translate(beside * perMm, 0.0);
  figure(painter, QRectF(QPointF(), mFigure * perMm));
  painter.restore();
  painter.scale(perMm / kUnitsPerMm, perMm / kUnitsPerMm);
  block.paint(painter, inUnits(0.0, whole().height() - TitleBlock::kHeightMm, room().width(),
                               TitleBlock::kHeightMm));
  if (columns * rows > 1) paintCrosses(painter);
  painter.restore();

  if (columns * rows > 1) {
    painter.scale(perMm / kUnitsPerMm, perMm / kUnitsPerMm);
    clearMargins(painter);
    paintPlace(painter, row, column);
  }
  painter.restore();
}

/// In the middle of what two sheets have in common, near the edges of either.
void PrintTiles::paintCrosses(QPainter& painter) const {
  painter.setPen(markPen());
  painter.setRenderHint(QPainter::Antialiasing);
  const auto cross = [&painter](double x, double y) {
    const double half = 0.5 * kCrossMm;
    painter.drawLine(QLineF((x - half) * kUnitsPerMm, y * kUnitsPerMm, (x + half) * kUnitsPerMm,
                            y * kUnitsPerMm));
    painter.drawLine(QLineF(x * kUnitsPerMm, (y - half) * kUnitsPerMm, x * kUnitsPerMm,
                            (y + half) * kUnitsPerMm));
  };
  for (std::size_t column = 1; column < columns; ++column) {
    const double x = static_cast<double>(column) * step().width() + 0.5 * kPrintOverlapMm;
    for (std::size_t row = 0; row < rows; ++row) {
      const double top = static_cast<double>(row) * step().height();
      cross(x, top + kCrossInsetMm);
      cross(x, top + room().height() - kCrossAboveMm);
    }
  }
  for (std::size_t row = 1; row < rows; ++row) {
    const double y = static_cast<double>(row) * step().height() + 0.5 * kPrintOverlapMm;
    for (std::size_t column = 0; column < columns; ++column) {
      const double left = static_cast<double>(column) * step().width();
      cross(left + 2.0 * kCrossInsetMm, y);
      cross(left + room().width() - 2.0 * kCrossInsetMm, y);
    }
  }
}

/// Figures clip as they need it, and paint beyond what they were given.
void PrintTiles::clearMargins(QPainter& painter) const {
  const double beyond = 1.0;  // whole pixels reach over the edge
  const double width = mSheet.widthMm;
  const double height = mSheet.heightMm;
  for (const QRectF& margin :
       {inUnits(-beyond, -beyond, kMargin + beyond, height + 2.0 * beyond),
        inUnits(width - kMargin, -beyond, kMargin + beyond, height + 2.0 * beyond),
        inUnits(-beyond, -beyond, width + 2.0 * beyond, kMargin + beyond),
        inUnits(-beyond, height - kMargin, width + 2.0 * beyond, kMargin + beyond)}) {
    painter.fillRect(margin, Qt::white);
  }
}

/// In the margin: where to cut, and which sheet of which this is.
void PrintTiles::paintPlace(QPainter& painter, std::size_t row, std::size_t column) const {
  painter.setPen(markPen());
  const auto line = [&painter](double x1, double y1, double x2, double y2) {
    painter.drawLine(
        QLineF(x1 * kUnitsPerMm, y1 * kUnitsPerMm, x2 * kUnitsPerMm, y2 * kUnitsPerMm));
  };
  const double right = mSheet.widthMm - kMargin;
  const double bottom = mSheet.heightMm - kMargin;
  const auto uprightCut = [&](double x) {
    line(x, kMargin - kCutMm, x, kMargin);
    line(x, bottom, x, bottom + kCutMm);
  };
  const auto levelCut = [&](double y) {
    line(kMargin - kCutMm, y, kMargin, y);
    line(right, y, right + kCutMm, y);
  };
  const double half = 0.5 * kPrintOverlapMm;
  if (column > 0) uprightCut(kMargin + half);
  if (column + 1 < columns) uprightCut(right - half);
  if (row > 0) levelCut(kMargin + half);
  if (row + 1 < rows) levelCut(bottom - half);

  const double cell = kMapMm / static_cast<double>(std::max(rows, std::size_t{2}));
  const double mapLeft = right - half - 2.0 - 1.4 * cell * static_cast<double>(columns);
  const double mapTop = bottom + 1.2;
  for (std::size_t i = 0; i < rows * columns; ++i) {
    const bool own = i == row * columns + column;
    painter.setBrush(own ? QBrush(kMarkInk) : QBrush(Qt::NoBrush));
    painter.drawRect(inUnits(mapLeft + 1.4 * cell * static_cast<double>(i % columns),
                             mapTop + cell * static_cast<double>(i / columns), 1.4 * cell, cell));
  }
  painter.setFont(sheetFont(kPlaceMm));
  painter.setPen(Qt::black);
  QStringList parts = {FigureWords::tr("Sheet %1 of %2: row %3, column %4")
                           .arg(row * columns + column + 1)
                           .arg(rows * columns)
                           .arg(row + 1)
                           .arg(column + 1),
                       block.title, block.scales()};
  parts.removeAll(QString());
  const double wide = (mapLeft - kMargin - half - 4.0) * kUnitsPerMm;
  painter.drawText(
      QPointF((kMargin + half + 2.0) * kUnitsPerMm, (bottom + 3.8) * kUnitsPerMm),
      QFontMetricsF(painter.font()).elidedText(FigureWords::joined(parts), Qt::ElideRight, wide));
}

}  // namespace talvesk

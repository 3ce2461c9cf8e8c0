#include "figures/print/PrintTiles.h"

#include "figures/FigureFile.h"
#include "figures/FigureWords.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QRectF>
#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {
namespace {

constexpr double kMargin = PrintSheet::kMarginMm;
constexpr double kRounding = 1e-6;
constexpr double kWordMm = 2.8;    ///< height of the words at a line where sheets meet
constexpr double kBeyondMm = 2.0;  ///< what that line reaches beyond the plot
const QColor kMeetingInk(0, 0, 0);

/// \param room of a plot
std::size_t partsOf(double length, double room) {
  if (length <= room + kRounding) return 1;
  const double step = room - kPrintOverlapMm;
  if (!(step > kPrintOverlapMm)) return kMostPrintPages + 1;
  return 1 + static_cast<std::size_t>(std::ceil((length - room - kRounding) / step));
}

QSizeF plotOf(const PlotPlace& place) {
  return {place.rightMm - place.leftMm, place.bottomMm - place.topMm};
}

/// What axes and texts take of a sheet.
QSizeF besidePlot(const LaidFigure& laid) {
  return QSizeF(laid.drawing.sheet.widthMm, laid.drawing.sheet.heightMm) - plotOf(laid.place);
}

PrintCut cutFor(const QSizeF& plot, const QSizeF& room) {
  PrintCut cut;
  const std::size_t columns = partsOf(plot.width(), room.width());
  const std::size_t rows = partsOf(plot.height(), room.height());
  if (columns > kMostPrintPages || rows > kMostPrintPages || columns * rows > kMostPrintPages) {
    return cut;
  }
  const auto each = [](double length, std::size_t parts) {
    const auto count = static_cast<double>(parts);
    return (length + (count - 1.0) * kPrintOverlapMm) / count;
  };
  cut.columns = columns;
  cut.rows = rows;
  cut.partWidthMm = each(plot.width(), columns);
  cut.partHeightMm = each(plot.height(), rows);
  return cut;
}

}  // namespace

QSizeF roomOn(const PrintSheet& sheet) {
  return {sheet.widthMm - 2.0 * PrintSheet::kMarginMm,
          sheet.heightMm - 2.0 * PrintSheet::kMarginMm - PrintTiles::kBlockGapMm -
              TitleBlock::kHeightMm};
}

bool fits(const FigureSheet& figure, const QSizeF& room) {
  return figure.widthMm <= room.width() + kRounding && figure.heightMm <= room.height() + kRounding;
}

PlotPart PrintCut::part(std::size_t page) const {
  const std::size_t row = page / columns;
  return {static_cast<double>(page % columns) * (partWidthMm - kPrintOverlapMm),
          static_cast<double>(row) * (partHeightMm - kPrintOverlapMm), partWidthMm, partHeightMm};
}

PrintCut cutToSheets(const LaidFigure& whole, const QSizeF& room,
                     const std::function<Status(const PlotPart&, LaidFigure&)>& layOut,
                     std::vector<LaidFigure>& parts) {
  const QSizeF plot = plotOf(whole.place);
  QSizeF beside = besidePlot(whole);
  // A narrower sheet may have words in more rows, and other numbers at its axes.
  for (int round = 0; round < 4; ++round) {
    const PrintCut cut = cutFor(plot, room - beside);
    bool all = cut.count() > 0;
    parts.clear();
    for (std::size_t page = 0; page < cut.count(); ++page) {
      LaidFigure& part = parts.emplace_back();
      if (!layOut(cut.part(page), part).ok()) return {};
      all = all && fits(part.drawing.sheet, room);
      beside = beside.expandedTo(besidePlot(part));
    }
    if (all) return cut;
  }
  return {};
}

PrintTiles::PrintTiles(const PrintSheet& sheet, std::vector<LaidFigure> parts, std::size_t columns)
    : mSheet(sheet), mParts(std::move(parts)), mColumns(columns) {}

/// Of a figure on its sheet, millimetres. In the middle of the room; of several sheets all have
/// their plots at the same place.
QPointF PrintTiles::corner(std::size_t page) const {
  QSizeF all;
  QPointF plot;
  for (const LaidFigure& part : mParts) {
    all = all.expandedTo({part.drawing.sheet.widthMm, part.drawing.sheet.heightMm});
    plot = {std::max(plot.x(), part.place.leftMm), std::max(plot.y(), part.place.topMm)};
  }
  const QSizeF free = (roomOn(mSheet) - all).expandedTo({0.0, 0.0});
  const PlotPlace& own = mParts[page].place;
  return QPointF(kMargin + 0.5 * free.width(), kMargin + 0.5 * free.height()) + plot -
         QPointF(own.leftMm, own.topMm);
}

PlotPlace PrintTiles::place(std::size_t page) const {
  PlotPlace place = mParts[page].place;
  const QPointF at = corner(page);
  place.leftMm += at.x();
  place.rightMm += at.x();
  place.topMm += at.y();
  place.bottomMm += at.y();
  place.widthMm = mSheet.widthMm;
  place.heightMm = mSheet.heightMm;
  return place;
}

void PrintTiles::paint(std::size_t page, QPainter& painter, const QRectF& rect) const {
  const double perMm = painter.device()->logicalDpiX() / kMmPerInch;
  const FigureSheet& figure = mParts[page].drawing.sheet;
  painter.fillRect(rect, Qt::white);
  painter.save();
  painter.translate(rect.topLeft());
  painter.save();
  painter.translate(corner(page) * perMm);
  mParts[page].drawing.paint(painter,
                             QRectF(0.0, 0.0, figure.widthMm * perMm, figure.heightMm * perMm));
  painter.restore();
  painter.scale(perMm / kUnitsPerMm, perMm / kUnitsPerMm);
  TitleBlock own = block;
  own.columns = mColumns;
  own.rows = rows();
  own.page = page;
  own.paint(painter, QRectF(kMargin * kUnitsPerMm,
                            (mSheet.heightMm - kMargin - TitleBlock::kHeightMm) * kUnitsPerMm,
                            (mSheet.widthMm - 2.0 * kMargin) * kUnitsPerMm,
                            TitleBlock::kHeightMm * kUnitsPerMm));
  if (mParts.size() > 1) paintMeetings(painter, page);
  painter.restore();
}

/// Lines at places that two sheets have in common, in the middle of what both show: cut one sheet
/// there, and lay it on the other. What lies beyond has the number of that sheet over it.
void PrintTiles::paintMeetings(QPainter& painter, std::size_t page) const {
  const PlotPlace plot = place(page);
  const std::size_t column = page % mColumns;
  const std::size_t row = page / mColumns;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setFont(sheetFont(kWordMm, true));
  const QFontMetricsF metrics(painter.font());
  const double half = 0.5 * kPrintOverlapMm;
  // Upright; a level one is the same on its side. \param outward to where the neighbour goes on
  const auto meet = [&](const QPointF& from, const QPointF& to, const QPointF& outward,
                        double angle, std::size_t neighbour) {
    QPen pen(kMeetingInk, 0.35 * kUnitsPerMm, Qt::CustomDashLine, Qt::FlatCap);
    pen.setDashPattern({16.0, 5.0, 3.0, 5.0});
    painter.setPen(pen);
    painter.drawLine(from * kUnitsPerMm, to * kUnitsPerMm);
    const QString words = FigureWords::tr("Match line: sheet %1").arg(neighbour + 1);
    const QPointF middle = 0.5 * (from + to) + 0.5 * half * outward;
    painter.save();
    painter.translate(middle * kUnitsPerMm);
    painter.rotate(angle);
    QRectF plate(0.0, 0.0, metrics.horizontalAdvance(words) + 1.5 * kUnitsPerMm, metrics.height());
    plate.moveCenter({0.0, 0.0});
    painter.fillRect(plate, QColor(255, 255, 255, 215));
    painter.setPen(kMeetingInk);
    painter.drawText(plate, Qt::AlignCenter, words);
    painter.restore();
  };
  const auto upright = [&](double x, double side, std::size_t neighbour) {
    meet({x, plot.topMm - kBeyondMm}, {x, plot.bottomMm + kBeyondMm}, {side, 0.0}, -90.0,
         neighbour);
  };
  const auto level = [&](double y, double side, std::size_t neighbour) {
    meet({plot.leftMm - kBeyondMm, y}, {plot.rightMm + kBeyondMm, y}, {0.0, side}, 0.0, neighbour);
  };
  if (column > 0) upright(plot.leftMm + half, -1.0, page - 1);
  if (row > 0) level(plot.topMm + half, -1.0, page - mColumns);
  // Where the neighbour has its line: parts are a hair wider than asked for.
  if (column + 1 < mColumns) {
    const PlotPlace next = place(page + 1);
    const double x = next.left + half / (next.rightMm - next.leftMm) * (next.right - next.left);
    upright(plot.xToMm(x), 1.0, page + 1);
  }
  if (row + 1 < rows()) {
    const PlotPlace next = place(page + mColumns);
    const double y = next.top + half / (next.bottomMm - next.topMm) * (next.bottom - next.top);
    level(plot.yToMm(y), 1.0, page + mColumns);
  }
  painter.restore();
}

}  // namespace talvesk

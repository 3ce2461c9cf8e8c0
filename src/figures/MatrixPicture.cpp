#include "figures/MatrixPicture.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPalette>
#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

// In heights of a line, so that a picture looks the same on every device.
constexpr double kLegendWidth = 0.9;
constexpr double kGap = 0.5;
constexpr double kTick = 0.25;  ///< between a label and what it belongs to
const QColor kLate(196, 60, 40);
const QColor kEarly(40, 100, 200);

QColor mix(const QColor& a, const QColor& b, double share) {
  const auto part = [share](int from, int to) {
    return static_cast<int>(std::lround(from + share * (to - from)));
  };
  return {part(a.red(), b.red()), part(a.green(), b.green()), part(a.blue(), b.blue())};
}

/// One painting of a picture on a sheet.
class Painting {
 public:
  Painting(const MatrixPicture& picture, QPainter& painter, const QRectF& sheet, const QFont& font,
           const MatrixInk& ink)
      : mPicture(picture),
        mPainter(painter),
        mSheet(sheet),
        mFont(font),
        mInk(ink),
        mMetrics(font, painter.device()),
        mLine(mMetrics.height()) {}

  static QRectF area(const MatrixPicture& picture, const QRectF& sheet,
                     const QFontMetricsF& metrics);

  void paint() {
    const QRectF cells = area(mPicture, mSheet, mMetrics);
    mPainter.setFont(mFont);
    paintCells(cells);
    paintRowLabels(cells);
    paintColumnLabels(cells);
    paintLegend(cells);
    paintTitles(cells);
  }

 private:
  QColor colorOf(double value) const {
    const double share = std::clamp(std::fabs(value) / mPicture.limit, 0.0, 1.0);
    const QColor zero = mInk.onDark ? QColor(72, 72, 76) : QColor(240, 240, 236);
    return mix(zero, value > 0.0 ? kLate : kEarly, share);
  }
  void paintCells(const QRectF& cells);
  void paintMarks(const QRectF& cells);
  void paintRowLabels(const QRectF& cells);
  void paintColumnLabels(const QRectF& cells);
  void paintLegend(const QRectF& cells);
  void paintTitles(const QRectF& cells);
  void write(const QRectF& place, int flags, const MatrixPicture::Label& label);
  void writeUpward(const QRectF& place, const QString& text);
  QString legendText(double share) const;

  const MatrixPicture& mPicture;
  QPainter& mPainter;
  const QRectF mSheet;
  const QFont mFont;
  const MatrixInk mInk;
  const QFontMetricsF mMetrics;
  const double mLine;
};

double widest(const std::vector<MatrixPicture::Label>& labels, const QFontMetricsF& metrics) {
  double width = 0.0;
  for (const auto& label : labels) width = std::max(width, metrics.horizontalAdvance(label.text));
  return 1.1 * width;  // bold ones are wider
}

QRectF Painting::area(const MatrixPicture& picture, const QRectF& sheet,
                      const QFontMetricsF& metrics) {
  const double line = metrics.height();
  const double left =
      widest(picture.rows, metrics) + kGap * line + (picture.rowTitle.isEmpty() ? 0.0 : 1.2 * line);
  const double top = (2.0 + kGap) * line;
  const double right = (2.0 * kGap + kLegendWidth + kTick + kGap) * line +
                       metrics.horizontalAdvance(QStringLiteral("\u2264 -00.0")) +
                       (picture.legendTitle.isEmpty() ? 0.0 : 1.2 * line);
  double width = std::max(1.0, sheet.width() - left - right);
  double height = std::max(1.0, sheet.height() - top - kGap * line);
  if (picture.square) width = height = std::min(width, height);
  return {sheet.left() + left, sheet.top() + top, width, height};
}

void Painting::paintCells(const QRectF& cells) {
  mPainter.setRenderHint(QPainter::Antialiasing, false);  // cells meet without seams
  mPainter.fillRect(cells, mInk.base);
  // What is not known must not look like a fit.
  mPainter.fillRect(cells, QBrush(mInk.faint, Qt::BDiagPattern));
  for (std::size_t row = 0; row < mPicture.rows.size(); ++row) {
    for (std::size_t column = 0; column < mPicture.columns.size(); ++column) {
      const double value = mPicture.at(row, column);
      if (std::isnan(value)) continue;
      mPainter.fillRect(mPicture.cell(row, column, cells), colorOf(value));
    }
  }
  paintMarks(cells);
  mPainter.setBrush(Qt::NoBrush);
  mPainter.setPen(mInk.faint);
  mPainter.drawRect(cells);
}

void Painting::paintMarks(const QRectF& cells) {
  mPainter.save();
  mPainter.setRenderHint(QPainter::Antialiasing);
  mPainter.setBrush(mInk.base);
  mPainter.setPen(QPen(mInk.text, 0.08 * mLine));
  for (const std::size_t index : mPicture.marked) {
    const QRectF cell =
        mPicture.cell(index / mPicture.columns.size(), index % mPicture.columns.size(), cells);
    const double radius =
        std::clamp(0.25 * std::min(cell.width(), cell.height()), 0.12 * mLine, 0.3 * mLine);
    mPainter.drawEllipse(cell.center(), radius, radius);
  }
  mPainter.restore();
}

void Painting::write(const QRectF& place, int flags, const MatrixPicture::Label& label) {
  QFont face = mFont;
  face.setBold(label.bold);
  mPainter.setFont(face);
  mPainter.setPen(mInk.text);
  mPainter.drawText(place, flags | Qt::TextDontClip, label.text);
  mPainter.setFont(mFont);
}

/// As many as have room.
void Painting::paintRowLabels(const QRectF& cells) {
  const double height = cells.height() / static_cast<double>(mPicture.rows.size());
  const auto every = static_cast<std::size_t>(std::ceil(mLine / height));
  for (std::size_t row = 0; row < mPicture.rows.size(); row += every) {
    const double middle = cells.top() + (static_cast<double>(row) + 0.5) * height;
    write(
        {mSheet.left(), middle - mLine / 2.0, cells.left() - mSheet.left() - kTick * mLine, mLine},
        Qt::AlignRight | Qt::AlignVCenter, mPicture.rows[row]);
  }
}

void Painting::paintColumnLabels(const QRectF& cells) {
  const double width = cells.width() / static_cast<double>(mPicture.columns.size());
  const double room = widest(mPicture.columns, mMetrics) + kGap * mLine;
  const auto every = static_cast<std::size_t>(std::ceil(room / width));
  for (std::size_t column = 0; column < mPicture.columns.size(); column += every) {
    const double middle = cells.left() + (static_cast<double>(column) + 0.5) * width;
    write({middle - room, cells.top() - 1.1 * mLine, 2.0 * room, mLine}, Qt::AlignCenter,
          mPicture.columns[column]);
  }
}

/// The ends stand for all that is beyond them.
QString Painting::legendText(double share) const {
  const QString text = mPicture.numbers.toString(share * mPicture.limit, 'g', 3);
  const bool beyond = std::fabs(share) == 1.0 &&
                      std::any_of(mPicture.values.begin(), mPicture.values.end(),
                                  [&](double v) { return std::fabs(v) > mPicture.limit; });
  if (!beyond) return text;
  return (share > 0.0 ? QStringLiteral("\u2265 %1") : QStringLiteral("\u2264 %1")).arg(text);
}

void Painting::paintLegend(const QRectF& cells) {
  constexpr int kSteps = 64;
  const QRectF bar(cells.right() + 2.0 * kGap * mLine, cells.top(), kLegendWidth * mLine,
                   cells.height());
  for (int i = 0; i < kSteps; ++i) {
    const double share = 1.0 - (2.0 * i + 1.0) / kSteps;
    const double top = bar.top() + bar.height() * i / kSteps;
    mPainter.fillRect(QRectF(bar.left(), top, bar.width(), bar.bottom() - top),
                      colorOf(share * mPicture.limit));
  }
  for (const double share : {1.0, 0.5, 0.0, -0.5, -1.0}) {
    const double y = bar.center().y() - share * bar.height() / 2.0;
    const double top =
        std::clamp(y - mLine / 2.0, bar.top(), std::max(bar.top(), bar.bottom() - mLine));
    write({bar.right() + kTick * mLine, top, mSheet.right() - bar.right(), mLine},
          Qt::AlignLeft | Qt::AlignVCenter, {legendText(share), false});
  }
  if (mPicture.legendTitle.isEmpty()) return;
  const double labels = mMetrics.horizontalAdvance(QStringLiteral("\u2264 -00.0"));
  writeUpward(
      {bar.right() + (kTick + kGap) * mLine + labels, cells.top(), 1.2 * mLine, cells.height()},
      mPicture.legendTitle);
}

void Painting::writeUpward(const QRectF& place, const QString& text) {
  mPainter.save();
  mPainter.setPen(mInk.text);
  mPainter.translate(place.center());
  mPainter.rotate(-90.0);
  mPainter.drawText(
      QRectF(-place.height() / 2.0, -place.width() / 2.0, place.height(), place.width()),
      Qt::AlignCenter, mMetrics.elidedText(text, Qt::ElideRight, place.height()));
  mPainter.restore();
}

void Painting::paintTitles(const QRectF& cells) {
  const double room = mSheet.right() - cells.left();
  write({cells.left(), mSheet.top(), room, mLine}, Qt::AlignLeft | Qt::AlignVCenter,
        {mMetrics.elidedText(mPicture.heading, Qt::ElideRight, room), false});
  if (!mPicture.rowTitle.isEmpty()) {
    writeUpward({mSheet.left(), cells.top(), 1.2 * mLine, cells.height()}, mPicture.rowTitle);
  }
}

}  // namespace

MatrixInk MatrixInk::of(const QPalette& palette) {
  const QColor base = palette.color(QPalette::Base);
  return {base, palette.color(QPalette::WindowText), palette.color(QPalette::Mid),
          base.lightness() < 128};
}

MatrixInk MatrixInk::paper() {
  return {Qt::white, Qt::black, QColor(160, 160, 160), false};
}

QRectF MatrixPicture::area(const QRectF& sheet, const QFont& font) const {
  return Painting::area(*this, sheet, QFontMetricsF(font));
}

QRectF MatrixPicture::cell(std::size_t row, std::size_t column, const QRectF& area) const {
  const double width = area.width() / static_cast<double>(columns.size());
  const double height = area.height() / static_cast<double>(rows.size());
  return {area.left() + width * static_cast<double>(column),
          area.top() + height * static_cast<double>(row), width, height};
}

void MatrixPicture::paint(QPainter& painter, const QRectF& sheet, const QFont& font,
                          const MatrixInk& ink) const {
  if (isEmpty()) return;
  painter.save();
  Painting(*this, painter, sheet, font, ink).paint();
  painter.restore();
}

}  // namespace talvesk

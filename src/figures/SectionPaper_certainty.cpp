#include "figures/FigureWords.h"
#include "figures/SectionItems.h"
#include "figures/SectionPaper_painter.h"
#include "view/SectionScene.h"

#include <QPainterPath>

// How sure the section is, drawn over it, and the entries of the legend that explain it.

namespace talvesk {

using namespace section_items;

namespace {

constexpr double kHalo = 1.6;
const QColor kBetween(0, 0, 0, 60);

QPen boundPen() {
  return {QColor(20, 20, 20), 1.4, Qt::DashLine};
}

/// Lines of whatever colour the ground below has.
void paintOverGround(QPainter& painter, const QPolygonF& line, const QPen& pen) {
  painter.setPen(QPen(Qt::white, pen.widthF() + kHalo));
  painter.drawPolyline(line);
  painter.setPen(pen);
  painter.drawPolyline(line);
}

/// Where a band carries its velocity: on its longest line.
const std::vector<Point2D>* labelledLine(const DepthBand& band) {
  const std::vector<Point2D>* longest = nullptr;
  for (const auto* lines : {&band.shallow, &band.deep}) {
    for (const auto& piece : *lines) {
      if (longest == nullptr || piece.size() > longest->size()) longest = &piece;
    }
  }
  return longest;
}

}  // namespace

void SectionPaperPainter::paintFading() {
  section_items::paintFading(mPainter, mScene, mMap, mPlot);
}

void SectionPaperPainter::paintDepthBands() {
  for (const DepthBand& band : mScene.depthBands) {
    mPainter.setPen(Qt::NoPen);
    mPainter.setBrush(kBetween);
    for (const auto& area : band.areas) mPainter.drawPolygon(thinned(area, mMap));
    mPainter.setBrush(Qt::NoBrush);
    for (const auto* lines : {&band.shallow, &band.deep}) {
      for (const auto& piece : *lines) paintOverGround(mPainter, thinned(piece, mMap), boundPen());
    }
  }
  // Bands lie over each other: each has its velocity in a place of its own along the line.
  for (std::size_t i = 0; i < mScene.depthBands.size(); ++i) {
    const DepthBand& band = mScene.depthBands[i];
    const auto* line = labelledLine(band);
    if (line == nullptr) continue;
    paintVelocity(band.velocity, (*line)[(i + 1) * line->size() / (mScene.depthBands.size() + 1)]);
  }
}

void SectionPaperPainter::paintVelocity(double velocity, const Point2D& middle) {
  const QString text = FigureWords::velocity(velocity, mDress.locale);
  QPainterPath letters;
  letters.addText(QPointF(), mPainter.font(), text);
  const QPointF start = mMap.map(QPointF(middle.x, middle.z)) - letters.boundingRect().center();
  mPainter.setPen(QPen(Qt::white, 2.0 * kHalo, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  mPainter.setBrush(Qt::NoBrush);
  mPainter.drawPath(letters.translated(start));
  mPainter.setPen(Qt::black);
  mPainter.drawText(start, text);
}

std::vector<LegendEntry> certaintyLegend(const SectionScene& scene, const QLocale& locale) {
  std::vector<LegendEntry> entries;
  for (const DepthBand& band : scene.depthBands) {
    entries.push_back({FigureWords::depthBand(band.velocity, locale),
                       [](QPainter& painter, const QPointF& middle) {
                         const QRectF box(middle - QPointF(9, 4), QSizeF(18, 8));
                         painter.fillRect(box, kBetween);
                         painter.setPen(boundPen());
                         painter.drawLine(box.topLeft(), box.topRight());
                         painter.drawLine(box.bottomLeft(), box.bottomRight());
                       }});
  }
  if (!scene.fading.empty()) {
    entries.push_back({FigureWords::fading(), [](QPainter& painter, const QPointF& middle) {
                         const QRectF box(middle - QPointF(9, 4), QSizeF(18, 8));
                         QLinearGradient pale(box.topLeft(), box.topRight());
                         pale.setColorAt(0.0, QColor(60, 60, 60));
                         pale.setColorAt(1.0, Qt::white);
                         painter.setPen(QPen(Qt::black, 0.6));
                         painter.setBrush(pale);
                         painter.drawRect(box);
                       }});
  }
  return entries;
}

}  // namespace talvesk

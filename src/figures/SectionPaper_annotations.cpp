#include "figures/ContourLabels.h"
#include "figures/FigureFile.h"
#include "figures/FigureItem.h"
#include "figures/FigureWords.h"
#include "figures/LithologyPattern.h"
#include "figures/SectionItems.h"
#include "figures/SectionPaper_painter.h"
#include "figures/ShownLength.h"
#include "figures/ToldLength.h"
#include "view/SectionScene.h"

#include <QPolygonF>
#include <algorithm>
#include <cmath>

// What the user has drawn: marked isolines, areas of ground, lines and texts.

namespace talvesk {

using namespace section_items;

namespace {

constexpr double kHalo = 2.0;
constexpr double kPixelsPerPoint = 96.0 / 72.0;
const QColor kVeil(255, 255, 255, 120);  ///< over the section, so that the signs are seen

QPen penOf(std::uint32_t color, double width) {
  return {QColor(QRgb(color)), width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void strokeWithHalo(QPainter& painter, const QPen& pen, const QPolygonF& line) {
  painter.setPen(QPen(Qt::white, pen.widthF() + kHalo, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.drawPolyline(line);
  painter.setPen(pen);
  painter.drawPolyline(line);
}

QFont fontOf(const QFont& base, double points) {
  QFont font = base;
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(points * kPixelsPerPoint))));
  return font;
}

}  // namespace

QPolygonF SectionPaperPainter::onSheet(const Annotation& item) const {
  QPolygonF line;
  for (const Point2D& p : item.points) line << mMap.map(QPointF(p.x, p.z));
  return line;
}

void SectionPaperPainter::paintAreas() {
  for (const Annotation& item : mScene.annotations.items) {
    if (item.kind != AnnotationKind::kPolygon) continue;
    QPolygonF area = onSheet(item);
    if (!area.boundingRect().intersects(mPlot)) continue;
    mPainter.setPen(Qt::NoPen);
    mPainter.setBrush(kVeil);
    mPainter.drawPolygon(area);
    mPainter.setBrush(Qt::NoBrush);
    paintLithology(mPainter, area, item.pattern, QColor(QRgb(item.color)), mPlot,
                   mMap.map(QPointF(0.0, 0.0)));
    area << area.front();
    strokeWithHalo(mPainter, penOf(item.color, item.width), area);
  }
}

/// A text of an annotation. It stands where the user put it, whatever lies below.
void SectionPaperPainter::putNote(const Annotation& item, const QPointF& middle) {
  if (item.text.empty()) return;
  mPainter.save();
  mPainter.setFont(fontOf(mDress.font, item.textSize));
  const QString text = QString::fromStdString(item.text);
  const QPolygonF outline = outlineOf(text, middle, 0.0);
  if (mPlot.intersects(outline.boundingRect())) {
    mPainter.setPen(Qt::NoPen);
    mPainter.setBrush(QColor(255, 255, 255, 190));
    mPainter.drawRect(outline.boundingRect().adjusted(-2, 0, 2, 0));
    mPainter.setBrush(Qt::NoBrush);
    mPainter.setPen(QColor(QRgb(item.color)));
    put(text, middle);
  }
  mPainter.restore();
}

void SectionPaperPainter::paintAnnotations() {
  mPainter.setBrush(Qt::NoBrush);
  for (const Annotation& item : mScene.annotations.items) {
    const QPolygonF line = onSheet(item);
    switch (item.kind) {
      case AnnotationKind::kText:
        putNote(item, line.front());
        break;
      case AnnotationKind::kLine:
        if (!line.boundingRect().adjusted(-1, -1, 1, 1).intersects(mPlot)) break;
        strokeWithHalo(mPainter, penOf(item.color, item.width), line);
        mLineLabels.push_back(
            {line, QString::fromStdString(item.text), QColor(QRgb(item.color)), item.textSize});
        break;
      case AnnotationKind::kPolygon:
        putNote(item, line.boundingRect().intersected(mPlot).center());
        break;
    }
  }
}

void SectionPaperPainter::paintMarkedIsolines() {
  mPainter.setBrush(Qt::NoBrush);
  for (const DrawnIsoline& isoline : mScene.annotations.isolines) {
    const QPen pen = penOf(isoline.mark.color, isoline.mark.width);
    const QString name = isolineName(isoline.mark, mDress.locale);
    for (const ContourLine& contour : isoline.lines) {
      QPolygonF line = thinned(contour.points, mMap);
      if (contour.closed && !line.isEmpty()) line << line.front();
      strokeWithHalo(mPainter, pen, line);
      mLineLabels.push_back({line, name, pen.color(), mDress.contours.labelPoints + 1.0});
    }
  }
}

namespace {

QString velocityOf(const MarkedIsoline& mark, const QLocale& locale) {
  return withVelocityUnit(locale.toString(toldVelocity(mark.velocity), 'g', 6));
}

}  // namespace

QString isolineName(const MarkedIsoline& mark, const QLocale& locale) {
  if (!mark.name.empty()) return QString::fromStdString(mark.name);
  return velocityOf(mark, locale);
}

namespace {

LegendEntry legendOf(const DrawnIsoline& isoline, const QLocale& locale) {
  QString text = isolineName(isoline.mark, locale);
  if (!isoline.mark.name.empty()) {
    text = FigureWords::tr("%1: %2").arg(text, velocityOf(isoline.mark, locale));
  }
  if (isoline.lines.empty()) text = FigureWords::tr("%1 (not reached)").arg(text);
  const QPen pen = penOf(isoline.mark.color, isoline.mark.width);
  return {text, [pen](QPainter& painter, const QPointF& middle) {
            painter.setPen(pen);
            painter.drawLine(middle - QPointF(9, 0), middle + QPointF(9, 0));
          }};
}

LegendEntry legendOf(Lithology pattern, std::uint32_t color) {
  return {FigureWords::message(nameOf(pattern)), [=](QPainter& painter, const QPointF& middle) {
            const QRectF box(middle - QPointF(10, 7), middle + QPointF(10, 7));
            painter.setPen(QPen(Qt::black, 0.8));
            painter.setBrush(Qt::white);
            painter.drawRect(box);
            paintLithology(painter, QPolygonF(box.adjusted(0.0, 2.0, 0.0, -2.0)), pattern,
                           QColor(QRgb(color)), box, middle);
          }};
}

}  // namespace

std::vector<LegendEntry> annotationLegend(const SectionScene& scene, const QLocale& locale) {
  std::vector<LegendEntry> entries;
  for (const DrawnIsoline& isoline : scene.annotations.isolines) {
    entries.push_back(legendOf(isoline, locale));
  }
  for (const Lithology pattern : kLithologies) {
    const auto& items = scene.annotations.items;
    const auto first = std::find_if(items.begin(), items.end(), [pattern](const Annotation& item) {
      return item.kind == AnnotationKind::kPolygon && item.pattern == pattern;
    });
    if (pattern != Lithology::kNone && first != items.end()) {
      entries.push_back(legendOf(pattern, first->color));
    }
  }
  return entries;
}

}  // namespace talvesk

#include "figures/TravelTimeItems.h"

#include "figures/FigureItem.h"
#include "figures/SectionItems.h"

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include <qwt_scale_map.h>

namespace talvesk::travel_time_items {
namespace {

constexpr double kSymbol = 4.6;  ///< points of 1/96 inch across

/// Dark enough for thin lines on white; neighbours in the list are far apart in hue.
QColor colorOf(std::size_t record) {
  static constexpr QRgb kColors[] = {0xff1f5fa8, 0xffc4281b, 0xff1f8a3b, 0xff7a3fa0, 0xffb86a00,
                                     0xff008a93, 0xffb5307c, 0xff5b6b1a, 0xff3b3b3b, 0xff8a5a3c};
  return QColor(kColors[record % (sizeof kColors / sizeof *kColors)]);
}

void drawLines(QPainter& painter, const std::vector<std::vector<Point2D>>& lines,
               const QwtScaleMap& xMap, const QwtScaleMap& timeMap) {
  painter.setBrush(Qt::NoBrush);
  for (const auto& line : lines) {
    QPolygonF points;
    for (const Point2D& p : line) points.append({xMap.transform(p.x), timeMap.transform(p.z)});
    painter.drawPolyline(points);
  }
}

/// A ring of white keeps symbols apart where curves cross.
void drawSymbol(QPainter& painter, const QColor& color, const QPointF& middle) {
  painter.setPen(QPen(Qt::white, 0.6));
  painter.setBrush(color);
  painter.drawEllipse(middle, 0.5 * kSymbol, 0.5 * kSymbol);
}

void drawIconLine(QPainter& painter, const QSizeF& size, double width) {
  painter.setPen(QPen(QColor(60, 60, 60), width));
  painter.drawLine(QPointF(0, size.height() / 2), QPointF(size.width(), size.height() / 2));
}

}  // namespace

QwtPlotItem* measured(const std::vector<TravelTimeCurve>& curves, bool joined) {
  const auto paint = [&curves, joined](QPainter& painter, const QwtScaleMap& xMap,
                                       const QwtScaleMap& timeMap, const QRectF&) {
    painter.setRenderHint(QPainter::Antialiasing);
    for (const TravelTimeCurve& curve : curves) {
      const QColor color = colorOf(curve.record);
      painter.setPen(QPen(color, 0.9));
      if (joined) drawLines(painter, curve.measuredLines, xMap, timeMap);
      for (const auto& pick : curve.picks) {
        drawSymbol(painter, color, {xMap.transform(pick.point.x), timeMap.transform(pick.point.z)});
      }
    }
  };
  const auto icon = [joined](QPainter& painter, const QSizeF& size) {
    // A dot alone would be blown up to fill the icon.
    painter.setPen(Qt::NoPen);
    painter.drawRect(QRectF(QPointF(), size));
    if (joined) drawIconLine(painter, size, 0.9);
    drawSymbol(painter, QColor(60, 60, 60), {size.width() / 2, size.height() / 2});
  };
  return figureItem(QStringLiteral("Measured"), section_items::kContoursLayer, paint, icon);
}

QwtPlotItem* computed(const std::vector<TravelTimeCurve>& curves) {
  const auto paint = [&curves](QPainter& painter, const QwtScaleMap& xMap,
                               const QwtScaleMap& timeMap, const QRectF&) {
    painter.setRenderHint(QPainter::Antialiasing);
    for (const TravelTimeCurve& curve : curves) {
      painter.setPen(QPen(colorOf(curve.record), 0.6));
      drawLines(painter, curve.computedLines, xMap, timeMap);
    }
  };
  const auto icon = [](QPainter& painter, const QSizeF& size) { drawIconLine(painter, size, 0.6); };
  return figureItem(QStringLiteral("Computed"), section_items::kRaysLayer, paint, icon);
}

QwtPlotItem* shots(const std::vector<TravelTimeCurve>& curves) {
  const auto paint = [&curves](QPainter& painter, const QwtScaleMap& xMap,
                               const QwtScaleMap& timeMap, const QRectF&) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, 0.5));
    const QPainterPath star = section_items::symbol(section_items::Marker::kShot, 9.0);
    for (const TravelTimeCurve& curve : curves) {
      if (!curve.hasShot) continue;
      painter.setBrush(colorOf(curve.record));
      painter.drawPath(
          star.translated(xMap.transform(curve.shot.x), timeMap.transform(curve.shot.z)));
    }
  };
  const auto icon = [](QPainter& painter, const QSizeF& size) {
    painter.setPen(QPen(Qt::white, 0.5));
    painter.setBrush(QColor(60, 60, 60));
    const QPainterPath star = section_items::symbol(section_items::Marker::kShot, 9.0);
    painter.drawPath(star.translated(size.width() / 2, size.height() / 2));
  };
  return figureItem(QStringLiteral("Shots"), section_items::kMarkersLayer, paint, icon);
}

}  // namespace talvesk::travel_time_items

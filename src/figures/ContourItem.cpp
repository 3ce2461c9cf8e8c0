#include "figures/FigureFile.h"
#include "figures/FigureItem.h"
#include "figures/FigureWords.h"
#include "figures/SectionFigure.h"
#include "figures/SectionItems.h"
#include "view/SectionScene.h"
#include "view/SectionTexts.h"

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include <qwt_scale_map.h>

namespace talvesk::section_items {
namespace {

/// Iso-lines with their values set into them, upright and clear of each other.
class ContoursPainter {
 public:
  ContoursPainter(const SectionScene& scene, const ContourStyle& style)
      : mScene(scene), mStyle(style) {}

  void operator()(QPainter& painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
                  const QRectF& canvas) const {
    painter.setRenderHint(QPainter::Antialiasing);
    std::vector<QPolygonF> lines;
    for (const ContourLine& contour : mScene.contours) {
      lines.push_back(thinned(contour.points, xMap, yMap));
      if (contour.closed) lines.back().append(lines.back().front());
    }
    painter.setBrush(Qt::NoBrush);
    if (!mScene.rays.empty()) {  // else one could not tell them from rays
      painter.setPen(QPen(QColor(255, 255, 255, 150), mStyle.width + 1.6));
      for (const QPolygonF& line : lines) painter.drawPolyline(line);
    }
    painter.setPen(QPen(toColor(mStyle.color), mStyle.width));
    for (const QPolygonF& line : lines) painter.drawPolyline(line);

    std::vector<QRectF> taken;
    for (std::size_t i = 0; i < lines.size(); ++i) {
      if (hasLabel(mScene.contours[i].value)) {
        label(painter, lines[i], mScene.contours[i].value, canvas, taken);
      }
    }
  }

 private:
  bool hasLabel(double value) const {
    if (mStyle.labelEvery < 1) return false;
    const auto& levels = mScene.contourLevels;
    const auto at = std::lower_bound(levels.begin(), levels.end(), value) - levels.begin();
    return at % mStyle.labelEvery == 0;
  }

  /// Tries places along the line, from its middle outwards, until one is free.
  void label(QPainter& painter, const QPolygonF& line, double value, const QRectF& canvas,
             std::vector<QRectF>& taken) const {
    QPainterPath text;
    // Not the painter's font, which counts in the resolution of the device.
    const QFont font = figureFont(mStyle.labelPoints);
    text.addText(0, 0, font, QString::fromStdString(valueText(value, mScene.range.span() / 50.0)));
    const QRectF box = text.boundingRect();
    text.translate(-box.center());
    const double length = lengthOf(line);
    if (length < 1.6 * box.width()) return;
    for (const double f : {0.5, 0.4, 0.6, 0.3, 0.7, 0.2, 0.8}) {
      const double half = 0.5 * box.width();
      const QPointF from = pointAt(line, f * length - half);
      const QPointF to = pointAt(line, f * length + half);
      const QPointF along = to - from;
      // Where the line turns within the width of the text, the text would not lie on it.
      if (std::hypot(along.x(), along.y()) < 1.8 * half) continue;
      double angle = std::atan2(along.y(), along.x());
      if (std::cos(angle) < 0.0) angle += 3.14159265358979323846;
      QTransform place;
      const QPointF middle = (from + to) / 2.0;
      place.translate(middle.x(), middle.y());
      place.rotateRadians(angle);
      const QPainterPath placed = place.map(text);
      const QRectF bounds = placed.boundingRect().adjusted(-3, -3, 3, 3);
      const auto collides = [&bounds](const QRectF& other) { return other.intersects(bounds); };
      if (!canvas.contains(bounds) || std::any_of(taken.begin(), taken.end(), collides)) continue;
      taken.push_back(bounds);
      painter.setPen(QPen(Qt::white, 2.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
      painter.setBrush(Qt::NoBrush);
      painter.drawPath(placed);
      painter.setPen(Qt::NoPen);
      painter.setBrush(toColor(mStyle.color));
      painter.drawPath(placed);
      return;
    }
  }

  static double lengthOf(const QPolygonF& line) {
    double length = 0.0;
    for (int i = 1; i < line.size(); ++i) length += QLineF(line[i - 1], line[i]).length();
    return length;
  }

  static QPointF pointAt(const QPolygonF& line, double distance) {
    for (int i = 1; i < line.size(); ++i) {
      const QLineF piece(line[i - 1], line[i]);
      const double length = piece.length();
      if (distance <= length && length > 0.0) return piece.pointAt(distance / length);
      distance -= length;
    }
    return line.back();
  }

  const SectionScene& mScene;
  const ContourStyle& mStyle;
};

}  // namespace

QwtPlotItem* contours(const SectionScene& scene, const ContourStyle& style) {
  const auto icon = [&style](QPainter& painter, const QSizeF& size) {
    painter.setPen(QPen(toColor(style.color), style.width));
    painter.drawLine(QPointF(0, size.height() / 2), QPointF(size.width(), size.height() / 2));
  };
  return figureItem(FigureWords::tr("Contours"), kContoursLayer, ContoursPainter(scene, style),
                    icon);
}

}  // namespace talvesk::section_items

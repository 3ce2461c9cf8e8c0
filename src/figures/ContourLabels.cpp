#include "figures/ContourLabels.h"

#include "figures/FigureFile.h"
#include "figures/FigureItem.h"
#include "figures/SectionFigureOptions.h"
#include "view/SectionScene.h"

#include <QFont>
#include <QLineF>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QTransform>
#include <algorithm>
#include <cmath>
#include <optional>

namespace talvesk::section_items {
namespace {

constexpr double kPi = 3.14159265358979323846;

double lengthOf(const QPolygonF& line) {
  double length = 0.0;
  for (int i = 1; i < line.size(); ++i) length += QLineF(line[i - 1], line[i]).length();
  return length;
}

QPointF pointAt(const QPolygonF& line, double distance) {
  for (int i = 1; i < line.size(); ++i) {
    const QLineF piece(line[i - 1], line[i]);
    const double length = piece.length();
    if (distance <= length && length > 0.0) return piece.pointAt(distance / length);
    distance -= length;
  }
  return line.back();
}

/// Finds a free place for every label and adds it to the places that are taken.
class LabelPlacer {
 public:
  LabelPlacer(const QRectF& canvas, std::vector<QRectF>& taken) : mCanvas(canvas), mTaken(taken) {}

  /// Tries places along the line, from its middle outwards. \param text around the origin
  /// \param placed the text where it goes; false when there is no room
  bool place(const QPolygonF& line, const QPainterPath& text, QPainterPath& placed) {
    const double width = text.boundingRect().width();
    const double length = lengthOf(line);
    if (length < 1.6 * width) return false;
    for (const double f : {0.5, 0.4, 0.6, 0.3, 0.7, 0.2, 0.8}) {
      const QPointF from = pointAt(line, f * length - 0.5 * width);
      const QPointF to = pointAt(line, f * length + 0.5 * width);
      const QPointF along = to - from;
      // Where the line turns within the width of the text, the text would not lie on it.
      if (std::hypot(along.x(), along.y()) < 0.9 * width) continue;
      double angle = std::atan2(along.y(), along.x());
      if (std::cos(angle) < 0.0) angle += kPi;
      QTransform there;
      const QPointF middle = (from + to) / 2.0;
      there.translate(middle.x(), middle.y());
      there.rotateRadians(angle);
      placed = there.map(text);
      if (take(placed.boundingRect().adjusted(-3, -3, 3, 3))) return true;
    }
    return false;
  }

 private:
  bool take(const QRectF& bounds) {
    const auto collides = [&bounds](const QRectF& other) { return other.intersects(bounds); };
    if (!mCanvas.contains(bounds) || std::any_of(mTaken.begin(), mTaken.end(), collides)) {
      return false;
    }
    mTaken.push_back(bounds);
    return true;
  }

  QRectF mCanvas;
  std::vector<QRectF>& mTaken;
};

bool hasLabel(const SectionScene& scene, const ContourStyle& style, double value) {
  const auto& levels = scene.contourLevels;
  const auto at = std::lower_bound(levels.begin(), levels.end(), value) - levels.begin();
  return at % style.labelEvery == 0;
}

QPainterPath labelPath(const QString& text, double points) {
  QPainterPath label;
  // Not the painter's font, which counts in the resolution of the device.
  label.addText(0, 0, figureFont(points), text);
  label.translate(-label.boundingRect().center());
  return label;
}

void paintLabel(QPainter& painter, const QPainterPath& label, const QColor& color) {
  painter.setPen(QPen(Qt::white, 2.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(label);
  painter.setPen(Qt::NoPen);
  painter.setBrush(color);
  painter.drawPath(label);
}

}  // namespace

void paintLineLabels(QPainter& painter, const std::vector<LineLabel>& labels, const QRectF& canvas,
                     std::vector<QRectF>& taken) {
  LabelPlacer placer(canvas, taken);
  for (const LineLabel& label : labels) {
    if (label.text.isEmpty()) continue;
    QPainterPath placed;
    if (!placer.place(label.line, labelPath(label.text, label.points), placed)) continue;
    paintLabel(painter, placed, label.color);
  }
}

void paintContourLabels(QPainter& painter, const SectionScene& scene,
                        const std::vector<QPolygonF>& lines, const ContourStyle& style,
                        const QRectF& canvas, const std::function<QString(double)>& text,
                        std::vector<QRectF>& taken) {
  if (style.labelEvery < 1) return;
  LabelPlacer placer(canvas, taken);
  // Lines come level by level, and a rough section has thousands of short ones.
  QPainterPath label;
  std::optional<double> labelled;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const double value = scene.contours[i].value;
    if (!hasLabel(scene, style, value)) continue;
    if (labelled != value) {
      label = labelPath(text(value), style.labelPoints);
      labelled = value;
    }
    QPainterPath placed;
    if (!placer.place(lines[i], label, placed)) continue;
    paintLabel(painter, placed, toColor(style.color));
  }
}

}  // namespace talvesk::section_items

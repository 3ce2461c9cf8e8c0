#include "widgets/PickMarks.h"

#include "widgets/TraceGuides.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>
#include <QVector>
#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr double kFar = 1e6;  // pixels; lines are not drawn beyond

/// Context of the texts on the picture.
struct Texts {
  Q_DECLARE_TR_FUNCTIONS(talvesk::TraceTexts)
};

double barHalf(const WiggleScene& scene, const TraceMapping& mapping) {
  const double spacing = mapping.x(scene.layout.spacing()) - mapping.x(0.0);
  return std::clamp(0.42 * spacing, 2.5, 9.0);
}

QVector<QLineF> pickBars(const WiggleScene& scene, const TraceMapping& mapping,
                         const std::map<int, double>& draft) {
  QVector<QLineF> bars;
  const double half = barHalf(scene, mapping);
  const QRectF seen = mapping.plot.adjusted(-half, 0.0, half, 0.0);
  for (int trace = 0; trace < scene.layout.count(); ++trace) {
    const double time = shownPick(scene.traces, draft, trace);
    if (!hasPick(time)) continue;
    const QPointF p = mapping.point(scene.layout.position(trace), time);
    if (!seen.contains(p)) continue;
    bars.append({p.x() - half, p.y(), p.x() + half, p.y()});
  }
  return bars;
}

QPolygonF toScreen(const std::vector<QPointF>& points, const TraceMapping& mapping) {
  QPolygonF line;
  for (const QPointF& p : points) {
    const QPointF q = mapping.point(p.x(), p.y());
    line.append({std::clamp(q.x(), -kFar, kFar), std::clamp(q.y(), -kFar, kFar)});
  }
  return line;
}

void paintAirWave(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping) {
  const QPolygonF line =
      toScreen(airWaveLine(scene.traces, scene.layout, scene.options.airVelocity), mapping);
  if (line.isEmpty()) return;
  painter.setPen(QPen(scene.colors.airWave, 1.5, Qt::DashLine));
  painter.drawPolyline(line);
}

void paintComputed(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping) {
  for (const auto& piece : computedLines(scene.traces, scene.layout)) {
    const QPolygonF line = toScreen(piece, mapping);
    painter.setPen(QPen(scene.colors.halo, 3.5));
    painter.drawPolyline(line);
    painter.setPen(QPen(scene.colors.computed, 1.75));
    painter.drawPolyline(line);
    painter.setBrush(scene.colors.computed);
    painter.setPen(QPen(scene.colors.halo, 0.75));
    for (const QPointF& p : line) painter.drawEllipse(p, 2.75, 2.75);
    painter.setBrush(Qt::NoBrush);
  }
}

void paintOtherPicks(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping,
                     const TomoDocument& document) {
  const double half = std::min(barHalf(scene, mapping), 5.0);
  QVector<QLineF> bars;
  for (const QPointF& pick : otherPicks(document, scene.traces, scene.layout)) {
    const QPointF p = mapping.point(pick.x(), pick.y());
    if (mapping.plot.contains(p)) bars.append({p.x() - half, p.y(), p.x() + half, p.y()});
  }
  painter.setPen(QPen(scene.colors.halo, 2.5));
  painter.drawLines(bars);
  painter.setPen(QPen(scene.colors.otherPicks, 1.25));
  painter.drawLines(bars);
}

QString number(double value, int decimals) {
  QLocale locale;
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  return locale.toString(value, 'f', decimals);
}

QString rulerText(const WiggleScene& scene, const QPointF& from, const QPointF& to) {
  const QString time = number(1e3 * std::fabs(to.y() - from.y()), 2);
  const auto a = distanceAt(scene.traces, scene.layout, from.x());
  const auto b = distanceAt(scene.traces, scene.layout, to.x());
  if (!a || !b) return Texts::tr("%1 ms").arg(time);
  const QString way = number(std::fabs(*b - *a), 1);
  const auto velocity = apparentVelocity(scene.traces, scene.layout, from, to);
  if (!velocity || !std::isfinite(*velocity)) return Texts::tr("%1 m, %2 ms").arg(way, time);
  return Texts::tr("%1 m/s (%2 m, %3 ms)").arg(number(*velocity, 0), way, time);
}

}  // namespace

double shownPick(const ShotTraces& traces, const std::map<int, double>& draft, int trace) {
  const auto drafted = draft.find(trace);
  return drafted != draft.end() ? drafted->second : traces.measured(trace);
}

void paintPicks(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping,
                const std::map<int, double>& draft) {
  const QVector<QLineF> bars = pickBars(scene, mapping, draft);
  painter.setPen(QPen(scene.colors.halo, 4.0, Qt::SolidLine, Qt::FlatCap));
  painter.drawLines(bars);
  painter.setPen(QPen(scene.colors.pick, 2.0, Qt::SolidLine, Qt::FlatCap));
  painter.drawLines(bars);
}

void paintGuides(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping,
                 const TomoDocument& document) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  if (scene.options.airWave) paintAirWave(painter, scene, mapping);
  if (scene.options.showAllPicks) paintOtherPicks(painter, scene, mapping, document);
  if (scene.options.showComputedTimes) paintComputed(painter, scene, mapping);
  painter.restore();
}

void paintRuler(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping,
                const QPointF& from, const QPointF& to) {
  const QPolygonF line = toScreen({from, to}, mapping);
  painter.save();
  painter.setClipRect(mapping.plot);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(scene.colors.halo, 4.0));
  painter.drawPolyline(line);
  painter.setPen(QPen(scene.colors.ruler, 2.0));
  painter.drawPolyline(line);
  painter.setBrush(scene.colors.ruler);
  for (const QPointF& p : line) painter.drawEllipse(p, 3.0, 3.0);
  painter.restore();
  paintTag(painter, scene.colors, line.last() + QPointF(12.0, -30.0), rulerText(scene, from, to),
           mapping.plot);
}

void paintCrosshair(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping,
                    int trace, double time) {
  const QRectF& plot = mapping.plot;
  const double y = mapping.y(time);
  QColor thin = scene.colors.text;
  thin.setAlphaF(0.45);
  painter.setPen(QPen(thin, 0.0));
  painter.drawLine(QPointF(plot.left(), y), QPointF(plot.right(), y));
  const QFontMetricsF metrics(painter.font());
  const QRectF whole(0.0, 0.0, plot.right(), plot.bottom());
  const QString ms = number(1e3 * time, 2);
  paintTag(painter, scene.colors,
           {plot.left() - metrics.horizontalAdvance(ms) - 9.0, y - 0.5 * metrics.height() - 1.0},
           ms, whole);
  if (trace < 0) return;
  const double x = mapping.x(scene.layout.position(trace));
  if (x < plot.left() || x > plot.right()) return;
  painter.setPen(QPen(thin, 0.0));
  painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom()));
  const QString channel = QString::number(trace + 1);
  const double row = scene.layout.isByDistance() ? 2.0 : 1.0;
  paintTag(painter, scene.colors,
           {x - 0.5 * metrics.horizontalAdvance(channel) - 4.0,
            plot.top() - 9.0 - row * metrics.height() - 1.0},
           channel, whole);
}

void paintTag(QPainter& painter, const TraceColors& colors, const QPointF& corner,
              const QString& text, const QRectF& bounds) {
  const QFontMetricsF metrics(painter.font());
  QRectF plate(corner, QSizeF(metrics.horizontalAdvance(text) + 8.0, metrics.height() + 2.0));
  if (plate.right() > bounds.right()) plate.moveRight(bounds.right());
  if (plate.bottom() > bounds.bottom()) plate.moveBottom(bounds.bottom());
  plate.moveLeft(std::max(plate.left(), bounds.left()));
  plate.moveTop(std::max(plate.top(), bounds.top()));
  QColor back = colors.text;
  back.setAlphaF(0.88);
  painter.setPen(Qt::NoPen);
  painter.setBrush(back);
  painter.drawRoundedRect(plate, 2.0, 2.0);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(colors.background);
  painter.drawText(plate, Qt::AlignCenter, text);
}

void paintMagnifier(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping,
                    const std::map<int, double>& draft, const QPointF& at) {
  constexpr double kTimes = 4.0;
  constexpr double kAway = 24.0;
  const QRectF& plot = mapping.plot;
  const QSizeF size(std::min(220.0, 0.45 * plot.width()), std::min(180.0, 0.45 * plot.height()));
  const QPointF cursor = mapping.point(at.x(), at.y());
  QPointF corner(cursor.x() + kAway, cursor.y() - kAway - size.height());
  if (corner.x() + size.width() > plot.right()) corner.setX(cursor.x() - kAway - size.width());
  if (corner.y() < plot.top()) corner.setY(cursor.y() + kAway);
  TraceMapping lens;
  lens.plot = QRectF(corner, size);
  const double width = mapping.window.width() * size.width() / plot.width() / kTimes;
  const double height = mapping.window.height() * size.height() / plot.height() / kTimes;
  lens.window = {at.x() - 0.5 * width, at.x() + 0.5 * width, at.y() - 0.5 * height,
                 at.y() + 0.5 * height};
  QImage canvas =
      wiggleCanvas(size, painter.device()->devicePixelRatioF(), scene.colors.background);
  if (canvas.isNull()) return;
  paintWiggles(scene, lens, canvas);
  painter.save();
  painter.drawImage(lens.plot, canvas);
  painter.setClipRect(lens.plot);
  QColor thin = scene.colors.text;
  thin.setAlphaF(0.5);
  painter.setPen(QPen(thin, 0.0));
  const QPointF centre = lens.plot.center();
  painter.drawLine(QPointF(lens.plot.left(), centre.y()), QPointF(lens.plot.right(), centre.y()));
  painter.drawLine(QPointF(centre.x(), lens.plot.top()), QPointF(centre.x(), lens.plot.bottom()));
  if (!scene.options.showOnlyTraces) paintPicks(painter, scene, lens, draft);
  painter.setClipping(false);
  painter.setPen(QPen(scene.colors.focus, 1.5));
  painter.drawRect(lens.plot);
  painter.restore();
}

}  // namespace talvesk

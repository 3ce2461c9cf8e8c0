#include "widgets/GuideMarks.h"

#include "model/TomoDocument.h"
#include "widgets/traces/TraceGuides.h"
#include "widgets/traces/TraceTags.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <QVector>
#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace talvesk {
namespace {

constexpr double kFar = 1e6;  // pixels; lines are not drawn beyond

/// Context of the texts on the picture.
struct Texts {
  Q_DECLARE_TR_FUNCTIONS(talvesk::TraceTexts)
};

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
  const double half =
      std::clamp(0.3 * (mapping.x(scene.layout.spacing()) - mapping.x(0.0)), 2.0, 5.0);
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

QString rulerText(const WiggleScene& scene, const QPointF& from, const QPointF& to) {
  const QString time = screenNumber(1e3 * std::fabs(to.y() - from.y()), 2);
  const auto a = distanceAt(scene.traces, scene.layout, from.x());
  const auto b = distanceAt(scene.traces, scene.layout, to.x());
  if (!a || !b) return Texts::tr("%1 ms").arg(time);
  const QString way = screenNumber(std::fabs(*b - *a), 1);
  const auto velocity = apparentVelocity(scene.traces, scene.layout, from, to);
  if (!velocity || !std::isfinite(*velocity)) return Texts::tr("%1 m, %2 ms").arg(way, time);
  return Texts::tr("%1 m/s (%2 m, %3 ms)").arg(screenNumber(*velocity, 0), way, time);
}

}  // namespace

void paintGuides(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping,
                 const TomoDocument& document) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  if (scene.options.airWave) paintAirWave(painter, scene, mapping);
  if (scene.options.showAllPicks) paintOtherPicks(painter, scene, mapping, document);
  if (scene.options.showComputedTimes) paintComputed(painter, scene, mapping);
  painter.restore();
}

void paintLegend(QPainter& painter, const WiggleScene& scene, const QRectF& plot) {
  const TraceViewOptions& options = scene.options;
  std::vector<std::pair<QPen, QString>> entries;
  if (options.showAllPicks) {
    entries.emplace_back(QPen(scene.colors.otherPicks, 1.5), Texts::tr("Other shots"));
  }
  if (options.showComputedTimes) {
    entries.emplace_back(QPen(scene.colors.computed, 2.0), Texts::tr("Computed"));
  }
  if (options.airWave) {
    entries.emplace_back(QPen(scene.colors.airWave, 1.5, Qt::DashLine),
                         Texts::tr("Air %1 m/s").arg(screenNumber(options.airVelocity, 0)));
  }
  if (entries.empty()) return;
  constexpr double kLine = 22.0;
  constexpr double kPad = 6.0;
  const QFontMetricsF metrics(painter.font());
  double width = 0.0;
  for (const auto& entry : entries) {
    width = std::max(width, metrics.horizontalAdvance(entry.second));
  }
  const QSizeF size(width + kLine + 3.0 * kPad,
                    metrics.height() * static_cast<double>(entries.size()) + kPad);
  if (size.width() > 0.5 * plot.width() || size.height() > 0.4 * plot.height()) return;
  QRectF plate(QPointF(), size);
  plate.moveBottomRight(plot.bottomRight() - QPointF(kPad, kPad));
  QColor back = scene.colors.background;
  back.setAlphaF(0.9);
  painter.setPen(QPen(scene.colors.faint, 1.0));
  painter.setBrush(back);
  painter.drawRect(plate);
  painter.setBrush(Qt::NoBrush);
  QRectF row(plate.left() + kPad, plate.top() + 0.5 * kPad, width + kLine + kPad, metrics.height());
  for (const auto& [pen, text] : entries) {
    painter.setPen(pen);
    painter.drawLine(QPointF(row.left(), row.center().y()),
                     QPointF(row.left() + kLine, row.center().y()));
    painter.setPen(scene.colors.text);
    painter.drawText(row.adjusted(kLine + kPad, 0.0, 0.0, 0.0), Qt::AlignVCenter, text);
    row.translate(0.0, metrics.height());
  }
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

}  // namespace talvesk

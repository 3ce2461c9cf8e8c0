#include "widgets/GuideMarks.h"

#include "figures/ShownLength.h"
#include "model/TomoDocument.h"
#include "model/TomographyOutcome.h"
#include "widgets/traces/TraceGuides.h"
#include "widgets/traces/TraceTags.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <QVector>
#include <algorithm>
#include <cmath>
#include <vector>

namespace talvesk {
namespace {

constexpr double kFar = 1e6;  // pixels; lines are not drawn beyond

/// Context of the texts on the picture.
struct Texts {
  Q_DECLARE_TR_FUNCTIONS(talvesk::TraceTexts)
};

/// \param points of true times
QPolygonF toScreen(const WiggleScene& scene, const std::vector<QPointF>& points,
                   const TraceMapping& mapping) {
  QPolygonF line;
  for (const QPointF& p : drawnPoints(scene.traces, scene.layout, points)) {
    const QPointF q = mapping.point(p.x(), p.y());
    line.append({std::clamp(q.x(), -kFar, kFar), std::clamp(q.y(), -kFar, kFar)});
  }
  return line;
}

QPen neighbourPen(const TraceColors& colors) {
  return QPen(colors.otherPicks, 1.25, Qt::DashLine);
}

void paintAirWave(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping) {
  const QPolygonF line =
      toScreen(scene, airWaveLine(scene.traces, scene.layout, scene.options.airVelocity), mapping);
  if (line.isEmpty()) return;
  painter.setPen(QPen(scene.colors.airWave, 1.5, Qt::DashLine));
  painter.drawPolyline(line);
}

void paintComputed(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping) {
  for (const auto& piece : computedLines(scene.traces, scene.layout)) {
    const QPolygonF line = toScreen(scene, piece, mapping);
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
  const std::vector<QPointF> picks = otherPicks(document, scene.traces, scene.layout);
  for (const QPointF& pick : drawnPoints(scene.traces, scene.layout, picks)) {
    const QPointF p = mapping.point(pick.x(), pick.y());
    if (mapping.plot.contains(p)) bars.append({p.x() - half, p.y(), p.x() + half, p.y()});
  }
  painter.setPen(QPen(scene.colors.halo, 2.5));
  painter.drawLines(bars);
  painter.setPen(QPen(scene.colors.otherPicks, 1.25));
  painter.drawLines(bars);
}

void paintNeighbour(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping,
                    const TomoDocument& document) {
  for (const auto& piece : nearestCurve(document, scene.traces, scene.layout).lines) {
    const QPolygonF line = toScreen(scene, piece, mapping);
    painter.setPen(QPen(scene.colors.halo, 3.0));
    painter.drawPolyline(line);
    painter.setPen(neighbourPen(scene.colors));
    painter.drawPolyline(line);
  }
}

void paintDiamond(QPainter& painter, const TraceColors& colors, const QPointF& at) {
  constexpr double kHalf = 4.5;
  painter.setBrush(colors.reciprocal);
  painter.setPen(QPen(colors.halo, 1.0));
  painter.drawPolygon(QPolygonF({at + QPointF(0.0, -kHalf), at + QPointF(kHalf, 0.0),
                                 at + QPointF(0.0, kHalf), at + QPointF(-kHalf, 0.0)}));
  painter.setBrush(Qt::NoBrush);
}

void paintReciprocal(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping,
                     const TomoDocument& document) {
  const std::vector<QPointF> times = reciprocalTimes(document, scene.traces, scene.layout);
  for (const QPointF& time : drawnPoints(scene.traces, scene.layout, times)) {
    const QPointF at = mapping.point(time.x(), time.y());
    if (mapping.plot.contains(at)) paintDiamond(painter, scene.colors, at);
  }
}

QString rulerText(const WiggleScene& scene, const QPointF& from, const QPointF& to) {
  const QString time = screenNumber(1e3 * std::fabs(to.y() - from.y()), 2);
  const auto a = distanceAt(scene.traces, scene.layout, from.x());
  const auto b = distanceAt(scene.traces, scene.layout, to.x());
  if (!a || !b) return Texts::tr("%1 ms").arg(time);
  const QString way = withLengthUnit(screenNumber(shownLength(std::fabs(*b - *a)), 1));
  const auto velocity = apparentVelocity(scene.traces, scene.layout, from, to);
  if (!velocity || !std::isfinite(*velocity)) return Texts::tr("%1, %2 ms").arg(way, time);
  return Texts::tr("%1 (%2, %3 ms)")
      .arg(withVelocityUnit(screenNumber(shownLength(*velocity), 0)), way, time);
}

/// A row of the legend. One that names what is missing has no pen.
struct LegendEntry {
  QPen pen;
  QString text;
  bool isMark = false;
};

LegendEntry neighbourEntry(const WiggleScene& scene, const TomoDocument& document) {
  const NeighbourCurve curve = nearestCurve(document, scene.traces, scene.layout);
  if (curve.record < 0) return {Qt::NoPen, Texts::tr("No other shot of the string is picked")};
  return {neighbourPen(scene.colors),
          Texts::tr("Shot %1 at %2", "number, place")
              .arg(curve.record + 1)
              .arg(withLengthUnit(screenNumber(shownLength(curve.x), 1)))};
}

std::vector<LegendEntry> legendOf(const WiggleScene& scene, const TomoDocument& document) {
  const TraceViewOptions& options = scene.options;
  std::vector<LegendEntry> entries;
  if (options.showAllPicks) {
    entries.push_back({QPen(scene.colors.otherPicks, 1.5), Texts::tr("Other shots")});
  }
  if (options.showNeighbour) entries.push_back(neighbourEntry(scene, document));
  if (options.showComputedTimes) {
    if (!computedLines(scene.traces, scene.layout).empty()) {
      entries.push_back({QPen(scene.colors.computed, 2.0), Texts::tr("Computed")});
    } else if (document.result->has_tomographic_info) {
      entries.push_back({Qt::NoPen, Texts::tr("No computed times")});
    }
  }
  if (options.showReciprocal) {
    const bool any = !reciprocalTimes(document, scene.traces, scene.layout).empty();
    entries.push_back(any ? LegendEntry{QPen(), Texts::tr("Reciprocal times"), true}
                          : LegendEntry{Qt::NoPen, Texts::tr("No reciprocal times")});
  }
  if (options.airWave) {
    entries.push_back({QPen(scene.colors.airWave, 1.5, Qt::DashLine),
                       Texts::tr("Air %1").arg(
                           withVelocityUnit(screenNumber(shownLength(options.airVelocity), 0)))});
  }
  return entries;
}

}  // namespace

void paintGuides(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping,
                 const TomoDocument& document) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  if (scene.options.airWave) paintAirWave(painter, scene, mapping);
  if (scene.options.showAllPicks) paintOtherPicks(painter, scene, mapping, document);
  if (scene.options.showNeighbour) paintNeighbour(painter, scene, mapping, document);
  if (scene.options.showComputedTimes) paintComputed(painter, scene, mapping);
  if (scene.options.showReciprocal) paintReciprocal(painter, scene, mapping, document);
  painter.restore();
}

void paintLegend(QPainter& painter, const WiggleScene& scene, const QRectF& plot,
                 const TomoDocument& document) {
  const std::vector<LegendEntry> entries = legendOf(scene, document);
  if (entries.empty()) return;
  constexpr double kLine = 22.0;
  constexpr double kPad = 6.0;
  const QFontMetricsF metrics(painter.font());
  double width = 0.0;
  for (const auto& entry : entries) {
    width = std::max(width, metrics.horizontalAdvance(entry.text));
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
  for (const auto& [pen, text, isMark] : entries) {
    painter.setPen(pen);
    if (isMark) {
      painter.save();
      painter.setRenderHint(QPainter::Antialiasing);
      paintDiamond(painter, scene.colors, {row.left() + 0.5 * kLine, row.center().y()});
      painter.restore();
    } else {
      painter.drawLine(QPointF(row.left(), row.center().y()),
                       QPointF(row.left() + kLine, row.center().y()));
    }
    painter.setPen(scene.colors.text);
    painter.drawText(row.adjusted(kLine + kPad, 0.0, 0.0, 0.0), Qt::AlignVCenter, text);
    row.translate(0.0, metrics.height());
  }
}

void paintRuler(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping,
                const QPointF& from, const QPointF& to) {
  const QPolygonF line = toScreen(scene, {from, to}, mapping);
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

#include "widgets/traces/PickMarks.h"

#include "figures/ErrorBar.h"
#include "model/TravelTime.h"
#include "widgets/traces/TraceTags.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QVector>
#include <algorithm>
#include <cmath>
#include <vector>

namespace talvesk {

double shownPick(const ShotTraces& traces, const std::map<int, double>& draft, int trace) {
  const auto drafted = draft.find(trace);
  return drafted != draft.end() ? drafted->second : traces.measured(trace);
}

namespace {

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
    const QPointF p =
        mapping.point(scene.layout.position(trace), scene.traces.drawnTime(trace, time));
    if (!seen.contains(p)) continue;
    bars.append({p.x() - half, p.y(), p.x() + half, p.y()});
  }
  return bars;
}

std::vector<ErrorBar> errorBars(const WiggleScene& scene, const TraceMapping& mapping,
                                const std::map<int, double>& draft, const DraftError& pulled) {
  std::vector<ErrorBar> bars;
  const double left = mapping.plot.left() - barHalf(scene, mapping);
  const double right = mapping.plot.right() + barHalf(scene, mapping);
  for (int trace = 0; trace < scene.layout.count(); ++trace) {
    const double time = shownPick(scene.traces, draft, trace);
    const double sigma = trace == pulled.trace    ? pulled.sigma
                         : draft.count(trace) > 0 ? scene.options.pickError
                                                  : scene.traces.error(trace);
    if (!(sigma > 0.0) || !hasPick(time)) continue;
    const double drawn = scene.traces.drawnTime(trace, time);
    const ErrorBar bar(mapping.x(scene.layout.position(trace)), mapping.y(drawn - sigma),
                       mapping.y(drawn + sigma), sigma, mapping.plot.top(), mapping.plot.bottom());
    if (bar.x >= left && bar.x <= right) bars.push_back(bar);
  }
  return bars;
}

}  // namespace

void paintErrorBars(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping,
                    const std::map<int, double>& draft, const DraftError& pulled) {
  const double half = std::clamp(0.6 * barHalf(scene, mapping), 2.0, 4.5);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  for (const ErrorBar& bar : errorBars(scene, mapping, draft, pulled)) {
    const QColor& color = bar.doubtful ? scene.colors.doubtful : scene.colors.pick;
    paintErrorBar(painter, bar, {color, 1.5, half, scene.colors.halo});
  }
  painter.restore();
}

void paintPicks(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping,
                const std::map<int, double>& draft) {
  const QVector<QLineF> bars = pickBars(scene, mapping, draft);
  painter.setPen(QPen(scene.colors.halo, 4.0, Qt::SolidLine, Qt::FlatCap));
  painter.drawLines(bars);
  painter.setPen(QPen(scene.colors.pick, 2.0, Qt::SolidLine, Qt::FlatCap));
  painter.drawLines(bars);
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
  const QString ms = screenNumber(1e3 * time, 2);
  paintTag(painter, scene.colors,
           {plot.left() - metrics.horizontalAdvance(ms) - 9.0, y - 0.5 * metrics.height() - 1.0},
           ms, whole);
  if (trace < 0) return;
  const double x = mapping.x(scene.layout.position(trace));
  if (x < plot.left() || x > plot.right()) return;
  painter.setPen(QPen(thin, 0.0));
  painter.drawLine(QPointF(x, plot.top()), QPointF(x, plot.bottom()));
  const QString channel = QString::number(trace + 1);
  const double row = scene.layout.isByChannel() ? 1.0 : 2.0;
  paintTag(painter, scene.colors,
           {x - 0.5 * metrics.horizontalAdvance(channel) - 4.0,
            plot.top() - 9.0 - row * metrics.height() - 1.0},
           channel, whole);
}

void paintMagnifier(QPainter& painter, const WiggleScene& scene, const TraceMapping& mapping,
                    const std::map<int, double>& draft, const DraftError& pulled,
                    const QPointF& at) {
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
  if (!scene.options.showOnlyTraces) {
    if (scene.options.errorBars) paintErrorBars(painter, scene, lens, draft, pulled);
    paintPicks(painter, scene, lens, draft);
  }
  painter.setClipping(false);
  painter.setPen(QPen(scene.colors.focus, 1.5));
  painter.drawRect(lens.plot);
  painter.restore();
}

}  // namespace talvesk

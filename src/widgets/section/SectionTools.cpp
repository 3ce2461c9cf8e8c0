#include "widgets/section/SectionTools.h"

#include "figures/ShownLength.h"
#include "view/SectionMeasure.h"

#include <QCoreApplication>
#include <QFontMetricsF>
#include <QLocale>
#include <QPainter>
#include <QPolygonF>
#include <QStringList>
#include <algorithm>

namespace talvesk {
namespace {

const QColor kToolColor(190, 0, 90);

struct ToolWords {
  Q_DECLARE_TR_FUNCTIONS(talvesk::SectionView)
};

/// Lines of text in a box beside a point, within what the painter has room for.
void paintNote(QPainter& painter, const QStringList& lines, const QPointF& beside) {
  const QFontMetricsF metrics(painter.font());
  double width = 0.0;
  for (const QString& line : lines) width = std::max(width, metrics.horizontalAdvance(line));
  QRectF box(0.0, 0.0, width + 12.0, lines.size() * metrics.height() + 8.0);
  box.moveTopLeft(beside + QPointF(12.0, 12.0));
  const QRectF room(painter.viewport());
  if (box.right() > room.right()) box.moveRight(beside.x() - 12.0);
  if (box.bottom() > room.bottom()) box.moveBottom(beside.y() - 12.0);
  painter.setPen(QPen(kToolColor, 1.0));
  painter.setBrush(QColor(255, 255, 255, 235));
  painter.drawRoundedRect(box, 3.0, 3.0);
  painter.setPen(Qt::black);
  painter.drawText(box.adjusted(6.0, 4.0, -6.0, -4.0), lines.join(QLatin1Char('\n')));
}

}  // namespace

void strokeAsTool(QPainter& painter, const QPolygonF& line) {
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(Qt::white, 4.0));
  painter.drawPolyline(line);
  painter.setPen(QPen(kToolColor, 1.8));
  painter.drawPolyline(line);
}

void paintToolPoint(QPainter& painter, const QPointF& at) {
  painter.setPen(QPen(kToolColor, 1.8));
  painter.setBrush(Qt::white);
  painter.drawEllipse(at, 3.5, 3.5);
}

void SectionMeasureTool::press(const Point2D& at) {
  mFrom = at;
  mTo = at;
}

void SectionMeasureTool::move(const Point2D& at, bool pressed) {
  if (pressed) mTo = at;
}

void SectionMeasureTool::paint(QPainter& painter, const ToSheet& toSheet) const {
  if (!mFrom) return;
  const QPointF from = toSheet(*mFrom);
  const QPointF to = toSheet(mTo);
  strokeAsTool(painter, {QVector<QPointF>{from, to}});
  paintToolPoint(painter, from);
  paintToolPoint(painter, to);
  const SectionMeasure measure = measureSection(*mFrom, mTo);
  const QLocale locale;
  const auto length = [&](double value) {
    return withLengthUnit(locale.toString(shownLength(value), 'f', 2));
  };
  paintNote(painter,
            {ToolWords::tr("Distance %1").arg(length(measure.distance)),
             ToolWords::tr("Horizontal %1").arg(length(measure.horizontal)),
             ToolWords::tr("Vertical %1").arg(length(measure.vertical)),
             ToolWords::tr("Slope %1\u00B0").arg(locale.toString(measure.slope, 'f', 1))},
            to);
}

void SectionDrawTool::press(const Point2D& at) {
  // The second press of a double click is at the point that the first has set.
  if (!mPoints.empty() && mPoints.back() == at) return;
  if (mPoints.size() < Annotations::kMostPoints) mPoints.push_back(at);
  mMouse = at;
  if (mKind == AnnotationKind::kText) finish();
}

void SectionDrawTool::move(const Point2D& at, bool) {
  mMouse = at;
}

void SectionDrawTool::takeBack() {
  if (!mPoints.empty()) mPoints.pop_back();
}

void SectionDrawTool::finish() {
  if (mPoints.size() < fewestPoints(mKind)) return;
  const std::vector<Point2D> points = std::move(mPoints);
  mPoints.clear();
  mDone(mKind, points);
}

void SectionDrawTool::paint(QPainter& painter, const ToSheet& toSheet) const {
  if (mPoints.empty()) return;
  QPolygonF line;
  for (const Point2D& p : mPoints) line << toSheet(p);
  QPolygonF whole = line;
  whole << toSheet(mMouse);
  if (mKind == AnnotationKind::kPolygon) whole << line.front();
  strokeAsTool(painter, whole);
  for (const QPointF& p : line) paintToolPoint(painter, p);
  paintNote(painter,
            {mPoints.size() < fewestPoints(mKind)
                 ? ToolWords::tr("Click the next point; Esc ends")
                 : ToolWords::tr("Double click or Enter ends it, Backspace takes a point back")},
            whole[line.size()]);
}

}  // namespace talvesk

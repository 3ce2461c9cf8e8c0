#include "widgets/section/SectionMoveTool.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr double kReach = 7.0;  ///< pixels that the mouse may be beside what it means
constexpr double kPixelsPerPoint = 96.0 / 72.0;

double distance(const QPointF& a, const QPointF& b) {
  return std::hypot(a.x() - b.x(), a.y() - b.y());
}

double distanceToPiece(const QPointF& at, const QPointF& a, const QPointF& b) {
  const QPointF along = b - a;
  const double square = QPointF::dotProduct(along, along);
  const double f = square > 0.0 ? QPointF::dotProduct(at - a, along) / square : 0.0;
  return distance(at, a + std::clamp(f, 0.0, 1.0) * along);
}

/// Of a text around its middle.
QRectF boxOf(const Annotation& text, const QPointF& middle) {
  QFont font;
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(text.textSize * kPixelsPerPoint))));
  const QFontMetricsF metrics(font);
  QRectF box(0.0, 0.0, metrics.horizontalAdvance(QString::fromStdString(text.text)),
             metrics.height());
  box.moveCenter(middle);
  return box;
}

QPolygonF onSheet(const Annotation& item, const SectionTool::ToSheet& toSheet) {
  QPolygonF line;
  for (const Point2D& p : item.points) line << toSheet(p);
  return line;
}

}  // namespace

bool SectionMoveTool::isUnder(const Annotation& item, const QPointF& mouse) const {
  const QPolygonF line = onSheet(item, mToSheet);
  switch (item.kind) {
    case AnnotationKind::kText:
      return boxOf(item, line.front()).contains(mouse);
    case AnnotationKind::kLine:
      for (int i = 0; i + 1 < line.size(); ++i) {
        if (distanceToPiece(mouse, line[i], line[i + 1]) <= kReach) return true;
      }
      return false;
    case AnnotationKind::kPolygon:
      break;
  }
  return line.containsPoint(mouse, Qt::OddEvenFill);
}

std::optional<std::size_t> SectionMoveTool::cornerUnder(const Annotation& item,
                                                        const QPointF& mouse) const {
  if (item.kind == AnnotationKind::kText) return std::nullopt;
  std::optional<std::size_t> nearest;
  double least = kReach;
  for (std::size_t i = 0; i < item.points.size(); ++i) {
    const double far = distance(mToSheet(item.points[i]), mouse);
    if (far > least) continue;
    least = far;
    nearest = i;
  }
  return nearest;
}

std::optional<SectionMoveTool::Grip> SectionMoveTool::gripAt(const Point2D& at) const {
  const std::vector<Annotation>* items = mItems();
  if (items == nullptr) return std::nullopt;
  const QPointF mouse = mToSheet(at);
  for (const bool areas : {false, true}) {
    for (std::size_t i = items->size(); i-- > 0;) {
      const Annotation& item = (*items)[i];
      if ((item.kind == AnnotationKind::kPolygon) != areas) continue;
      const std::optional<std::size_t> corner = cornerUnder(item, mouse);
      if (corner || isUnder(item, mouse)) return Grip{i, corner, item, at};
    }
  }
  return std::nullopt;
}

/// Whether what is held is still what it was; an undo while it is dragged can bring another to its
/// place.
bool SectionMoveTool::isThere() const {
  const std::vector<Annotation>* items = mItems();
  return items != nullptr && mGrip->item < items->size() && (*items)[mGrip->item] == mGrip->what;
}

/// The points of what is held, where the mouse has brought them.
std::vector<Point2D> SectionMoveTool::dragged() const {
  std::vector<Point2D> points = mGrip->what.points;
  const Point2D by{mMouse.x - mGrip->from.x, mMouse.z - mGrip->from.z};
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (mGrip->corner.value_or(i) == i) points[i] = {points[i].x + by.x, points[i].z + by.z};
  }
  return points;
}

void SectionMoveTool::press(const Point2D& at) {
  mGrip = gripAt(at);
  mMouse = at;
  mPressed = true;
}

void SectionMoveTool::move(const Point2D& at, bool pressed) {
  if (!pressed) mGrip = gripAt(at);
  if (mGrip && !isThere()) mGrip.reset();
  mMouse = at;
}

void SectionMoveTool::release(const Point2D& at) {
  mMouse = at;
  const bool moved = mGrip && isThere() && mPressed && !(mMouse == mGrip->from);
  mPressed = false;
  if (!moved) return;
  mDone(mGrip->item, mGrip->what, dragged());
  mGrip.reset();
}

void SectionMoveTool::takeBack() {
  mGrip.reset();
  mPressed = false;
}

void SectionMoveTool::paint(QPainter& painter, const ToSheet& toSheet) const {
  if (!mGrip) return;
  Annotation held = mGrip->what;
  if (mPressed) held.points = dragged();
  QPolygonF line = onSheet(held, toSheet);
  if (held.kind == AnnotationKind::kText) line = QPolygonF(boxOf(held, line.front()));
  if (held.kind == AnnotationKind::kPolygon) line << line.front();
  strokeAsTool(painter, line);
  if (held.kind == AnnotationKind::kText) return;
  for (std::size_t i = 0; i < held.points.size(); ++i) {
    if (mGrip->corner.value_or(i) == i) paintToolPoint(painter, toSheet(held.points[i]));
  }
}

}  // namespace talvesk

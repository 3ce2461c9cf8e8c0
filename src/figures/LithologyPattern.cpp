#include "figures/LithologyPattern.h"

#include "view/LabelPlace.h"

#include <QLineF>
#include <QPainter>
#include <QPen>
#include <QPolygonF>
#include <QVector>
#include <algorithm>
#include <cmath>
#include <vector>

namespace talvesk {
namespace {

/// Lengths on the sheet, points of 1/96 inch.
struct Raster {
  double dx;         ///< from sign to sign in a row; every other row is shifted by half of it
  double dy;         ///< from row to row
  double halfWidth;  ///< of a sign
};

Raster rasterOf(Lithology pattern) {
  switch (pattern) {
    case Lithology::kSand:
      return {7.0, 6.0, 0.9};
    case Lithology::kGravel:
      return {11.0, 7.0, 2.8};
    case Lithology::kClay:
      return {10.0, 5.0, 3.4};
    case Lithology::kSilt:
      return {11.0, 6.0, 4.0};
    case Lithology::kRock:
      return {14.0, 10.0, 3.2};
    case Lithology::kFill:
      return {11.0, 9.0, 3.0};
    case Lithology::kWater:
      return {18.0, 8.0, 6.0};
    case Lithology::kNone:
      break;
  }
  return {1.0, 1.0, 0.0};
}

std::vector<Point2D> pointsOf(const QPolygonF& area) {
  std::vector<Point2D> points;
  points.reserve(static_cast<std::size_t>(area.size()));
  for (const QPointF& p : area) points.push_back({p.x(), p.y()});
  return points;
}

/// Gathers the signs, for painting many at once is what makes them quick.
class Signs {
 public:
  Signs(Lithology pattern, const Raster& raster) : mPattern(pattern), mHalf(raster.halfWidth) {}

  void add(const QPointF& at) {
    switch (mPattern) {
      case Lithology::kSand:
        mDots << at;
        break;
      case Lithology::kGravel:
        mPebbles << QRectF(at - QPointF(mHalf, 0.7 * mHalf), at + QPointF(mHalf, 0.7 * mHalf));
        break;
      case Lithology::kClay:
        addLine(at, {-mHalf, 0.0}, {mHalf, 0.0});
        break;
      case Lithology::kSilt:
        addLine(at, {-mHalf, 0.0}, {0.0, 0.0});
        mDots << at + QPointF(0.75 * mHalf, 0.0);
        break;
      case Lithology::kRock:
        addLine(at, {-mHalf, 0.0}, {mHalf, 0.0});
        addLine(at, {0.0, -mHalf}, {0.0, mHalf});
        break;
      case Lithology::kFill:
        addLine(at, {-mHalf, -mHalf}, {mHalf, mHalf});
        addLine(at, {-mHalf, mHalf}, {mHalf, -mHalf});
        break;
      case Lithology::kWater:
        addLine(at, {-mHalf, 1.5}, {-0.5 * mHalf, -1.5});
        addLine(at, {-0.5 * mHalf, -1.5}, {0.0, 1.5});
        addLine(at, {0.0, 1.5}, {0.5 * mHalf, -1.5});
        addLine(at, {0.5 * mHalf, -1.5}, {mHalf, 1.5});
        break;
      case Lithology::kNone:
        break;
    }
  }

  void paint(QPainter& painter, const QColor& color) const {
    painter.setPen(QPen(color, 1.0, Qt::SolidLine, Qt::RoundCap));
    painter.drawLines(mLines);
    painter.setBrush(Qt::white);
    for (const QRectF& pebble : mPebbles) painter.drawEllipse(pebble);
    // As ellipses, for a point is a pixel in some formats.
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    for (const QPointF& dot : mDots) painter.drawEllipse(dot, 0.9, 0.9);
    painter.setBrush(Qt::NoBrush);
  }

 private:
  void addLine(const QPointF& at, const QPointF& from, const QPointF& to) {
    mLines << QLineF(at + from, at + to);
  }

  Lithology mPattern;
  double mHalf;
  QVector<QLineF> mLines;
  QVector<QRectF> mPebbles;
  QVector<QPointF> mDots;
};

}  // namespace

void paintLithology(QPainter& painter, const QPolygonF& area, Lithology pattern,
                    const QColor& color, const QRectF& canvas, const QPointF& origin) {
  const QRectF seen = area.boundingRect().intersected(canvas);
  if (pattern == Lithology::kNone || seen.isEmpty()) return;
  const Raster raster = rasterOf(pattern);
  Signs signs(pattern, raster);
  const std::vector<Point2D> corners = pointsOf(area);
  const auto yOf = [&](long row) { return origin.y() + static_cast<double>(row) * raster.dy; };
  auto row = static_cast<long>(std::ceil((seen.top() - origin.y()) / raster.dy));
  for (; yOf(row) <= seen.bottom(); ++row) {
    const double start = origin.x() + (row % 2 != 0 ? 0.5 * raster.dx : 0.0);
    const auto xOf = [&](long column) { return start + static_cast<double>(column) * raster.dx; };
    const std::vector<double> xs = crossings(corners, yOf(row));
    for (std::size_t i = 0; i + 1 < xs.size(); i += 2) {
      const double left = std::max(xs[i], seen.left()) + raster.halfWidth;
      const double right = std::min(xs[i + 1], seen.right()) - raster.halfWidth;
      auto column = static_cast<long>(std::ceil((left - start) / raster.dx));
      for (; xOf(column) <= right; ++column) signs.add({xOf(column), yOf(row)});
    }
  }
  signs.paint(painter, color);
}

}  // namespace talvesk

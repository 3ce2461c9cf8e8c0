#include "figures/SectionItems.h"

#include "figures/FigureItem.h"
#include "figures/SectionFigureOptions.h"
#include "view/SectionScene.h"
#include "view/SectionViewSettings.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include <qwt_curve_fitter.h>
#include <qwt_scale_map.h>

namespace talvesk::section_items {
namespace {

/// How far bands of cells of a vector file reach into each other, all told. Less leaves a trace of
/// the sheet between them in viewers that antialias.
constexpr double kOverlap = 1.0;

class CellsPainter {
 public:
  CellsPainter(const SectionScene& scene, const ColorTable& colors, const QTransform& map)
      : mScene(scene), mColors(colors), mMap(map) {}

  void paint(QPainter& painter) const {
    const bool vector = paintsVectors(painter);
    std::vector<QPainterPath> ofColor(static_cast<std::size_t>(mColors.size()));
    for (std::uint32_t row = 0; row < mScene.mesh.rows; ++row) {
      std::uint32_t end = 0;
      for (std::uint32_t begin = 0; begin < mScene.mesh.columns; begin = end) {
        const int color = colorOf(row, begin);
        end = begin + 1;
        while (end < mScene.mesh.columns && colorOf(row, end) == color) ++end;
        if (color < 0) continue;
        QPainterPath& path = ofColor[static_cast<std::size_t>(color)];
        path.addPolygon(band(row, begin, end, vector));
        path.closeSubpath();
      }
    }
    for (const ContourBands::Piece& piece : mScene.bands.pieces) {
      QPolygonF outline;
      for (std::size_t i = 0; i < piece.pointCount; ++i) {
        const Point2D& p = mScene.bands.points[piece.firstPoint + i];
        outline.append(mMap.map(QPointF(p.x, p.z)));
      }
      QPainterPath& path = ofColor[static_cast<std::size_t>(piece.band)];
      path.addPolygon(outline);
      path.closeSubpath();
    }
    // Neighbours share their sides: filled without antialiasing they meet without a seam. A viewer
    // of vector files antialiases as it likes, so there every band overlaps its neighbours by a
    // hair.
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (int color = 0; color < mColors.size(); ++color) {
      const QPainterPath& path = ofColor[static_cast<std::size_t>(color)];
      if (path.isEmpty()) continue;
      const QColor fill = toColor(mColors[color]);
      painter.setBrush(fill);
      painter.setPen(vector ? QPen(fill, kOverlap, Qt::SolidLine, Qt::FlatCap, Qt::MiterJoin)
                            : QPen(Qt::NoPen));
      painter.drawPath(path);
    }
  }

 private:
  int colorOf(std::uint32_t row, std::uint32_t column) const {
    if (!mScene.mesh.isDrawn(row, column)) return -1;
    if (mScene.fill == SectionFill::kBands) {
      return std::max(mScene.bands.cellBand[mScene.mesh.cell(row, column)], -1);
    }
    return mColors.indexOf(mScene.cellValues[mScene.mesh.cell(row, column)]);
  }

  /// Outline of the cells [begin, end) of a row. Thinned, it goes without the corners where it does
  /// not bend: smaller files, but no longer the very points of the rows above and below, by which
  /// pixels are shared out without a gap.
  QPolygonF band(std::uint32_t row, std::uint32_t begin, std::uint32_t end, bool thin) const {
    QPolygonF outline;
    const auto add = [&](std::uint32_t line, std::uint32_t column) {
      const Point2D& p = mScene.mesh.corners[mScene.mesh.corner(line, column)];
      const QPointF point = mMap.map(QPointF(p.x, p.z));
      const int n = outline.size();
      if (thin && n >= 2 && bendIsInvisible(outline[n - 2], outline[n - 1], point))
        outline.removeLast();
      outline.append(point);
    };
    for (std::uint32_t column = begin; column <= end; ++column) add(row, column);
    for (std::uint32_t column = end + 1; column-- > begin;) add(row + 1, column);
    return outline;
  }

  static bool bendIsInvisible(const QPointF& a, const QPointF& b, const QPointF& c) {
    const QPointF ac = c - a;
    const QPointF ab = b - a;
    const double twiceArea = std::abs(ac.x() * ab.y() - ac.y() * ab.x());
    // b must lie between a and c, and off the line by rounding only: thinning by more would let
    // neighbouring rows part.
    return QPointF::dotProduct(ab, c - b) >= 0.0 && twiceArea <= 1e-3 * std::hypot(ac.x(), ac.y());
  }

  const SectionScene& mScene;
  const ColorTable& mColors;
  QTransform mMap;
};

QPainterPath triangleOnTip(double size) {
  QPainterPath path;
  path.lineTo(-0.5 * size, -0.87 * size);
  path.lineTo(0.5 * size, -0.87 * size);
  path.closeSubpath();
  return path;
}

QPainterPath star(double size) {
  constexpr double kPi = 3.14159265358979323846;
  QPolygonF outline;
  for (int i = 0; i < 10; ++i) {
    const double radius = (i % 2 == 0 ? 0.5 : 0.2) * size;
    outline.append({radius * std::sin(i * kPi / 5.0), -radius * std::cos(i * kPi / 5.0)});
  }
  QPainterPath path;
  path.addPolygon(outline);
  path.closeSubpath();
  return path;
}

/// The points ascend in x.
double symbolSize(double size, const std::vector<Point2D>& points, const QwtScaleMap& xMap) {
  if (points.size() < 2) return size;
  const double length = xMap.transform(points.back().x) - xMap.transform(points.front().x);
  return fittingMarkerSize(size, length / static_cast<double>(points.size() - 1));
}

/// Lines are thinned to this accuracy, in points of 1/96 inch: a twentieth of a millimetre.
constexpr double kThinning = 0.2;

template <typename Map>
QPolygonF thinnedOver(const std::vector<Point2D>& points, Map map) {
  QPolygonF line;
  line.reserve(static_cast<int>(points.size()));
  for (const Point2D& p : points) line.append(map(p));
  return QwtWeedingCurveFitter(kThinning).fitCurve(line);
}

}  // namespace

void setMarkerColors(QPainter& painter, Marker marker) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Qt::white, 0.5));
  painter.setBrush(marker == Marker::kShot ? QColor(208, 32, 32) : QColor(32, 32, 32));
}

double markerSize(GeophoneMarkers markers) {
  switch (markers) {
    case GeophoneMarkers::kNone:
      return 0.0;
    case GeophoneMarkers::kSmall:
      return 6.0;
    case GeophoneMarkers::kLarge:
      return 16.0;
    case GeophoneMarkers::kNormal:
      break;
  }
  return 10.0;
}

double fittingMarkerSize(double size, double spacing) {
  return std::clamp(0.9 * spacing, 0.5 * size, size);
}

QColor coverageColor() {
  return {200, 0, 120};
}

QColor refractorColor(std::size_t index) {
  const QColor colors[] = {{0, 90, 200}, {200, 80, 0}, {0, 130, 60}};
  return colors[index % 3];
}

QPainterPath symbol(Marker marker, double size) {
  return marker == Marker::kShot ? star(1.4 * size) : triangleOnTip(size);
}

QPolygonF thinned(const std::vector<Point2D>& points, const QwtScaleMap& xMap,
                  const QwtScaleMap& yMap) {
  return thinnedOver(
      points, [&](const Point2D& p) { return QPointF(xMap.transform(p.x), yMap.transform(p.z)); });
}

QPolygonF thinned(const std::vector<Point2D>& points, const QTransform& map) {
  return thinnedOver(points, [&map](const Point2D& p) { return map.map(QPointF(p.x, p.z)); });
}

void paintCells(QPainter& painter, const SectionScene& scene, const ColorTable& colors,
                const QTransform& map) {
  CellsPainter(scene, colors, map).paint(painter);
}

void paintRays(QPainter& painter, const SectionScene& scene, const QTransform& map) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor::fromRgbF(0.0, 0.0, 0.0, rayOpacity(scene.rays.size())), 0.5));
  for (const auto& ray : scene.rays) painter.drawPolyline(thinned(ray, map));
}

void paintContours(QPainter& painter, const SectionScene& scene, const ContourStyle& style,
                   const QTransform& map) {
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  std::vector<QPolygonF> lines;
  for (const ContourLine& contour : scene.contours) {
    lines.push_back(thinned(contour.points, map));
    if (contour.closed && !lines.back().isEmpty()) lines.back().append(lines.back().front());
  }
  if (!scene.rays.empty()) {  // else one could not tell them from rays
    painter.setPen(QPen(QColor(255, 255, 255, 150), style.width + 1.6));
    for (const QPolygonF& line : lines) painter.drawPolyline(line);
  }
  painter.setPen(QPen(toColor(style.color), style.width));
  for (const QPolygonF& line : lines) painter.drawPolyline(line);
}

QwtPlotItem* markers(const std::vector<Point2D>& points, const QString& name, Marker marker,
                     double chosenSize) {
  const auto paint = [points, marker, chosenSize](QPainter& painter, const QwtScaleMap& xMap,
                                                  const QwtScaleMap& yMap, const QRectF&) {
    setMarkerColors(painter, marker);
    const QPainterPath shape = symbol(marker, symbolSize(chosenSize, points, xMap));
    for (const Point2D& p : points) {
      painter.drawPath(shape.translated(xMap.transform(p.x), yMap.transform(p.z)));
    }
  };
  const auto icon = [marker](QPainter& painter, const QSizeF& size) {
    setMarkerColors(painter, marker);
    const QPainterPath shape = symbol(marker, 10.0);
    painter.drawPath(shape.translated(QPointF(size.width() / 2, size.height() / 2) -
                                      shape.boundingRect().center()));
  };
  return figureItem(name, kMarkersLayer + (marker == Marker::kShot ? 1 : 0), paint, icon);
}

}  // namespace talvesk::section_items

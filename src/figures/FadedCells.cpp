#include "figures/FigureItem.h"
#include "figures/SectionItems.h"
#include "view/SectionScene.h"

#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <map>

namespace talvesk::section_items {
namespace {

constexpr double kPixelsPerPoint = 3.0;  ///< in vector files, some 290 per inch

/// The drawn cells of a row that fade alike, as one outline.
QPolygonF outlineOf(const SectionMesh& mesh, std::uint32_t row, std::uint32_t begin,
                    std::uint32_t end, const QTransform& map) {
  QPolygonF outline;
  const auto add = [&](std::uint32_t line, std::uint32_t column) {
    const Point2D& p = mesh.corners[mesh.corner(line, column)];
    outline.append(map.map(QPointF(p.x, p.z)));
  };
  for (std::uint32_t column = begin; column <= end; ++column) add(row, column);
  for (std::uint32_t column = end + 1; column-- > begin;) add(row + 1, column);
  return outline;
}

void paintVeil(QPainter& painter, const SectionScene& scene, const QTransform& map) {
  const SectionMesh& mesh = scene.mesh;
  const auto fadingOf = [&](std::uint32_t row, std::uint32_t column) {
    return mesh.isDrawn(row, column) ? scene.fading[mesh.cell(row, column)] : 0.0;
  };
  std::map<double, QPainterPath> ofFading;
  for (std::uint32_t row = 0; row < mesh.rows; ++row) {
    std::uint32_t end = 0;
    for (std::uint32_t begin = 0; begin < mesh.columns; begin = end) {
      const double fading = fadingOf(row, begin);
      end = begin + 1;
      while (end < mesh.columns && fadingOf(row, end) == fading) ++end;
      if (!(fading > 0.0)) continue;
      QPainterPath& path = ofFading[fading];
      path.addPolygon(outlineOf(mesh, row, begin, end, map));
      path.closeSubpath();
    }
  }
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing, false);  // as the cells: they meet without a seam
  painter.setPen(Qt::NoPen);
  for (const auto& [fading, path] : ofFading) {
    painter.setBrush(QColor(255, 255, 255, static_cast<int>(std::lround(255.0 * fading))));
    painter.drawPath(path);
  }
  painter.restore();
}

}  // namespace

void paintFading(QPainter& painter, const SectionScene& scene, const QTransform& map,
                 const QRectF& canvas) {
  if (scene.fading.empty()) return;
  if (!paintsVectors(painter)) return paintVeil(painter, scene, map);
  // Viewers antialias vectors as they like, which would draw the outlines of what is translucent.
  QImage veil((canvas.size() * kPixelsPerPoint).toSize(), QImage::Format_ARGB32_Premultiplied);
  if (veil.isNull()) return;
  veil.fill(Qt::transparent);
  QPainter onVeil(&veil);
  const QTransform toVeil =
      QTransform::fromTranslate(-canvas.left(), -canvas.top()) *
      QTransform::fromScale(veil.width() / canvas.width(), veil.height() / canvas.height());
  paintVeil(onVeil, scene, map * toVeil);
  onVeil.end();
  painter.save();
  painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
  painter.drawImage(canvas, veil);
  painter.restore();
}

}  // namespace talvesk::section_items

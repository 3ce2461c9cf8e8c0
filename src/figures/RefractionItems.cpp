#include "figures/RefractionItems.h"

#include "figures/DrawableValues.h"
#include "figures/FigureItem.h"
#include "figures/SectionItems.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "numerics/Medians.h"

#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include <qwt_plot_item.h>
#include <qwt_scale_map.h>

namespace talvesk {
namespace {

using refractionDataStructure::computedData;
using refractionDataStructure::processingData;

void putInOrder(std::vector<Point2D>& points) {
  points.erase(
      std::remove_if(points.begin(), points.end(),
                     [](const Point2D& p) { return !isPosition(p.x) || !isPosition(p.z); }),
      points.end());
  keepFirstOfEachX(points);
}

double knownMedian(std::vector<double> values) {
  values.erase(
      std::remove_if(values.begin(), values.end(), [](double v) { return !std::isfinite(v); }),
      values.end());
  return medianOf(std::move(values), 0.0);
}

template <typename Take>
void forEachPoint(const RefractionScene& scene, Take take) {
  for (const auto* points : {&scene.surface, &scene.geophones}) {
    for (const Point2D& p : *points) take(p);
  }
  for (const ProfileBoundary& boundary : scene.boundaries) {
    for (const auto& line : boundary.lines) {
      for (const Point2D& p : line) take(p);
    }
  }
}

/// From a line down to the lower edge of the canvas.
void fillBelow(QPainter& painter, const std::vector<Point2D>& line, const QwtScaleMap& xMap,
               const QwtScaleMap& yMap, const QRectF& canvas) {
  if (line.size() < 2) return;
  QPolygonF area;
  for (const Point2D& p : line) area.append({xMap.transform(p.x), yMap.transform(p.z)});
  const double bottom = canvas.bottom();
  area.append({xMap.transform(line.back().x), bottom});
  area.append({xMap.transform(line.front().x), bottom});
  painter.drawPolygon(area);
}

QColor groundColor(std::uint32_t layer) {
  QColor color = layerColor(layer);
  const auto lighter = [](int part) { return 255 - (255 - part) * 45 / 100; };
  return {lighter(color.red()), lighter(color.green()), lighter(color.blue())};
}

/// The lines that a layer begins at. What is above a refractor whose depth is not known is not
/// known to be the first layer.
std::vector<std::vector<Point2D>> topOf(const RefractionScene& scene, std::uint32_t layer) {
  std::vector<std::vector<Point2D>> tops;
  for (const ProfileBoundary& boundary : scene.boundaries) {
    if (boundary.refractor != std::max(layer, 2U)) continue;
    if (layer > 1) return boundary.lines;
    for (const auto& line : boundary.lines) {
      tops.emplace_back();
      std::copy_if(
          scene.surface.begin(), scene.surface.end(), std::back_inserter(tops.back()),
          [&line](const Point2D& p) { return p.x >= line.front().x && p.x <= line.back().x; });
    }
  }
  return tops;
}

}  // namespace

Point2D RefractionScene::lowerLeft() const {
  Point2D corner;
  bool first = true;
  forEachPoint(*this, [&](const Point2D& p) {
    corner = first ? p : Point2D{std::min(corner.x, p.x), std::min(corner.z, p.z)};
    first = false;
  });
  return corner;
}

Point2D RefractionScene::upperRight() const {
  Point2D corner;
  bool first = true;
  forEachPoint(*this, [&](const Point2D& p) {
    corner = first ? p : Point2D{std::max(corner.x, p.x), std::max(corner.z, p.z)};
    first = false;
  });
  return corner;
}

RefractionScene refractionScene(const TomoDocument& document, const processingData& results) {
  RefractionScene scene;
  for (const auto& string : document.line->goephonesStringSet) {
    scene.geophones.insert(scene.geophones.end(), string.begin(), string.end());
  }
  putInOrder(scene.geophones);
  scene.shots = document.shotPoints();
  putInOrder(scene.shots);
  scene.surface = profileSurface(results);
  putInOrder(scene.surface);
  scene.boundaries = profileBoundaries(results);
  scene.v1 = results.v1;
  for (const computedData& refractor : results.cData) {
    scene.velocities.push_back(knownMedian(refractor.velocity));
  }
  return scene;
}

QColor layerColor(std::uint32_t layer) {
  switch (layer) {
    case 1:
      return {221, 141, 0};
    case 2:
      return {0, 104, 178};
    case 3:
      return {0, 140, 100};
    default:
      return {130, 130, 130};
  }
}

QColor layerColor(std::uint32_t layer, const QColor& paper) {
  const QColor color = layerColor(layer);
  return paper.lightness() < 128 ? color.lighter(150) : color;
}

namespace refraction_items {

QwtPlotItem* layer(const RefractionScene& scene, std::uint32_t layer, const QString& name) {
  const auto paint = [&scene, layer](QPainter& painter, const QwtScaleMap& xMap,
                                     const QwtScaleMap& yMap, const QRectF& canvas) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(groundColor(layer));
    const auto tops = topOf(scene, layer);
    for (const auto& line : tops) fillBelow(painter, line, xMap, yMap, canvas);
    if (layer == 1) return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(layerColor(layer).darker(115), 2.0));
    for (const auto& line : tops) {
      painter.drawPolyline(section_items::thinned(line, xMap, yMap));
    }
  };
  const auto icon = [layer](QPainter& painter, const QSizeF& size) {
    painter.fillRect(QRectF(QPointF(0, 0), size), groundColor(layer));
    if (layer == 1) return;
    painter.setPen(QPen(layerColor(layer).darker(115), 2.0));
    painter.drawLine(QPointF(0, 1), QPointF(size.width(), 1));
  };
  // From the top down: each lies over the one above it.
  return figureItem(name, section_items::kCellsLayer + layer, paint, icon);
}

QwtPlotItem* surface(const RefractionScene& scene, const QColor& color) {
  const auto paint = [&scene, color](QPainter& painter, const QwtScaleMap& xMap,
                                     const QwtScaleMap& yMap, const QRectF&) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, 1.2));
    painter.drawPolyline(section_items::thinned(scene.geophones, xMap, yMap));
  };
  return figureItem({}, section_items::kContoursLayer, paint);
}

}  // namespace refraction_items
}  // namespace talvesk

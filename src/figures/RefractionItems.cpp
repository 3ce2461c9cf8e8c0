#include "figures/RefractionItems.h"

#include "figures/DrawableValues.h"
#include "figures/FigureItem.h"
#include "figures/FigureWords.h"
#include "figures/SectionItems.h"
#include "model/SurveyLine.h"
#include "model/TomoDocument.h"
#include "numerics/Medians.h"
#include "refraction/methods/ProfileErrors.h"

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
using refractionDataStructure::Interpretation;
using section_items::kCellsLayer;

constexpr double kBandsLayer = kCellsLayer + 4.0;  ///< over the grounds of all three layers
constexpr double kLinesLayer = kCellsLayer + 5.0;
constexpr double kLineWidth = 2.0;

void putInOrder(std::vector<Point2D>& points) {
  points.erase(
      std::remove_if(points.begin(), points.end(),
                     [](const Point2D& p) { return !isPosition(p.x) || !isPosition(p.z); }),
      points.end());
  keepFirstOfEachX(points);
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
  for (const BoundaryLook& look : scene.looks) {
    for (const auto& band : look.bands) {
      for (const Point2D& p : band) take(p);
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

bool RefractionScene::hasUncarried() const {
  return std::any_of(looks.begin(), looks.end(),
                     [](const BoundaryLook& look) { return !look.uncarried.empty(); });
}

bool RefractionScene::hasBands() const {
  return std::any_of(looks.begin(), looks.end(),
                     [](const BoundaryLook& look) { return !look.bands.empty(); });
}

RefractionScene refractionScene(const TomoDocument& document, const Interpretation& interpretation,
                                const ProfileErrors* errors) {
  const auto& results = interpretation.refractData;
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
  const auto errorsOf = [errors](std::size_t refractor) {
    const bool known = errors != nullptr && refractor < errors->refractors.size();
    return known ? &errors->refractors[refractor] : nullptr;
  };
  const std::vector<ShotArrivals> shots = shotArrivals(document);
  for (const ProfileBoundary& boundary : scene.boundaries) {
    const std::size_t i = boundary.refractor - 2;
    const ProfileErrors::Refractor* own = errorsOf(i);
    scene.looks.push_back(boundaryLook(results.cData[i],
                                       supportOf(shots, interpretation, boundary.refractor).depth,
                                       own == nullptr ? nullptr : &own->depth));
  }
  scene.v1 = results.v1;
  scene.v1IsMean = results.isFitted() && results.v1 > 0.0;
  scene.v1Grows = scene.v1IsMean && results.first.growth > 0.0;
  if (errors != nullptr) scene.v1Error = errors->v1Error;
  for (std::size_t i = 0; i < results.cData.size(); ++i) {
    scene.velocities.push_back(medianOfFinite(results.cData[i].velocity, 0.0));
    scene.velocityErrors.push_back(errorsOf(i) == nullptr ? 0.0 : errorsOf(i)->medianError);
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

namespace {

QPen lineOf(std::uint32_t layer) {
  return {layerColor(layer).darker(115), kLineWidth};
}

QPen dashed(QPen pen) {
  // Long enough to be seen between receivers that lie close together.
  pen.setDashPattern({3.0, 2.5});
  pen.setCapStyle(Qt::FlatCap);
  return pen;
}

/// The ground from the surface, or the top of a refractor, down. \param name in the legend
QwtPlotItem* ground(const RefractionScene& scene, std::uint32_t layer, const QString& name) {
  const auto paint = [&scene, layer](QPainter& painter, const QwtScaleMap& xMap,
                                     const QwtScaleMap& yMap, const QRectF& canvas) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(groundColor(layer));
    for (const auto& line : topOf(scene, layer)) fillBelow(painter, line, xMap, yMap, canvas);
  };
  const auto icon = [layer](QPainter& painter, const QSizeF& size) {
    painter.fillRect(QRectF(QPointF(0, 0), size), groundColor(layer));
    if (layer == 1) return;
    painter.setPen(lineOf(layer));
    painter.drawLine(QPointF(0, 1), QPointF(size.width(), 1));
  };
  // From the top down: each lies over the one above it.
  return figureItem(name, kCellsLayer + layer, paint, icon);
}

void setBand(QPainter& painter, QColor color) {
  color.setAlphaF(0.6);
  painter.setPen(QPen(color, 0.6));
  color.setAlphaF(0.3);
  painter.setBrush(color);
}

QwtPlotItem* errorBands(const RefractionScene& scene) {
  const auto paint = [&scene](QPainter& painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
                              const QRectF&) {
    painter.setRenderHint(QPainter::Antialiasing);
    for (std::size_t i = 0; i < scene.looks.size(); ++i) {
      setBand(painter, layerColor(scene.boundaries[i].refractor).darker(130));
      for (const auto& band : scene.looks[i].bands) {
        QPolygonF outline;
        for (const Point2D& p : band) outline.append({xMap.transform(p.x), yMap.transform(p.z)});
        painter.drawPolygon(outline);
      }
    }
  };
  const auto icon = [](QPainter& painter, const QSizeF& size) {
    painter.fillRect(QRectF(QPointF(0, 0), size), groundColor(2));  // told apart on dark paper, too
    setBand(painter, layerColor(2).darker(130));
    painter.drawRect(QRectF(QPointF(0, 2), size - QSizeF(0, 4)));
  };
  return figureItem(scene.hasBands() ? FigureWords::profileBand() : QString(), kBandsLayer, paint,
                    icon);
}

QwtPlotItem* tops(const RefractionScene& scene) {
  const auto paint = [&scene](QPainter& painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
                              const QRectF&) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    const auto draw = [&](const QPen& pen, const std::vector<std::vector<Point2D>>& lines) {
      painter.setPen(pen);
      for (const auto& line : lines) {
        painter.drawPolyline(section_items::thinned(line, xMap, yMap));
      }
    };
    for (std::size_t i = 0; i < scene.looks.size(); ++i) {
      const QPen pen = lineOf(scene.boundaries[i].refractor);
      draw(pen, scene.looks[i].carried);
      draw(dashed(pen), scene.looks[i].uncarried);
    }
  };
  const auto icon = [](QPainter& painter, const QSizeF& size) {
    painter.fillRect(QRectF(QPointF(0, 0), size), groundColor(2));
    painter.setPen(dashed(lineOf(2)));
    painter.drawLine(QPointF(0, size.height() / 2), QPointF(size.width(), size.height() / 2));
  };
  return figureItem(scene.hasUncarried() ? FigureWords::uncarried() : QString(), kLinesLayer, paint,
                    icon);
}

/// Of a first layer that has no one velocity.
QString firstLayerName(const RefractionScene& scene, const QLocale& locale) {
  const QString mean = withVelocityUnit(locale.toString(shownLength(scene.v1), 'f', 0));
  return scene.v1Grows ? FigureWords::tr("Layer 1, %1 in the mean, growing with depth").arg(mean)
                       : FigureWords::tr("Layer 1, %1 in the mean").arg(mean);
}

}  // namespace

std::vector<QwtPlotItem*> layers(const RefractionScene& scene, const QLocale& locale) {
  const QString first = scene.v1IsMean ? firstLayerName(scene, locale)
                                       : FigureWords::layer(1, scene.v1, scene.v1Error, locale);
  std::vector<QwtPlotItem*> items{ground(scene, 1, first)};
  for (const ProfileBoundary& boundary : scene.boundaries) {
    const std::size_t i = boundary.refractor - 2;
    items.push_back(ground(scene, boundary.refractor,
                           FigureWords::layer(boundary.refractor, scene.velocities[i],
                                              scene.velocityErrors[i], locale)));
  }
  items.push_back(errorBands(scene));
  items.push_back(tops(scene));
  return items;
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

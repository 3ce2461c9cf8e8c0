#include "figures/ContourLabels.h"
#include "figures/FigureItem.h"
#include "figures/FigureWords.h"
#include "figures/SectionItems.h"
#include "figures/SectionPaper_painter.h"
#include "view/SectionScene.h"
#include "view/SectionTexts.h"
#include "view/SectionViewSettings.h"

#include <QLineF>
#include <QPainterPath>
#include <algorithm>
#include <utility>

// What lies on the section itself, and the legend that explains it.

namespace talvesk {

using namespace section_items;

namespace {

const QPen kSurfacePen(Qt::black, 1.4);
const QPen kLegendRayPen(QColor(90, 90, 90), 0.8);
constexpr double kRefractorWidth = 2.0;

QPen coveragePen() {
  return {coverageColor(), 1.6, Qt::DashLine};
}

QPen refractorPen(std::size_t index) {
  return {refractorColor(index), kRefractorWidth};
}

}  // namespace

void SectionPaperPainter::paintMarks() {
  mPainter.save();
  mPainter.setClipRect(mPlot);
  paintFading();
  mPainter.setRenderHint(QPainter::Antialiasing);
  if (mDress.gridLines) paintGridLines();
  paintDepthBands();
  paintAreas();
  paintLines();
  paintKnown();
  paintMarkedIsolines();
  paintAnnotations();
  std::vector<QRectF> taken;
  for (const PlacedText& text : texts) taken.push_back(text.outline.boundingRect());
  paintLineLabels(mPainter, mLineLabels, ownPart(), taken);
  paintContourValues(taken);
  paintMarkers();
  if (mWhole != mPlot) dropTextsBeyond();
  mPainter.restore();
}

void SectionPaperPainter::paintGridLines() {
  mPainter.save();
  mPainter.setRenderHint(QPainter::Antialiasing, mCamera.isTurned());
  mPainter.setPen(QPen(QColor(0, 0, 0, 70), 0.0));
  const QRectF part = visible();
  for (const double x : distanceTicks().major) {
    mPainter.drawLine(mMap.map(QPointF(x, part.top())), mMap.map(QPointF(x, part.bottom())));
  }
  for (const double z : elevationTicks().major) {
    mPainter.drawLine(mMap.map(QPointF(part.left(), z)), mMap.map(QPointF(part.right(), z)));
  }
  mPainter.restore();
}

void SectionPaperPainter::paintLines() {
  mPainter.setBrush(Qt::NoBrush);
  mPainter.setPen(kSurfacePen);
  mPainter.drawPolyline(thinned(mScene.surface, mMap));
  mPainter.setPen(coveragePen());
  mPainter.drawPolyline(thinned(mScene.coverageLimit, mMap));
  for (std::size_t i = 0; i < mScene.refractors.size(); ++i) {
    for (const auto& piece : mScene.refractors[i].pieces) {
      const QPolygonF line = thinned(piece, mMap);
      mPainter.setPen(QPen(Qt::white, kRefractorWidth + 2.0));
      mPainter.drawPolyline(line);
      mPainter.setPen(refractorPen(i));
      mPainter.drawPolyline(line);
    }
  }
}

void SectionPaperPainter::paintContourValues(std::vector<QRectF>& taken) {
  if (mScene.contours.empty() || mDress.contours.labelEvery < 1) return;
  std::vector<QPolygonF> lines;
  lines.reserve(mScene.contours.size());
  for (const ContourLine& contour : mScene.contours) {
    lines.push_back(thinned(contour.points, mMap));
    if (contour.closed && !lines.back().isEmpty()) lines.back().append(lines.back().front());
  }
  const ShownUnit shown = FigureWords::unitOf(mScene);
  const double step = shown.shown(mScene.range.span() / 50.0);
  paintContourLabels(
      mPainter, mScene, lines, mDress.contours, ownPart(),
      [&](double value) { return withSignOf(mDress.locale, valueText(shown.shown(value), step)); },
      taken);
}

void SectionPaperPainter::paintMarkers() {
  const double chosen = markerSize(mDress.geophones);
  if (chosen <= 0.0) return;
  const auto paint = [this, chosen](const std::vector<Point2D>& points, Marker marker) {
    double size = chosen;
    if (points.size() > 1) {
      const QLineF line(mMap.map(QPointF(points.front().x, points.front().z)),
                        mMap.map(QPointF(points.back().x, points.back().z)));
      size = fittingMarkerSize(chosen, line.length() / static_cast<double>(points.size() - 1));
    }
    setMarkerColors(mPainter, marker);
    const QPainterPath shape = symbol(marker, size);
    const QRectF seen = mPlot.adjusted(-chosen, -chosen, chosen, chosen);
    for (const Point2D& p : points) {
      const QPointF at = mMap.map(QPointF(p.x, p.z));
      if (seen.contains(at)) mPainter.drawPath(shape.translated(at));
    }
  };
  paint(mScene.geophones, Marker::kGeophone);
  paint(mScene.shots, Marker::kShot);
}

std::vector<LegendEntry> sectionLegend(const SectionScene& scene, const SectionDress& dress) {
  std::vector<LegendEntry> entries;
  const auto line = [](const QPen& pen) {
    return [pen](QPainter& painter, const QPointF& middle) {
      painter.setPen(pen);
      painter.drawLine(middle - QPointF(9, 0), middle + QPointF(9, 0));
    };
  };
  const auto marker = [](Marker which) {
    return [which](QPainter& painter, const QPointF& middle) {
      setMarkerColors(painter, which);
      const QPainterPath shape = symbol(which, 10.0);
      painter.drawPath(shape.translated(middle - shape.boundingRect().center()));
    };
  };
  if (dress.geophones != GeophoneMarkers::kNone) {
    if (!scene.geophones.empty()) {
      entries.push_back({FigureWords::tr("Geophones"), marker(Marker::kGeophone)});
    }
    if (!scene.shots.empty()) entries.push_back({FigureWords::tr("Shots"), marker(Marker::kShot)});
  }
  if (!scene.contours.empty()) {
    const QPen pen(toColor(dress.contours.color), dress.contours.width);
    entries.push_back({FigureWords::tr("Contours"), line(pen)});
  }
  if (!scene.rays.empty()) entries.push_back({FigureWords::tr("Rays"), line(kLegendRayPen)});
  if (!scene.coverageLimit.empty()) {
    entries.push_back({FigureWords::tr("Coverage limit"), line(coveragePen())});
  }
  for (std::size_t i = 0; i < scene.refractors.size(); ++i) {
    const std::string& name = scene.refractors[i].name;
    entries.push_back({name.empty() ? FigureWords::refractor(i) : QString::fromStdString(name),
                       line(refractorPen(i))});
  }
  for (LegendEntry& entry : certaintyLegend(scene, dress.locale))
    entries.push_back(std::move(entry));
  for (LegendEntry& entry : annotationLegend(scene, dress.locale))
    entries.push_back(std::move(entry));
  const auto outlined = [](const QPen& pen) {
    return [pen](QPainter& painter, const QPointF& middle) {
      painter.setPen(pen);
      painter.setBrush(Qt::NoBrush);
      painter.drawRect(QRectF(middle - QPointF(7, 4), middle + QPointF(7, 4)));
    };
  };
  if (!scene.known.boreholes.empty()) {
    entries.push_back({FigureWords::tr("Boreholes"), outlined(kSurfacePen)});
  }
  if (!scene.known.depths.empty()) {
    entries.push_back({FigureWords::tr("Known depths"), [](QPainter& painter, const QPointF& at) {
                         paintKnownDepth(painter, at, 7.0, 7.0);
                       }});
  }
  if (!scene.known.bodies.empty()) {
    entries.push_back({FigureWords::tr("Fixed bodies"), outlined({Qt::black, 1.6, Qt::DashLine})});
  }
  return entries;
}

}  // namespace talvesk

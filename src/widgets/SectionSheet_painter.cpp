#include "widgets/SectionSheet_painter.h"

#include "figures/ContourLabels.h"
#include "figures/FigureItem.h"
#include "figures/SectionFigure.h"
#include "figures/SectionItems.h"

#include <QFontMetricsF>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

// What lies on the section itself. The paper around it is in SectionSheet_paper.cpp.

namespace talvesk {
namespace {

const QPen kSurfacePen(Qt::black, 1.4);
constexpr double kRefractorWidth = 2.0;

QPen coveragePen() {
  return {section_items::coverageColor(), 1.6, Qt::DashLine};
}

QPen gridPen() {
  return {QColor(0, 0, 0, 70), 0.0};
}

/// A polyline without the points that no eye would miss.
QPolygonF thinned(const QPolygonF& line) {
  constexpr double kEnough = 0.7;
  QPolygonF out;
  for (int i = 0; i < line.size(); ++i) {
    const bool end = i == 0 || i == line.size() - 1;
    if (end || std::hypot(line[i].x() - out.back().x(), line[i].y() - out.back().y()) > kEnough) {
      out.append(line[i]);
    }
  }
  return out;
}

}  // namespace

SheetPainter::SheetPainter(const SectionSheet& sheet, std::pair<Point2D, Point2D> extent,
                           QPainter& painter, const QSizeF& size, const QRectF& plot,
                           const SectionCamera& camera)
    : mSheet(sheet),
      mScene(*sheet.scene()),
      mExtent(extent),
      mPainter(painter),
      mSize(size),
      mPlot(plot),
      mCamera(camera),
      mMap(camera.toPicture(plot.size()) * QTransform::fromTranslate(plot.left(), plot.top())),
      mMargins(sheetMargins(sheet, size, painter.font())),
      mLine(QFontMetricsF(painter.font()).height()) {}

QPolygonF SheetPainter::mapped(const std::vector<Point2D>& points) const {
  QPolygonF line;
  line.reserve(static_cast<int>(points.size()));
  for (const Point2D& p : points) line.append(mMap.map(QPointF(p.x, p.z)));
  return thinned(line);
}

void SheetPainter::paintOverSection() {
  mPainter.save();
  mPainter.setClipRect(mPlot);
  mPainter.setRenderHint(QPainter::Antialiasing);
  if (mSheet.settings().gridLines) paintGridLines();
  paintLines();
  paintContourValues();
  paintMarkers();
  mPainter.restore();
}

void SheetPainter::paintGridLines() {
  mPainter.save();
  mPainter.setRenderHint(QPainter::Antialiasing, isTurned());
  mPainter.setPen(gridPen());
  const QRectF part = visible();
  for (const double x : distanceTicks().major) {
    mPainter.drawLine(mMap.map(QPointF(x, part.top())), mMap.map(QPointF(x, part.bottom())));
  }
  for (const double z : elevationTicks().major) {
    mPainter.drawLine(mMap.map(QPointF(part.left(), z)), mMap.map(QPointF(part.right(), z)));
  }
  mPainter.restore();
}

void SheetPainter::paintLines() {
  mPainter.setBrush(Qt::NoBrush);
  mPainter.setPen(kSurfacePen);
  mPainter.drawPolyline(mapped(mScene.surface));
  mPainter.setPen(coveragePen());
  mPainter.drawPolyline(mapped(mScene.coverageLimit));
  for (std::size_t i = 0; i < mScene.refractors.size(); ++i) {
    for (const auto& piece : mScene.refractors[i].pieces) {
      const QPolygonF line = mapped(piece);
      mPainter.setPen(QPen(Qt::white, kRefractorWidth + 2.0));
      mPainter.drawPolyline(line);
      mPainter.setPen(QPen(section_items::refractorColor(i), kRefractorWidth));
      mPainter.drawPolyline(line);
    }
  }
}

void SheetPainter::paintContourValues() {
  const ContourSettings& contours = mSheet.settings().contours;
  if (mScene.contours.empty() || contours.labelEvery < 1) return;
  std::vector<QPolygonF> lines;
  lines.reserve(mScene.contours.size());
  for (const ContourLine& contour : mScene.contours) {
    lines.push_back(mapped(contour.points));
    if (contour.closed) lines.back().append(lines.back().front());
  }
  ContourStyle style;
  style.color = contours.color;
  style.labelEvery = contours.labelEvery;
  style.labelPoints = std::max(contours.labelSize, 1);
  const int decimals = axisTicks(mScene.range.min, mScene.range.max, 20).decimals;
  section_items::paintContourLabels(
      mPainter, mScene, lines, style, mPlot, [this, decimals](double value) {
        const bool whole = decimals == 0 && value == std::round(value);
        return mLocale.toString(value, 'f', whole || decimals == 0 ? decimals : decimals + 1);
      });
}

void SheetPainter::paintMarkers() {
  using namespace section_items;
  const double size = markerSize(mSheet.settings().geophones);
  const auto paint = [this](const std::vector<Point2D>& points, Marker marker, double chosen) {
    if (points.empty() || chosen <= 0.0) return;
    double fitting = chosen;
    if (points.size() > 1) {
      const QLineF line(mMap.map(QPointF(points.front().x, points.front().z)),
                        mMap.map(QPointF(points.back().x, points.back().z)));
      fitting = fittingMarkerSize(chosen, line.length() / static_cast<double>(points.size() - 1));
    }
    setMarkerColors(mPainter, marker);
    const QPainterPath shape = symbol(marker, fitting);
    const QRectF seen = mPlot.adjusted(-chosen, -chosen, chosen, chosen);
    for (const Point2D& p : points) {
      const QPointF at = mMap.map(QPointF(p.x, p.z));
      if (seen.contains(at)) mPainter.drawPath(shape.translated(at));
    }
  };
  paint(mScene.geophones, Marker::kGeophone, size);
  paint(mScene.shots, Marker::kShot, size);
}

std::vector<SheetPainter::LegendEntry> SheetPainter::legend() const {
  using namespace section_items;
  std::vector<LegendEntry> entries;
  const auto line = [this](const QPen& pen) {
    return [this, pen](const QPointF& middle) {
      mPainter.setPen(pen);
      mPainter.drawLine(middle - QPointF(9, 0), middle + QPointF(9, 0));
    };
  };
  const auto marker = [this](Marker which) {
    return [this, which](const QPointF& middle) {
      setMarkerColors(mPainter, which);
      const QPainterPath shape = symbol(which, 10.0);
      mPainter.drawPath(shape.translated(middle - shape.boundingRect().center()));
    };
  };
  if (mSheet.settings().geophones != GeophoneMarkers::kNone) {
    if (!mScene.geophones.empty()) entries.push_back({tr("Geophones"), marker(Marker::kGeophone)});
    if (!mScene.shots.empty()) entries.push_back({tr("Shots"), marker(Marker::kShot)});
  }
  if (!mScene.contours.empty()) {
    const QPen pen(toColor(mSheet.settings().contours.color), 1.2);
    entries.push_back({tr("Contours"), line(pen)});
  }
  if (!mScene.rays.empty()) {
    entries.push_back({tr("%n ray(s)", "", static_cast<int>(mScene.rays.size())),
                       line(QPen(QColor(90, 90, 90), 0.8))});
  }
  if (!mScene.coverageLimit.empty()) entries.push_back({tr("Coverage limit"), line(coveragePen())});
  for (std::size_t i = 0; i < mScene.refractors.size(); ++i) {
    entries.push_back({QString::fromStdString(mScene.refractors[i].name),
                       line(QPen(refractorColor(i), kRefractorWidth))});
  }
  return entries;
}

void SheetPainter::paintLegend(double left, double right, double y) {
  constexpr double kSymbol = 20.0;
  constexpr double kGap = 18.0;
  const QFontMetricsF metrics(mPainter.font());
  mPainter.save();
  mPainter.setRenderHint(QPainter::Antialiasing);
  for (const LegendEntry& entry : legend()) {
    const double width = kSymbol + 6.0 + metrics.horizontalAdvance(entry.text);
    if (left + width > right) break;
    entry.symbol({left + 0.5 * kSymbol, y + 0.5 * mLine});
    mPainter.setPen(Qt::black);
    mPainter.drawText(QPointF(left + kSymbol + 6.0, y + metrics.ascent()), entry.text);
    left += width + kGap;
  }
  mPainter.restore();
}

}  // namespace talvesk

#include "figures/GatherItems.h"

#include "figures/ErrorBar.h"
#include "figures/FigureItem.h"
#include "figures/FigureWords.h"
#include "figures/GatherScene.h"
#include "figures/SectionItems.h"

#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <vector>

#include <qwt_scale_map.h>

namespace talvesk::gather_items {
namespace {

// Lengths on the sheet, in points of 1/96 inch.
constexpr double kVectorRow = 0.5;  ///< height of a row of a vector file, an eighth of a millimetre

/// Points of one wiggle, x counted from its base line.
class Thinner {
 public:
  explicit Thinner(double rowHeight) : mRowHeight(rowHeight) {}

  /// Samples come with y ascending.
  void add(const QPointF& point) {
    const double row = std::floor(point.y() / mRowHeight);
    if (mHas && row != mRow) flush();
    if (!mHas) {
      mLeast = mMost = point;
      mRow = row;
      mHas = true;
    }
    if (point.x() < mLeast.x()) mLeast = point;
    if (point.x() > mMost.x()) mMost = point;
  }

  QPolygonF take() {
    flush();
    QPolygonF taken;
    taken.swap(mLine);
    return taken;
  }

 private:
  void flush() {
    if (!mHas) return;
    mHas = false;
    const bool leastFirst = mLeast.y() <= mMost.y();
    append(leastFirst ? mLeast : mMost);
    if (mLeast != mMost) append(leastFirst ? mMost : mLeast);
  }

  /// Along cut swings and dead traces the line is straight.
  void append(const QPointF& point) {
    const int n = mLine.size();
    if (n >= 2 && mLine[n - 1].x() == point.x() && mLine[n - 2].x() == point.x()) {
      mLine[n - 1] = point;
    } else {
      mLine.append(point);
    }
  }

  double mRowHeight;
  double mRow = 0.0;
  bool mHas = false;
  QPointF mLeast;
  QPointF mMost;
  QPolygonF mLine;
};

/// Adds what lies between a wiggle and its base line on the positive side.
void addLobes(const QPolygonF& line, QPainterPath& path) {
  QPolygonF lobe;
  const auto close = [&lobe, &path](double y) {
    if (lobe.isEmpty()) return;
    lobe.append({0.0, y});
    path.addPolygon(lobe);
    path.closeSubpath();
    lobe.clear();
  };
  for (int i = 0; i < line.size(); ++i) {
    const QPointF& b = line[i];
    if (i > 0) {
      const QPointF& a = line[i - 1];
      if ((a.x() > 0.0) != (b.x() > 0.0)) {
        const double y = a.y() + (b.y() - a.y()) * a.x() / (a.x() - b.x());
        if (a.x() > 0.0) {
          close(y);
        } else {
          lobe.append({0.0, y});
        }
      }
    } else if (b.x() > 0.0) {
      lobe.append({0.0, b.y()});
    }
    if (b.x() > 0.0) lobe.append(b);
  }
  if (!line.isEmpty()) close(line.back().y());
}

class WigglePainter {
 public:
  WigglePainter(const GatherScene& scene, const WiggleStyle& style)
      : mScene(scene), mStyle(style) {}

  void operator()(QPainter& painter, const QwtScaleMap& xMap, const QwtScaleMap& timeMap,
                  const QRectF& canvas) const {
    painter.setRenderHint(QPainter::Antialiasing);
    const double spacing =
        std::abs(xMap.transform(mScene.low + mScene.spacing) - xMap.transform(mScene.low)) *
        static_cast<double>(mScene.traceStep);
    const double height = rowHeight(painter, canvas);
    for (const GatherTrace& trace : mScene.traces) {
      const std::vector<QPolygonF> lines = pieces(trace, spacing, timeMap, height);
      painter.save();
      painter.translate(xMap.transform(trace.x), 0.0);
      if (mStyle.fillPositive) fill(painter, lines);
      painter.setBrush(Qt::NoBrush);
      painter.setPen(
          QPen(toColor(mStyle.line), mStyle.width, Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin));
      for (const QPolygonF& line : lines) painter.drawPolyline(line);
      painter.restore();
    }
  }

 private:
  double rowHeight(const QPainter& painter, const QRectF& canvas) const {
    if (!paintsVectors(painter)) {
      const double pixels = std::abs(painter.transform().m22());
      return pixels > 0.0 ? 1.0 / pixels : kVectorRow;
    }
    // Two points in each row of each trace.
    const double traces = static_cast<double>(mScene.traces.size());
    return std::max(kVectorRow, 2.0 * traces * canvas.height() / mStyle.mostVectorPoints);
  }

  /// The wiggle of a trace, in more than one piece where samples are no numbers.
  std::vector<QPolygonF> pieces(const GatherTrace& trace, double spacing,
                                const QwtScaleMap& timeMap, double height) const {
    std::vector<QPolygonF> lines;
    Thinner thinner(height);
    const auto end = [&lines, &thinner] {
      QPolygonF line = thinner.take();
      if (line.size() > 1) lines.push_back(std::move(line));
    };
    for (std::size_t i = trace.first; i < trace.end; ++i) {
      const double swing = trace.swing(i) * mStyle.gain;
      if (std::isfinite(swing)) {
        const double x = std::clamp(swing, -mStyle.clip, mStyle.clip) * spacing;
        thinner.add({x, timeMap.transform(trace.timeMs(i))});
      } else {
        end();
      }
    }
    end();
    return lines;
  }

  void fill(QPainter& painter, const std::vector<QPolygonF>& lines) const {
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    for (const QPolygonF& line : lines) addLobes(line, path);
    if (path.isEmpty()) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(toColor(mStyle.fill));
    painter.drawPath(path);
  }

  const GatherScene& mScene;
  WiggleStyle mStyle;
};

void drawBar(QPainter& painter, const QColor& color, const QPointF& middle, double half) {
  const QLineF bar(middle.x() - half, middle.y(), middle.x() + half, middle.y());
  painter.setPen(QPen(Qt::white, 2.8, Qt::SolidLine, Qt::FlatCap));
  painter.drawLine(bar);
  painter.setPen(QPen(color, 1.6, Qt::SolidLine, Qt::FlatCap));
  painter.drawLine(bar);
}

}  // namespace

QwtPlotItem* wiggles(const GatherScene& scene, const WiggleStyle& style) {
  return figureItem({}, section_items::kRaysLayer, WigglePainter(scene, style));
}

QwtPlotItem* picks(const GatherScene& scene, const QColor& color) {
  const auto paint = [&scene, color](QPainter& painter, const QwtScaleMap& xMap,
                                     const QwtScaleMap& timeMap, const QRectF&) {
    painter.setRenderHint(QPainter::Antialiasing);
    const double spacing =
        std::abs(xMap.transform(scene.low + scene.spacing) - xMap.transform(scene.low));
    const double half = std::clamp(0.4 * spacing, 2.0, 9.0);
    for (const GatherTrace& trace : scene.traces) {
      if (!trace.pickMs) continue;
      if (trace.errorMs > 0.0) {
        const ErrorBar bar(xMap.transform(trace.x),
                           timeMap.transform(*trace.pickMs - trace.errorMs),
                           timeMap.transform(*trace.pickMs + trace.errorMs), 1e-3 * trace.errorMs,
                           timeMap.p1(), timeMap.p2());
        paintErrorBar(painter, bar, {color, 1.0, 2.5, Qt::white});
      }
      drawBar(painter, color, {xMap.transform(trace.x), timeMap.transform(*trace.pickMs)}, half);
    }
  };
  const auto icon = [color](QPainter& painter, const QSizeF& size) {
    drawBar(painter, color, {size.width() / 2, size.height() / 2}, 8.0);
  };
  return figureItem(FigureWords::tr("First breaks"), section_items::kContoursLayer, paint, icon);
}

}  // namespace talvesk::gather_items

#include "widgets/SeriesPlot.h"

#include "figures/FigureItem.h"

#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <utility>

#include <qwt_legend.h>
#include <qwt_plot.h>
#include <qwt_plot_item.h>
#include <qwt_scale_map.h>

namespace talvesk {
namespace {

constexpr double kSymbol = 2.6;  ///< radius, pixels
constexpr double kLayer = 20.0;  ///< above the grid

QPen penOf(const PlotSeries& series) {
  return {series.color, series.width, series.dashed ? Qt::DashLine : Qt::SolidLine};
}

void paintSeries(QPainter& painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
                 const PlotSeries& series) {
  painter.setRenderHint(QPainter::Antialiasing);
  QPolygonF line;
  const auto end = [&] {
    if (series.width > 0.0 && line.size() > 1) {
      painter.setPen(penOf(series));
      painter.setBrush(Qt::NoBrush);
      painter.drawPolyline(line);
    }
    if (series.symbols || line.size() == 1) {
      painter.setPen(Qt::NoPen);
      painter.setBrush(series.color);
      for (const QPointF& point : line) painter.drawEllipse(point, kSymbol, kSymbol);
    }
    line.clear();
  };
  for (const Point2D& p : series.points) {
    if (isFinite(p)) {
      line.append({xMap.transform(p.x), yMap.transform(p.z)});
    } else {
      end();
    }
  }
  end();
}

QwtPlotItem* itemOf(const PlotSeries& series, double z) {
  const auto paint = [series](QPainter& painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
                              const QRectF&) { paintSeries(painter, xMap, yMap, series); };
  const auto icon = [series](QPainter& painter, const QSizeF& size) {
    const double y = size.height() / 2.0;
    if (series.width > 0.0) {
      painter.setPen(penOf(series));
      painter.drawLine(QPointF(0.0, y), QPointF(size.width(), y));
    }
    if (!series.symbols) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(series.color);
    painter.drawEllipse(QPointF(size.width() / 2.0, y), kSymbol, kSymbol);
  };
  return figureItem(series.name, z, paint, icon);
}

}  // namespace

SeriesPlot::SeriesPlot(QWidget* parent) : PlotPage(parent) {
  alignNumbers();
  plot().insertLegend(new QwtLegend, QwtPlot::BottomLegend);
}

SeriesPlot::~SeriesPlot() = default;

void SeriesPlot::setSeries(std::vector<PlotSeries> series) {
  mSeries = std::move(series);
  // The grid stays; what is above it is replaced.
  const QwtPlotItemList before = plot().itemList();
  for (QwtPlotItem* item : before) {
    if (item->z() >= kLayer) {
      item->detach();
      delete item;
    }
  }
  QRectF whole = mFrame;
  bool empty = true;
  double z = kLayer;
  for (const PlotSeries& curve : mSeries) {
    add(itemOf(curve, z));
    z += 1e-3;
    for (const Point2D& p : curve.points) {
      if (!isFinite(p)) continue;
      if (empty && mFrame.isNull()) whole = QRectF(p.x, p.z, 0.0, 0.0);
      whole.setLeft(std::min(whole.left(), p.x));
      whole.setRight(std::max(whole.right(), p.x));
      whole.setTop(std::min(whole.top(), p.z));
      whole.setBottom(std::max(whole.bottom(), p.z));
      empty = false;
    }
  }
  setWhole(whole, empty);
}

}  // namespace talvesk

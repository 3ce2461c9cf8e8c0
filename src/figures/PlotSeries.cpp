#include "figures/PlotSeries.h"

#include "figures/FigureItem.h"
#include "figures/FigurePlot.h"

#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <memory>
#include <optional>

#include <qwt_plot.h>
#include <qwt_plot_item.h>
#include <qwt_scale_map.h>

namespace talvesk {
namespace {

constexpr double kSymbol = 2.6;    ///< radius, pixels
constexpr double kPadding = 12.0;  ///< inside the axes of a figure, points of 1/96 inch
constexpr double kItems = 10.0;    ///< above the axes

constexpr double kBandAlpha = 0.25;

QPen penOf(const PlotSeries& series, bool dashed) {
  return {series.color, series.width, dashed ? Qt::DashLine : Qt::SolidLine};
}

/// There along the upper edge and back along the lower one.
void paintBand(QPainter& painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
               const PlotSeries& series) {
  QColor color = series.color;
  color.setAlphaF(kBandAlpha);
  painter.setPen(QPen(color, 1.0));
  painter.setBrush(color);
  QPolygonF upper;
  QPolygonF lower;
  const auto close = [&] {
    std::reverse(lower.begin(), lower.end());
    if (!upper.isEmpty()) painter.drawPolygon(upper + lower);
    upper.clear();
    lower.clear();
  };
  for (std::size_t j = 0; j < std::min(series.low.size(), series.points.size()); ++j) {
    if (!std::isfinite(series.low[j]) || !std::isfinite(series.high[j])) {
      close();
      continue;
    }
    const double x = xMap.transform(series.points[j].x);
    upper.append({x, yMap.transform(series.high[j])});
    lower.append({x, yMap.transform(series.low[j])});
  }
  close();
}

/// Pieces of a line, each solid or dashed as a whole.
void paintLine(QPainter& painter, const PlotSeries& series, const QPolygonF& points,
               const std::vector<bool>& loose) {
  painter.setBrush(Qt::NoBrush);
  for (int from = 0; from + 1 < points.size();) {
    const auto isLoose = [&loose](int i) {
      return loose[static_cast<std::size_t>(i)] || loose[static_cast<std::size_t>(i) + 1];
    };
    int to = from + 1;
    while (to + 1 < points.size() && isLoose(to) == isLoose(from)) ++to;
    painter.setPen(penOf(series, series.dashed || isLoose(from)));
    painter.drawPolyline(points.constData() + from, to - from + 1);
    from = to;
  }
}

void paintSeries(QPainter& painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
                 const PlotSeries& series) {
  painter.setRenderHint(QPainter::Antialiasing);
  paintBand(painter, xMap, yMap, series);
  QPolygonF line;
  std::vector<bool> loose;
  const auto end = [&] {
    if (series.width > 0.0) paintLine(painter, series, line, loose);
    if (series.symbols || line.size() == 1) {
      painter.setPen(Qt::NoPen);
      painter.setBrush(series.color);
      for (const QPointF& point : line) painter.drawEllipse(point, kSymbol, kSymbol);
    }
    line.clear();
    loose.clear();
  };
  for (std::size_t j = 0; j < series.points.size(); ++j) {
    const Point2D& p = series.points[j];
    if (isFinite(p)) {
      line.append({xMap.transform(p.x), yMap.transform(p.z)});
      loose.push_back(j < series.loose.size() && series.loose[j]);
    } else {
      end();
    }
  }
  end();
}

/// Left, right, least and most value of all points.
struct Bounds {
  double left, right, least, most;
};

std::optional<Bounds> boundsOf(const SeriesFigure& figure) {
  std::optional<Bounds> all;
  for (const PlotSeries& series : figure.series) {
    for (const Point2D& p : series.points) {
      if (!isFinite(p)) continue;
      if (!all) all = Bounds{p.x, p.x, std::min(p.z, 0.0), std::max(p.z, 0.0)};
      all->left = std::min(all->left, p.x);
      all->right = std::max(all->right, p.x);
      all->least = std::min(all->least, p.z);
      all->most = std::max(all->most, p.z);
    }
  }
  if (!all) return all;
  all->right = std::max(all->right, all->left + 1e-3);
  all->most = std::max(all->most, all->least + 1e-6);
  return all;
}

/// From one value to another over so many points, with room around them.
FigurePlot::Scale scaleOf(double from, double to, double length, double spacing, double below) {
  const double perPoint = (to - from) / (length - 2.0 * kPadding);
  FigurePlot::Scale scale;
  scale.from = from - below * perPoint;
  scale.to = to + kPadding * perPoint;
  scale.firstTick = below > 0.0 ? scale.from : from;
  scale.lastTick = scale.to;
  scale.length = length;
  scale.spacing = spacing;
  return scale;
}

}  // namespace

QwtPlotItem* seriesItem(const PlotSeries& series, double z) {
  const auto paint = [series](QPainter& painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
                              const QRectF&) { paintSeries(painter, xMap, yMap, series); };
  const auto icon = [series](QPainter& painter, const QSizeF& size) {
    const double y = size.height() / 2.0;
    if (series.width > 0.0) {
      painter.setPen(penOf(series, series.dashed));
      painter.drawLine(QPointF(0.0, y), QPointF(size.width(), y));
    }
    if (!series.symbols) return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(series.color);
    painter.drawEllipse(QPointF(size.width() / 2.0, y), kSymbol, kSymbol);
  };
  return figureItem(series.name, z, paint, icon);
}

Status prepareSeriesFigure(const SeriesFigure& figure, double widthMm, double heightMm,
                           FigureDrawing& drawing) {
  const std::optional<Bounds> bounds = boundsOf(figure);
  if (!bounds) return Status::failure(Message::tr("There is nothing to draw."));
  auto sheet = std::make_shared<FigurePlot>();
  sheet->addAxis(QwtPlot::xBottom, figure.xTitle);
  sheet->addAxis(QwtPlot::yLeft, figure.yTitle);
  double z = kItems;
  for (const PlotSeries& series : figure.series) {
    sheet->add(seriesItem(series, z));
    z += 1e-3;
  }
  drawing.sheet.widthMm = widthMm;
  drawing.sheet.heightMm = heightMm;
  PlotPlace place;
  const Status status = sheet->fit(
      widthMm, heightMm, 80.0, 60.0,
      [&](double width, double height) {
        FigurePlot::Scale along = scaleOf(bounds->left, bounds->right, width, 50.0, kPadding);
        along.wholeNumbers = figure.wholeNumbers;
        sheet->setScale(QwtPlot::xBottom, along);
        sheet->setScale(QwtPlot::yLeft, scaleOf(bounds->least, bounds->most, height, 30.0,
                                                figure.zeroBased ? 0.0 : kPadding));
        sheet->plot().updateAxes();
      },
      place);
  if (!status.ok()) return status;
  drawing.paint = [sheet, widthMm](QPainter& painter, const QRectF& area) {
    sheet->paint(painter, area, widthMm);
  };
  return {};
}

}  // namespace talvesk

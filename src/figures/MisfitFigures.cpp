#include "figures/MisfitFigures.h"

#include "figures/FigureItem.h"
#include "figures/FigurePlot.h"
#include "figures/FigureWords.h"
#include "model/Residuals.h"
#include "model/TomoDocument.h"

#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <memory>

#include <qwt_plot.h>
#include <qwt_scale_map.h>

namespace talvesk {
namespace {

constexpr double kPadding = 12.0;  ///< inside the axes, points of 1/96 inch
constexpr double kDot = 2.2;       ///< radius, the same
const QColor kInk(31, 90, 150);
const QColor kPale(140, 140, 140);

/// Dots of a plane, perhaps joined, with a line at zero where that is in view.
struct DotPlot {
  std::vector<Point2D> points;
  std::vector<Point2D> beside;  ///< of less weight, paler
  bool joined = false;
  bool wholeNumbers = false;  ///< along the lower axis
  bool zeroBased = false;     ///< the left axis begins at 0
  FigurePlot figure;          // goes first at the end: its item looks at the points

  void addItem();
  void paint(QPainter& painter, const std::vector<Point2D>& dots, const QColor& ink,
             const QwtScaleMap& xMap, const QwtScaleMap& yMap) const;
  Status layOut(FigureSheet& sheet);
};

void DotPlot::paint(QPainter& painter, const std::vector<Point2D>& dots, const QColor& ink,
                    const QwtScaleMap& xMap, const QwtScaleMap& yMap) const {
  QPolygonF places;
  for (const Point2D& dot : dots) places.append({xMap.transform(dot.x), yMap.transform(dot.z)});
  painter.setPen(QPen(ink, 1.2));
  if (joined) painter.drawPolyline(places);
  painter.setPen(Qt::NoPen);
  painter.setBrush(ink);
  for (const QPointF& place : places) painter.drawEllipse(place, kDot, kDot);
}

void DotPlot::addItem() {
  figure.add(figureItem({}, 10.0,
                        [this](QPainter& painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
                               const QRectF& canvas) {
                          painter.setRenderHint(QPainter::Antialiasing);
                          if (!zeroBased) {
                            painter.setPen(QPen(Qt::gray, 0.8));
                            const double zero = yMap.transform(0.0);
                            painter.drawLine(QPointF(canvas.left(), zero),
                                             QPointF(canvas.right(), zero));
                          }
                          paint(painter, beside, kPale, xMap, yMap);
                          paint(painter, points, kInk, xMap, yMap);
                        }));
}

Status DotPlot::layOut(FigureSheet& sheet) {
  const auto byX = [](const Point2D& a, const Point2D& b) { return a.x < b.x; };
  const auto byZ = [](const Point2D& a, const Point2D& b) { return a.z < b.z; };
  std::vector<Point2D> all = points;
  all.insert(all.end(), beside.begin(), beside.end());
  const auto [left, right] = std::minmax_element(all.begin(), all.end(), byX);
  const auto [low, high] = std::minmax_element(all.begin(), all.end(), byZ);
  const double fromX = left->x;
  const double toX = std::max(right->x, fromX + 1e-3);
  const double least = std::min(low->z, 0.0);
  const double most = std::max(std::max(high->z, 0.0), least + 1e-6);
  const auto setAxis = [this](int axis, double from, double to, double length, double spacing,
                              double below, bool whole) {
    const double perPoint = (to - from) / (length - 2.0 * kPadding);
    FigurePlot::Scale scale;
    scale.from = from - below * perPoint;
    scale.to = to + kPadding * perPoint;
    scale.firstTick = below > 0.0 ? scale.from : from;
    scale.lastTick = scale.to;
    scale.length = length;
    scale.spacing = spacing;
    scale.wholeNumbers = whole;
    figure.setScale(axis, scale);
  };
  PlotPlace place;
  return figure.fit(
      sheet.widthMm, sheet.heightMm, 80.0, 60.0,
      [&](double width, double height) {
        setAxis(QwtPlot::xBottom, fromX, toX, width, 50.0, kPadding, wholeNumbers);
        setAxis(QwtPlot::yLeft, least, most, height, 30.0, zeroBased ? 0.0 : kPadding, false);
        figure.plot().updateAxes();
      },
      place);
}

Status prepare(const std::shared_ptr<DotPlot>& plot, double widthMm, double heightMm,
               FigureDrawing& drawing) {
  drawing.sheet.widthMm = widthMm;
  drawing.sheet.heightMm = heightMm;
  plot->addItem();
  if (Status status = plot->layOut(drawing.sheet); !status.ok()) return status;
  drawing.paint = [plot, widthMm](QPainter& painter, const QRectF& sheet) {
    plot->figure.paint(painter, sheet, widthMm);
  };
  return {};
}

}  // namespace

Status prepareMisfitHistoryFigure(const InversionRecord& record, double widthMm, double heightMm,
                                  FigureDrawing& drawing) {
  auto plot = std::make_shared<DotPlot>();
  const auto take = [](std::vector<Point2D>& points, std::size_t iteration, int count,
                       double rmse) {
    if (count == 0 || !std::isfinite(rmse)) return;
    points.push_back({static_cast<double>(iteration), 1e3 * rmse});
  };
  for (std::size_t i = 0; i < record.sectionHistory.size(); ++i) {
    take(plot->points, i, record.sectionHistory[i].count, record.sectionHistory[i].rmse);
  }
  for (std::size_t i = 0; i < record.history.size(); ++i) {
    take(plot->beside, i + 1, record.history[i].count, record.history[i].rmse);
  }
  if (plot->points.empty() && plot->beside.empty()) {
    return Status::failure(Message::tr("The inversion has no misfit to draw."));
  }
  plot->joined = plot->wholeNumbers = plot->zeroBased = true;
  plot->figure.addAxis(QwtPlot::xBottom, FigureWords::tr("External iteration"));
  plot->figure.addAxis(QwtPlot::yLeft, FigureWords::tr("RMS misfit [ms]"));
  return prepare(plot, widthMm, heightMm, drawing);
}

Status prepareResidualFigure(const TomoDocument& document, double widthMm, double heightMm,
                             FigureDrawing& drawing) {
  auto plot = std::make_shared<DotPlot>();
  for (const Residual& residual : residualsOf(document)) {
    if (!std::isfinite(residual.offset) || !std::isfinite(residual.residual)) continue;
    plot->points.push_back({residual.offset, 1e3 * residual.residual});
  }
  if (plot->points.empty()) return Status::failure(Message::tr("There are no residuals to draw."));
  plot->figure.addAxis(QwtPlot::xBottom, FigureWords::tr("Offset [m]"));
  plot->figure.addAxis(QwtPlot::yLeft, FigureWords::tr("Computed minus measured [ms]"));
  return prepare(plot, widthMm, heightMm, drawing);
}

}  // namespace talvesk

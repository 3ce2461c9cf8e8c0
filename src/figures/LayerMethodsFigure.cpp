#include "figures/LayerMethodsFigure.h"

#include "figures/FigureItem.h"
#include "figures/FigureOutput.h"
#include "figures/FigurePlot.h"
#include "figures/FigureWords.h"
#include "figures/report/LayerMethodTexts.h"
#include "refraction/methods/MethodComparison.h"

#include <QByteArray>
#include <QColor>
#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <memory>
#include <utility>

#include <qwt_plot.h>
#include <qwt_plot_item.h>
#include <qwt_scale_map.h>

namespace talvesk {
namespace {

constexpr double kPadding = 12.0;  ///< inside the axes, points of 1/96 inch
constexpr double kLeastWidth = 120.0;
constexpr double kLeastHeight = 60.0;
constexpr double kMark = 3.2;  ///< half the width of a mark, points
constexpr double kLine = 1.4;
constexpr double kBandAlpha = 0.14;
constexpr double kBands = 10.0;  ///< below all lines
constexpr double kLines = 20.0;

/// Told apart by those, too, who see red and green alike, and in grey by their marks.
QColor colorOf(LayerMethod method) {
  switch (method) {
    case LayerMethod::kReciprocal:
      return {20, 20, 20};
    case LayerMethod::kDelayTimes:
      return {213, 94, 0};
    case LayerMethod::kIntercept:
      return {0, 114, 178};
    case LayerMethod::kPlusMinus:
      return {0, 140, 100};
  }
  return {};
}

QPolygonF markOf(LayerMethod method, const QPointF& at) {
  const auto moved = [&](std::initializer_list<QPointF> corners) {
    QPolygonF mark;
    for (const QPointF& corner : corners) mark.append(at + kMark * corner);
    return mark;
  };
  switch (method) {
    case LayerMethod::kDelayTimes:
      return moved({{-0.9, -0.9}, {0.9, -0.9}, {0.9, 0.9}, {-0.9, 0.9}});
    case LayerMethod::kIntercept:
      return moved({{0.0, -1.2}, {1.1, 0.9}, {-1.1, 0.9}});
    case LayerMethod::kPlusMinus:
      return moved({{0.0, -1.3}, {1.3, 0.0}, {0.0, 1.3}, {-1.3, 0.0}});
    case LayerMethod::kReciprocal:
      break;
  }
  return {};
}

void paintMark(QPainter& painter, LayerMethod method, bool hollow, const QPointF& at) {
  painter.setPen(QPen(colorOf(method), 1.0));
  painter.setBrush(hollow ? QColor(Qt::white) : colorOf(method));
  const QPolygonF corners = markOf(method, at);
  if (corners.isEmpty()) {
    painter.drawEllipse(at, kMark, kMark);
  } else {
    painter.drawPolygon(corners);
  }
}

QPen lineOf(LayerMethod method, bool carried) {
  return {colorOf(method), kLine, carried ? Qt::SolidLine : Qt::DashLine};
}

struct Line {
  const MethodResult& result;
  const MethodLayer& layer;

  bool known(std::size_t j) const { return std::isfinite(layer.depth[j]); }
  bool carried(std::size_t j) const { return layer.depthSupport[j] == Support::kPicks; }
  bool hollow() const { return layer.layer > 2; }
  double x(std::size_t j) const { return result.receivers[j].x; }
  std::size_t size() const { return layer.depth.size(); }
};

void paintLine(QPainter& painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
               const Line& line) {
  painter.setRenderHint(QPainter::Antialiasing);
  const auto at = [&](std::size_t j) {
    return QPointF(xMap.transform(line.x(j)), yMap.transform(line.layer.depth[j]));
  };
  for (std::size_t j = 0; j + 1 < line.size();) {
    // As long a piece as has one look, so that dashes go on across receivers.
    QPolygonF piece;
    const bool carried = line.carried(j) && line.carried(j + 1);
    for (piece.append(at(j)); j + 1 < line.size() && line.known(j) && line.known(j + 1) &&
                              carried == (line.carried(j) && line.carried(j + 1));
         ++j) {
      piece.append(at(j + 1));
    }
    if (piece.size() < 2) {
      ++j;
      continue;
    }
    painter.setPen(lineOf(line.result.method, carried));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(piece);
  }
  for (std::size_t j = 0; j < line.size(); ++j) {
    if (line.known(j)) paintMark(painter, line.result.method, line.hollow(), at(j));
  }
}

void paintBand(QPainter& painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
               const Line& line) {
  painter.setRenderHint(QPainter::Antialiasing);
  QColor color = colorOf(line.result.method);
  color.setAlphaF(kBandAlpha);
  painter.setPen(Qt::NoPen);
  painter.setBrush(color);
  const Band& band = line.layer.depthBand;
  QPolygonF upper;
  QPolygonF lower;
  const auto end = [&] {
    std::reverse(lower.begin(), lower.end());
    painter.drawPolygon(upper + lower);
    upper.clear();
    lower.clear();
  };
  for (std::size_t j = 0; j < line.size(); ++j) {
    if (!std::isfinite(band.errorAt(j))) {
      end();
      continue;
    }
    const double x = xMap.transform(line.x(j));
    upper.append({x, yMap.transform(band.low[j])});
    lower.append({x, yMap.transform(band.high[j])});
  }
  end();
}

/// A comparison on its sheet. It is a copy of what was compared: figures outlive dialogs.
class MethodsSheet {
 public:
  MethodsSheet(MethodComparison comparison, const LayerMethodsFigureOptions& options)
      : mComparison(std::move(comparison)), mOptions(options) {
    mPlot.addAxis(QwtPlot::xBottom, FigureWords::distanceAxis());
    mPlot.addAxis(QwtPlot::yLeft, FigureWords::tr("Depth [%1]").arg(lengthUnitText()));
    for (const MethodResult& result : mComparison.results) addLines(result);
    mPlot.setTexts({}, caption(), options.widthMm);
  }

  bool isEmpty() const { return !mAny; }
  Status layOut() {
    PlotPlace place;
    return mPlot.fit(
        mOptions.widthMm, mOptions.heightMm, kLeastWidth, kLeastHeight,
        [this](double width, double height) { setScales(width, height); }, place);
  }
  void paint(QPainter& painter, const QRectF& sheet) {
    mPlot.paint(painter, sheet, mOptions.widthMm);
  }

 private:
  void addLines(const MethodResult& result);
  void setScales(double width, double height);
  std::string caption() const;

  MethodComparison mComparison;
  LayerMethodsFigureOptions mOptions;
  double mDeepest = 0.0;  ///< metres, of lines and bands
  bool mAny = false;
  bool mDashes = false;  ///< there are depths that picks do not carry
  bool mHollow = false;  ///< and some of a second refractor
  bool mBands = false;
  FigurePlot mPlot;  // goes first at the end: its items look at the comparison
};

void MethodsSheet::addLines(const MethodResult& result) {
  QString name = layerMethodName(result.method);
  const LayerMethod method = result.method;
  const auto icon = [method](QPainter& painter, const QSizeF& size) {
    const double y = size.height() / 2.0;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(lineOf(method, true));
    painter.drawLine(QPointF(0.0, y), QPointF(size.width(), y));
    paintMark(painter, method, false, {size.width() / 2.0, y});
  };
  const double order = 1e-3 * static_cast<double>(static_cast<int>(method));
  for (const MethodLayer& layer : result.layers) {
    const Line line{result, layer};
    bool any = false;
    for (std::size_t j = 0; j < line.size(); ++j) {
      if (!line.known(j)) continue;
      any = true;
      mDeepest = std::max(mDeepest, layer.depth[j]);
      if (std::isfinite(layer.depthBand.errorAt(j))) {
        mBands = true;
        mDeepest = std::max(mDeepest, layer.depthBand.high[j]);
      }
      if (!line.carried(j)) mDashes = true;
    }
    if (!any) continue;
    mAny = true;
    mHollow = mHollow || line.hollow();
    if (!layer.depthBand.empty()) {
      mPlot.add(
          figureItem({}, kBands + order,
                     [line](QPainter& painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap,
                            const QRectF&) { paintBand(painter, xMap, yMap, line); }));
    }
    // The reciprocal method, which the program goes by, lies over the others.
    mPlot.add(figureItem(
        name, kLines - order,
        [line](QPainter& painter, const QwtScaleMap& xMap, const QwtScaleMap& yMap, const QRectF&) {
          paintLine(painter, xMap, yMap, line);
        },
        icon));
    name.clear();  // once in the legend
  }
}

void MethodsSheet::setScales(double width, double height) {
  const std::vector<Point2D>& receivers = mComparison.results.front().receivers;
  const auto set = [this](int axis, double from, double to, double length, double spacing) {
    const double padding = (to - from) * kPadding / std::max(length - 2.0 * kPadding, 1.0);
    FigurePlot::Scale scale;
    scale.from = from - padding;
    scale.to = axis == QwtPlot::yLeft ? to : to + padding;  // the surface is the upper side
    scale.firstTick = std::min(scale.from, scale.to);
    scale.lastTick = std::max(scale.from, scale.to);
    scale.length = length;
    scale.spacing = spacing;
    mPlot.setScale(axis, scale);
  };
  const double left = receivers.front().x;
  set(QwtPlot::xBottom, left, std::max(receivers.back().x, left + 1e-3), width, 60.0);
  set(QwtPlot::yLeft, std::max(mDeepest, 1e-3), 0.0, height, 35.0);
  mPlot.plot().updateAxes();
}

std::string MethodsSheet::caption() const {
  QStringList parts{FigureWords::tr("Depths are below the surface")};
  if (mDashes) parts << FigureWords::tr("dashed: not carried by picks there");
  if (mHollow) parts << FigureWords::tr("hollow marks: layer 3");
  if (mBands) parts << FigureWords::tr("shaded: 68 of 100 results of moved picks");
  return FigureWords::joined(parts).toStdString();
}

}  // namespace

Status prepareLayerMethodsFigure(const MethodComparison& comparison,
                                 const LayerMethodsFigureOptions& options, FigureDrawing& drawing) {
  if (Status status = checkApplication("A comparison of methods"); !status.ok()) return status;
  auto sheet = std::make_shared<MethodsSheet>(comparison, options);
  if (sheet->isEmpty()) return Status::failure(Message::tr("No method gives a depth."));
  if (Status status = sheet->layOut(); !status.ok()) return status;
  drawing.sheet = {options.widthMm, options.heightMm, options.dpi, {}};
  drawing.paint = [sheet](QPainter& painter, const QRectF& area) { sheet->paint(painter, area); };
  return {};
}

Status writeLayerMethodsFigure(const MethodComparison& comparison,
                               const LayerMethodsFigureOptions& options, const std::string& path) {
  return writeFigure(path, [&](FigureFormat format, QByteArray& bytes) {
    FigureDrawing drawing;
    if (Status status = prepareLayerMethodsFigure(comparison, options, drawing); !status.ok()) {
      return status;
    }
    if (Status status = drawing.sheet.check(format); !status.ok()) return status;
    return paintFigure(format, drawing.sheet, drawing.paint, bytes);
  });
}

}  // namespace talvesk

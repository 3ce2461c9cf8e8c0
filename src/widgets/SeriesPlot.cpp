#include "widgets/SeriesPlot.h"

#include <algorithm>
#include <utility>

#include <qwt_legend.h>
#include <qwt_plot.h>
#include <qwt_plot_item.h>

namespace talvesk {
namespace {

constexpr double kLayer = 20.0;  ///< above the grid

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
  const auto take = [&](double x, double value) {
    if (!isFinite({x, value})) return;
    if (empty && mFrame.isNull()) whole = QRectF(x, value, 0.0, 0.0);
    whole.setLeft(std::min(whole.left(), x));
    whole.setRight(std::max(whole.right(), x));
    whole.setTop(std::min(whole.top(), value));
    whole.setBottom(std::max(whole.bottom(), value));
    empty = false;
  };
  for (const PlotSeries& curve : mSeries) {
    add(seriesItem(curve, z));
    z += 1e-3;
    for (std::size_t j = 0; j < curve.points.size(); ++j) {
      take(curve.points[j].x, curve.points[j].z);
      if (j < curve.low.size()) take(curve.points[j].x, curve.low[j]);
      if (j < curve.high.size()) take(curve.points[j].x, curve.high[j]);
    }
  }
  setWhole(whole, empty);
}

}  // namespace talvesk

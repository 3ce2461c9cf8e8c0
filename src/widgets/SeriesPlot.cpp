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
  for (const PlotSeries& curve : mSeries) {
    add(seriesItem(curve, z));
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

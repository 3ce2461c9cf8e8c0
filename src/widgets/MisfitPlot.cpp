#include "widgets/MisfitPlot.h"

#include "widgets/PlotDress.h"
#include "widgets/TraceColors.h"

#include <QEvent>
#include <QPen>
#include <QPolygonF>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_symbol.h>

namespace talvesk {

MisfitPlot::MisfitPlot(QWidget* parent)
    : QWidget(parent), mPlot(new QwtPlot(this)), mCurve(new QwtPlotCurve) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(mPlot);
  mCurve->setRenderHint(QwtPlotItem::RenderAntialiased);
  mCurve->attach(mPlot);
  retranslate();
  dress();
  draw();
}

MisfitPlot::~MisfitPlot() = default;

void MisfitPlot::setTotal(int iterations) {
  mTotal = std::max(iterations, 1);
  mRmse.clear();
  draw();
}

void MisfitPlot::addMisfit(double rmse) {
  mRmse.push_back(1000.0 * rmse);
  draw();
}

void MisfitPlot::draw() {
  QPolygonF points;
  double largest = 0.0;
  for (std::size_t i = 0; i < mRmse.size(); ++i) {
    if (!std::isfinite(mRmse[i])) continue;
    points.append({static_cast<double>(i + 1), mRmse[i]});
    largest = std::max(largest, mRmse[i]);
  }
  mCurve->setSamples(points);
  const double last = std::max(mTotal, 2);
  const double step = std::ceil(last / 10.0);  // iterations are counted in whole numbers
  mPlot->setAxisScale(QwtPlot::xBottom, 0.0, last, step);
  mPlot->setAxisMaxMinor(QwtPlot::xBottom, 0);
  mPlot->setAxisMaxMajor(QwtPlot::yLeft, 4);
  mPlot->setAxisScale(QwtPlot::yLeft, 0.0, largest > 0.0 ? 1.1 * largest : 1.0);
  mPlot->replot();
}

QSize MisfitPlot::sizeHint() const {
  return {420, 180};
}

QSize MisfitPlot::minimumSizeHint() const {
  return {180, 110};
}

void MisfitPlot::dress() {
  dressPlot(*mPlot);
  const TraceColors colors = traceColors(palette(), true);
  mCurve->setPen(QPen(colors.positive, 1.4));
  mCurve->setSymbol(
      new QwtSymbol(QwtSymbol::Ellipse, colors.positive, QPen(colors.positive), {6, 6}));
  mPlot->replot();
}

void MisfitPlot::retranslate() {
  setAccessibleName(tr("Misfit after every external iteration"));
  mPlot->setAxisTitle(QwtPlot::xBottom, tr("External iteration"));
  mPlot->setAxisTitle(QwtPlot::yLeft, tr("RMSE (ms)"));
}

void MisfitPlot::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  followChange(
      *event, [this] { retranslate(); }, [this] { dress(); });
}

}  // namespace talvesk

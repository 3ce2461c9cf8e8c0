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
#include <qwt_plot_legenditem.h>
#include <qwt_symbol.h>

namespace talvesk {

MisfitPlot::MisfitPlot(QWidget* parent)
    : QWidget(parent),
      mPlot(new QwtPlot(this)),
      mSectionCurve(new QwtPlotCurve),
      mPassCurve(new QwtPlotCurve) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(mPlot);
  for (QwtPlotCurve* curve : {mPassCurve, mSectionCurve}) {
    curve->setRenderHint(QwtPlotItem::RenderAntialiased);
    curve->attach(mPlot);
  }
  auto* legend = new QwtPlotLegendItem;
  legend->setAlignment(Qt::AlignRight | Qt::AlignTop);
  legend->setRenderHint(QwtPlotItem::RenderAntialiased);
  legend->attach(mPlot);
  mLegend = legend;
  retranslate();
  dress();
  draw();
}

MisfitPlot::~MisfitPlot() = default;

void MisfitPlot::setTotal(int iterations) {
  mTotal = std::max(iterations, 1);
  mSection.clear();
  mPass.clear();
  draw();
}

void MisfitPlot::addMisfit(double sectionBefore, double lastPass) {
  mSection.push_back(1000.0 * sectionBefore);
  mPass.push_back(1000.0 * lastPass);
  draw();
}

void MisfitPlot::draw() {
  double largest = 0.0;
  const auto samples = [&largest](const std::vector<double>& values, std::size_t first) {
    QPolygonF points;
    for (std::size_t i = 0; i < values.size(); ++i) {
      if (!std::isfinite(values[i])) continue;
      points.append({static_cast<double>(first + i), values[i]});
      largest = std::max(largest, values[i]);
    }
    return points;
  };
  mSectionCurve->setSamples(samples(mSection, 0));
  mPassCurve->setSamples(samples(mPass, 1));
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
  const auto paint = [](QwtPlotCurve* curve, const QColor& color) {
    curve->setPen(QPen(color, 1.4));
    curve->setSymbol(new QwtSymbol(QwtSymbol::Ellipse, color, QPen(color), {6, 6}));
  };
  paint(mSectionCurve, colors.positive);
  paint(mPassCurve, palette().color(QPalette::Disabled, QPalette::Text));
  mLegend->setTextPen(QPen(palette().color(QPalette::Text)));
  mPlot->replot();
}

void MisfitPlot::retranslate() {
  mSectionCurve->setTitle(tr("Section"));
  mPassCurve->setTitle(tr("Last solver pass"));
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

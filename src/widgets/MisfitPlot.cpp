#include "widgets/MisfitPlot.h"

#include "widgets/traces/TraceColors.h"

#include <QPen>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_legenditem.h>
#include <qwt_symbol.h>

namespace talvesk {

MisfitPlot::MisfitPlot(QWidget* parent)
    : PlotPage(parent), mSectionCurve(new QwtPlotCurve), mPassCurve(new QwtPlotCurve) {
  for (QwtPlotCurve* curve : {mPassCurve, mSectionCurve}) {
    curve->setRenderHint(QwtPlotItem::RenderAntialiased);
    add(curve);
  }
  auto* legend = new QwtPlotLegendItem;
  legend->setAlignment(Qt::AlignRight | Qt::AlignTop);
  legend->setRenderHint(QwtPlotItem::RenderAntialiased);
  add(legend);
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

void MisfitPlot::showSectionOnly() {
  mPassCurve->setItemAttribute(QwtPlotItem::Legend, false);
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
  setWhole({0.0, 0.0, static_cast<double>(std::max(mTotal, 2)), largest > 0.0 ? largest : 1.0},
           false);
}

void MisfitPlot::scaleAxes() {
  PlotPage::scaleAxes();
  // Iterations are counted in whole numbers.
  plot().setAxisMaxMinor(QwtPlot::xBottom, 0);
  plot().setAxisScale(QwtPlot::xBottom, window().left, window().right,
                      std::ceil(window().width() / 10.0));
}

QSize MisfitPlot::sizeHint() const {
  return {420, 180};
}

QSize MisfitPlot::minimumSizeHint() const {
  return {180, 110};
}

void MisfitPlot::dress() {
  PlotPage::dress();
  const TraceColors colors = traceColors(palette(), true);
  const auto paint = [](QwtPlotCurve* curve, const QColor& color) {
    curve->setPen(QPen(color, 1.4));
    curve->setSymbol(new QwtSymbol(QwtSymbol::Ellipse, color, QPen(color), {6, 6}));
  };
  paint(mSectionCurve, colors.positive);
  paint(mPassCurve, palette().color(QPalette::Disabled, QPalette::Text));
  mLegend->setTextPen(QPen(palette().color(QPalette::Text)));
  repaintPlot();
}

void MisfitPlot::retranslate() {
  mSectionCurve->setTitle(tr("Section"));
  mPassCurve->setTitle(tr("Last solver pass"));
  setAccessibleName(tr("Misfit after every external iteration"));
  setTexts({}, tr("External iteration"), tr("RMSE (ms)"));
}

}  // namespace talvesk

#include "widgets/SpectrumPlot.h"

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
#include <qwt_plot_marker.h>

namespace talvesk {

SpectrumPlot::SpectrumPlot(QWidget* parent)
    : QWidget(parent),
      mPlot(new QwtPlot(this)),
      mCurve(new QwtPlotCurve),
      mLow(new QwtPlotMarker),
      mHigh(new QwtPlotMarker) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(mPlot);
  mCurve->setRenderHint(QwtPlotItem::RenderAntialiased);
  mCurve->attach(mPlot);
  for (QwtPlotMarker* marker : {mLow, mHigh}) {
    marker->setLineStyle(QwtPlotMarker::VLine);
    marker->setVisible(false);
    marker->attach(mPlot);
  }
  retranslate();
  dress();
  setCurve({}, {});
}

SpectrumPlot::~SpectrumPlot() = default;

void SpectrumPlot::setCurve(const std::vector<double>& frequencies,
                            const std::vector<double>& amplitudes) {
  QPolygonF points;
  double highest = 0.0;
  double strongest = 0.0;
  for (std::size_t i = 0; i < std::min(frequencies.size(), amplitudes.size()); ++i) {
    if (!std::isfinite(frequencies[i]) || !std::isfinite(amplitudes[i])) continue;
    points.append({frequencies[i], amplitudes[i]});
    highest = std::max(highest, frequencies[i]);
    strongest = std::max(strongest, amplitudes[i]);
  }
  mCurve->setSamples(points);
  mPlot->setAxisScale(QwtPlot::xBottom, 0.0, highest > 0.0 ? highest : 100.0);
  mPlot->setAxisScale(QwtPlot::yLeft, 0.0, strongest > 0.0 ? 1.05 * strongest : 1.0);
  mPlot->replot();
}

void SpectrumPlot::setCorners(std::optional<double> low, std::optional<double> high) {
  const auto place = [](QwtPlotMarker& marker, const std::optional<double>& hertz) {
    marker.setVisible(hertz.has_value());
    if (hertz) marker.setXValue(*hertz);
  };
  place(*mLow, low);
  place(*mHigh, high);
  mPlot->replot();
}

std::size_t SpectrumPlot::points() const {
  return mCurve->dataSize();
}

QSize SpectrumPlot::sizeHint() const {
  return {420, 260};
}

QSize SpectrumPlot::minimumSizeHint() const {
  return {180, 120};
}

void SpectrumPlot::dress() {
  dressPlot(*mPlot);
  const TraceColors colors = traceColors(palette(), true);
  mCurve->setPen(QPen(colors.positive, 1.4));
  mLow->setLinePen(QPen(colors.pick, 1.2, Qt::DashLine));
  mHigh->setLinePen(QPen(colors.computed, 1.2, Qt::DashDotLine));
  mPlot->replot();
}

void SpectrumPlot::retranslate() {
  setAccessibleName(tr("Amplitude spectrum"));
  mPlot->setAxisTitle(QwtPlot::xBottom, tr("Frequency"));
  mPlot->setAxisTitle(QwtPlot::yLeft, tr("Intensity"));
}

void SpectrumPlot::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  followChange(
      *event, [this] { retranslate(); }, [this] { dress(); });
}

}  // namespace talvesk

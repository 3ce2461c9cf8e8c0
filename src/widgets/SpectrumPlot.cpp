#include "widgets/SpectrumPlot.h"

#include "widgets/traces/TraceColors.h"

#include <QPen>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_marker.h>

namespace talvesk {

SpectrumPlot::SpectrumPlot(QWidget* parent)
    : PlotPage(parent),
      mCurve(new QwtPlotCurve),
      mLow(new QwtPlotMarker),
      mHigh(new QwtPlotMarker) {
  mCurve->setRenderHint(QwtPlotItem::RenderAntialiased);
  add(mCurve);
  for (QwtPlotMarker* marker : {mLow, mHigh}) {
    marker->setLineStyle(QwtPlotMarker::VLine);
    marker->setVisible(false);
    add(marker);
  }
  setPadding(0.0);
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
  setWhole({0.0, 0.0, highest > 0.0 ? highest : 100.0, strongest > 0.0 ? 1.05 * strongest : 1.0},
           false);
}

void SpectrumPlot::setCorners(std::optional<double> low, std::optional<double> high) {
  const auto place = [](QwtPlotMarker& marker, const std::optional<double>& hertz) {
    marker.setVisible(hertz.has_value());
    if (hertz) marker.setXValue(*hertz);
  };
  place(*mLow, low);
  place(*mHigh, high);
  repaintPlot();
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
  PlotPage::dress();
  const TraceColors colors = traceColors(palette(), true);
  mCurve->setPen(QPen(colors.positive, 1.4));
  mLow->setLinePen(QPen(colors.pick, 1.2, Qt::DashLine));
  mHigh->setLinePen(QPen(colors.computed, 1.2, Qt::DashDotLine));
  repaintPlot();
}

void SpectrumPlot::retranslate() {
  setAccessibleName(tr("Amplitude spectrum"));
  setTexts({}, tr("Frequency"), tr("Intensity"));
}

}  // namespace talvesk

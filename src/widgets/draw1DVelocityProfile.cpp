#include "widgets/draw1DVelocityProfile.h"

#include "widgets/PlotDress.h"
#include "widgets/TraceColors.h"

#include <QEvent>
#include <QPen>
#include <QPolygonF>
#include <QVBoxLayout>
#include <algorithm>
#include <cmath>

#include <qwt_legend.h>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_zoneitem.h>
#include <qwt_text.h>

namespace talvesk {
namespace {

constexpr int kSplinePoints = 401;
constexpr double kRoom = 1.06;      // of the scale beyond the largest velocity
constexpr double kFarthest = 0.75;  // how far the scale follows the spline out, of that velocity

}  // namespace

draw1DVelocityProfile::draw1DVelocityProfile(QWidget* parent)
    : QWidget(parent),
      mPlot(new QwtPlot(this)),
      mNonPositive(new QwtPlotZoneItem),
      mLayerCurve(new QwtPlotCurve),
      mSplineCurve(new QwtPlotCurve) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(mPlot);
  mNonPositive->setOrientation(Qt::Vertical);
  mNonPositive->attach(mPlot);
  for (QwtPlotCurve* curve : {mLayerCurve, mSplineCurve}) {
    curve->setRenderHint(QwtPlotItem::RenderAntialiased);
    curve->setLegendAttribute(QwtPlotCurve::LegendShowLine);
    curve->attach(mPlot);
  }
  mPlot->insertLegend(new QwtLegend, QwtPlot::BottomLegend);
  retranslate();
  dress();
  draw();
}

draw1DVelocityProfile::~draw1DVelocityProfile() = default;

void draw1DVelocityProfile::setGridDepth(double depth) {
  mGridDepth = depth;
  draw();
}

void draw1DVelocityProfile::setLayers(const std::vector<VelocityLayer>& layers) {
  mLayers = layers;
  mLargestVelocity = 0.0;
  for (const VelocityLayer& layer : layers) {
    mLargestVelocity = std::max({mLargestVelocity, layer.initialVelocity, layer.finalVelocity});
  }
  draw();
}

bool draw1DVelocityProfile::showsNonPositiveZone() const {
  return mNonPositive->isVisible();
}

void draw1DVelocityProfile::draw() {
  QPolygonF layers;
  double deepest = mGridDepth;
  for (const VelocityLayer& layer : mLayers) {
    layers << QPointF(layer.initialVelocity, layer.initialDepth)
           << QPointF(layer.finalVelocity, layer.finalDepth);
    deepest = std::max(deepest, layer.finalDepth);
  }
  mLayerCurve->setSamples(layers);
  const VelocityCurve spline = sampleLayers(mLayers, mGridDepth, kSplinePoints);
  QPolygonF points;
  for (std::size_t i = 0; i < spline.depths.size(); ++i) {
    if (std::isfinite(spline.velocities[i])) {
      points << QPointF(spline.velocities[i], spline.depths[i]);
    }
  }
  mSplineCurve->setSamples(points);
  scale(spline);
  mPlot->setAxisScale(QwtPlot::yLeft, deepest > 0.0 ? deepest : 1.0, 0.0);
  mPlot->replot();
}

void draw1DVelocityProfile::scale(const VelocityCurve& curve) {
  double lowest = 0.0;
  double highest = mLargestVelocity;
  bool swings = false;
  for (const double velocity : curve.velocities) {
    if (!std::isfinite(velocity)) continue;
    lowest = std::min(lowest, velocity);
    highest = std::max(highest, velocity);
    swings = swings || velocity <= 0.0;
  }
  const double reach = mLargestVelocity > 0.0 ? mLargestVelocity : 1000.0;
  lowest = std::max(lowest, -kFarthest * reach);
  highest = std::min(highest, (1.0 + kFarthest) * reach);
  // A spline that only touches zero needs a zone to be seen, too.
  if (swings) lowest = std::min(lowest, -0.05 * reach);
  mNonPositive->setInterval(kRoom * lowest, 0.0);
  mNonPositive->setVisible(swings);
  mPlot->setAxisScale(QwtPlot::xBottom, kRoom * lowest, kRoom * (highest > 0.0 ? highest : reach));
}

QSize draw1DVelocityProfile::sizeHint() const {
  return {440, 400};
}

QSize draw1DVelocityProfile::minimumSizeHint() const {
  return {220, 200};
}

void draw1DVelocityProfile::dress() {
  dressPlot(*mPlot);
  const TraceColors colors = traceColors(palette(), true);
  mLayerCurve->setPen(QPen(colors.negative, 3.0));
  mSplineCurve->setPen(QPen(colors.positive, 1.6));
  QColor zone = colors.pick;
  zone.setAlphaF(0.18);
  mNonPositive->setBrush(zone);
  mNonPositive->setPen(QPen(Qt::NoPen));
  mPlot->replot();
}

void draw1DVelocityProfile::retranslate() {
  setAccessibleName(tr("Velocity against depth"));
  mPlot->setAxisTitle(QwtPlot::xBottom, tr("Velocity (m/s)"));
  mPlot->setAxisTitle(QwtPlot::yLeft, tr("Depth below the ground (m)"));
  mLayerCurve->setTitle(tr("Layers"));
  mSplineCurve->setTitle(tr("Velocity that the grid gets"));
}

void draw1DVelocityProfile::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  followChange(
      *event, [this] { retranslate(); }, [this] { dress(); });
}

}  // namespace talvesk

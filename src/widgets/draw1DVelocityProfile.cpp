#include "widgets/draw1DVelocityProfile.h"

#include "figures/ShownLength.h"
#include "widgets/traces/TraceColors.h"

#include <QPen>
#include <QPolygonF>
#include <algorithm>
#include <cmath>

#include <qwt_legend.h>
#include <qwt_plot.h>
#include <qwt_plot_curve.h>
#include <qwt_plot_zoneitem.h>
#include <qwt_text.h>

namespace talvesk {
namespace {

constexpr int kCurvePoints = 401;
constexpr double kRoom = 1.06;      // of the scale beyond the largest velocity
constexpr double kFarthest = 0.75;  // how far the scale follows the spline out, of that velocity

}  // namespace

draw1DVelocityProfile::draw1DVelocityProfile(QWidget* parent)
    : PlotPage(parent),
      mNonPositive(new QwtPlotZoneItem),
      mLayerCurve(new QwtPlotCurve),
      mGridCurve(new QwtPlotCurve) {
  mNonPositive->setOrientation(Qt::Vertical);
  add(mNonPositive);
  for (QwtPlotCurve* curve : {mLayerCurve, mGridCurve}) {
    curve->setRenderHint(QwtPlotItem::RenderAntialiased);
    curve->setLegendAttribute(QwtPlotCurve::LegendShowLine);
    add(curve);
  }
  plot().insertLegend(new QwtLegend, QwtPlot::BottomLegend);
  setPadding(0.0);
  retranslate();
  dress();
  draw();
}

draw1DVelocityProfile::~draw1DVelocityProfile() = default;

void draw1DVelocityProfile::setGridDepth(double depth) {
  mGridDepth = depth;
  draw();
}

void draw1DVelocityProfile::setLayers(const std::vector<VelocityLayer>& layers,
                                      const LayerFill& fill) {
  mLayers = layers;
  mFill = fill;
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
  const VelocityCurve curve =
      mFill.spline ? sampleLayers(mLayers, mGridDepth, kCurvePoints)
                   : sampleSharpLayers(mLayers, mGridDepth, mFill.thickness, kCurvePoints);
  QPolygonF points;
  for (std::size_t i = 0; i < curve.depths.size(); ++i) {
    if (std::isfinite(curve.velocities[i])) {
      points << QPointF(curve.velocities[i], curve.depths[i]);
    }
  }
  mGridCurve->setSamples(points);
  QRectF whole = velocities(curve);
  whole.setHeight(deepest > 0.0 ? deepest : 1.0);
  setWhole(whole, false);
}

void draw1DVelocityProfile::scaleAxes() {
  PlotPage::scaleAxes();
  plot().setAxisScale(QwtPlot::yLeft, window().bottom, window().top);
}

/// What of the velocities is in view; marks those that are none.
QRectF draw1DVelocityProfile::velocities(const VelocityCurve& curve) {
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
  if (highest <= 0.0) highest = reach;
  return {kRoom * lowest, 0.0, kRoom * (highest - lowest), 0.0};
}

QSize draw1DVelocityProfile::sizeHint() const {
  return {440, 400};
}

QSize draw1DVelocityProfile::minimumSizeHint() const {
  return {220, 200};
}

void draw1DVelocityProfile::dress() {
  PlotPage::dress();
  const TraceColors colors = traceColors(palette(), true);
  mLayerCurve->setPen(QPen(colors.negative, 3.0));
  mGridCurve->setPen(QPen(colors.positive, 1.6));
  QColor zone = colors.pick;
  zone.setAlphaF(0.18);
  mNonPositive->setBrush(zone);
  mNonPositive->setPen(QPen(Qt::NoPen));
  repaintPlot();
}

void draw1DVelocityProfile::retranslate() {
  setAccessibleName(tr("Velocity against depth"));
  setTexts({}, tr("Velocity (%1)").arg(velocityUnitText()),
           tr("Depth below the ground (%1)").arg(lengthUnitText()));
  mLayerCurve->setTitle(tr("Layers"));
  mGridCurve->setTitle(tr("Velocity that the grid gets"));
}

}  // namespace talvesk

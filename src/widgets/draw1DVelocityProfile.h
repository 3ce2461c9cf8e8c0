#pragma once

#include "grid/SharpLayers.h"
#include "widgets/PlotPage.h"

#include <vector>

class QwtPlotCurve;
class QwtPlotZoneItem;

namespace talvesk {

/// A layered starting model, velocity to the right and depth downward, and over the layers what the
/// grid will get of them.
class draw1DVelocityProfile : public PlotPage {
  Q_OBJECT

 public:
  explicit draw1DVelocityProfile(QWidget* parent = nullptr);
  ~draw1DVelocityProfile() override;

  /// \param depth metres
  void setGridDepth(double depth);
  void setLayers(const std::vector<VelocityLayer>& layers, const LayerFill& fill = {});

  double gridDepth() const { return mGridDepth; }
  /// Of all tops and bottoms of the layers, m/s; 0 without layers. The scale reaches to it at
  /// least.
  double largestVelocity() const { return mLargestVelocity; }
  bool showsNonPositiveZone() const;  ///< the spline swings to where there is no velocity

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void scaleAxes() override;
  void dress() override;
  void retranslate() override;

 private:
  void draw();
  QRectF velocities(const VelocityCurve& curve);

  QwtPlotZoneItem* mNonPositive;
  QwtPlotCurve* mLayerCurve;
  QwtPlotCurve* mGridCurve;
  double mGridDepth = 0.0;
  double mLargestVelocity = 0.0;
  std::vector<VelocityLayer> mLayers;
  LayerFill mFill;
};

}  // namespace talvesk

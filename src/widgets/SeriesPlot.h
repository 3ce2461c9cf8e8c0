#pragma once

#include "figures/PlotSeries.h"
#include "widgets/PlotPage.h"

#include <vector>

namespace talvesk {

/// Curves over distance with a legend.
class SeriesPlot : public PlotPage {
  Q_OBJECT

 public:
  explicit SeriesPlot(QWidget* parent = nullptr);
  ~SeriesPlot() override;

  /// Is in view, too, whatever the curves are; for plots above each other and axes from 0 on.
  void setFrame(const QRectF& frame) { mFrame = frame; }

  /// Later curves lie over earlier ones.
  void setSeries(std::vector<PlotSeries> series);
  const std::vector<PlotSeries>& series() const { return mSeries; }

 private:
  std::vector<PlotSeries> mSeries;
  QRectF mFrame;
};

}  // namespace talvesk

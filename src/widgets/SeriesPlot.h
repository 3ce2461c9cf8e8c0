#pragma once

#include "base/Point2D.h"
#include "widgets/PlotPage.h"

#include <QColor>
#include <QString>
#include <vector>

namespace talvesk {

/// A curve of a SeriesPlot. Points that are not finite are left out and break the line.
struct PlotSeries {
  QString name;                 ///< in the legend; empty: not in it
  std::vector<Point2D> points;  ///< x and value
  QColor color;
  double width = 1.5;  ///< of the line, pixels; 0: symbols only
  bool dashed = false;
  bool symbols = false;
};

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

#pragma once

#include "base/Point2D.h"
#include "base/Status.h"
#include "figures/FigureFile.h"

#include <QColor>
#include <QString>
#include <vector>

class QwtPlotItem;

namespace talvesk {

/// A curve of a plot. Points that are not finite are left out and break the line.
///
/// `loose` and `low` and `high` follow the points, or are empty.
struct PlotSeries {
  QString name;                 ///< in the legend; empty: not in it
  std::vector<Point2D> points;  ///< x and value
  QColor color;
  double width = 1.5;  ///< of the line, pixels; 0: symbols only
  bool dashed = false;
  bool symbols = false;
  std::vector<bool> loose = {};   ///< lines to and from these points are dashed
  std::vector<double> low = {};   ///< lower edge of a translucent band; gaps where it is not finite
  std::vector<double> high = {};  ///< its upper edge
};

/// \param z who paints over whom, the highest last
QwtPlotItem* seriesItem(const PlotSeries& series, double z);

/// Curves as a figure.
struct SeriesFigure {
  std::vector<PlotSeries> series;  ///< later ones lie over earlier ones
  QString xTitle;
  QString yTitle;
  bool wholeNumbers = false;  ///< along the lower axis
  bool zeroBased = false;     ///< the left axis begins at 0, which it shows in any case
};

/// Lays the figure out. Fails without a finite point, and where axes leave too little room.
Status prepareSeriesFigure(const SeriesFigure& figure, double widthMm, double heightMm,
                           FigureDrawing& drawing);

}  // namespace talvesk

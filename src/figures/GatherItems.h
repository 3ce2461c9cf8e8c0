#pragma once

#include "view/ColorPalette.h"

class QColor;
class QwtPlotItem;

namespace talvesk {

struct GatherScene;

/// The layers of a gather on a plot with distance or channel below and time, downward, at the left.
/// The scene must outlive the plot that they are added to.
namespace gather_items {

struct WiggleStyle {
  double gain = 1.0;  ///< swing of a trace's full scale, in distances between traces
  double clip = 1.0;  ///< swings are cut beyond, in distances between traces
  bool fillPositive = true;
  RgbColor line = {0.0, 0.0, 0.0};
  double width = 0.5;                     ///< of the line, points of 1/96 inch
  RgbColor fill = {0.235, 0.235, 0.235};  ///< of the positive side
  /// Of a vector file, above which wiggles get coarser: with the fill, five megabytes of SVG at the
  /// worst. Who draws several gathers on a page shares them out.
  double mostVectorPoints = 120000.0;
};

/// The traces. However many samples fall into one row of the picture, the row shows the smallest
/// and the largest of them.
QwtPlotItem* wiggles(const GatherScene& scene, const WiggleStyle& style);

/// A bar across its trace at each first break.
QwtPlotItem* picks(const GatherScene& scene, const QColor& color);

}  // namespace gather_items
}  // namespace talvesk

#pragma once

#include "figures/TravelTimeCurves.h"

#include <QColor>
#include <cstddef>
#include <limits>
#include <vector>

class QwtPlotItem;

namespace talvesk {

/// How T-x curves are drawn; as they stand, the values are for paper.
struct TravelTimeLook {
  static constexpr std::size_t kNone = std::numeric_limits<std::size_t>::max();

  bool joined = true;           ///< lines through the picks
  bool errorBars = true;        ///< of picks whose error is known
  std::size_t current = kNone;  ///< record that is drawn over the others, and stronger
  bool othersFaint = false;
  QColor ground = Qt::white;  ///< what is behind; the colours of the curves stand out from it
  QColor icons{60, 60, 60};   ///< of the legend
};

/// The layers of T-x curves on a plot with distance below and time at the left. Curves and look
/// must outlive the plot; changes show when the plot is painted next.
namespace travel_time_items {

/// Picks; doubtful ones are rings where error bars are shown, and their bars are dashed.
QwtPlotItem* measured(const std::vector<TravelTimeCurve>& curves, const TravelTimeLook& look);
QwtPlotItem* computed(const std::vector<TravelTimeCurve>& curves, const TravelTimeLook& look);
/// Times through layers: dashed.
QwtPlotItem* layered(const std::vector<TravelTimeCurve>& curves, const TravelTimeLook& look);
QwtPlotItem* shots(const std::vector<TravelTimeCurve>& curves, const TravelTimeLook& look);

/// The colour of a record's curve.
QColor colorOf(std::size_t record, const TravelTimeLook& look);

}  // namespace travel_time_items
}  // namespace talvesk

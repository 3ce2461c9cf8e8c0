#pragma once

#include "base/Point2D.h"

#include <cstddef>
#include <vector>

class QwtPlotItem;

namespace talvesk {

/// The T-x curve of one shot; of its points, x is distance in metres and z is time in milliseconds.
struct TravelTimeCurve {
  struct Pick {
    std::size_t geophone = 0;  ///< of the record's string, from 0
    Point2D point;
  };

  std::size_t record = 0;   ///< from 0; chooses the colour
  std::vector<Pick> picks;  ///< by ascending x
  /// Lines through picks, or computed times, of neighbouring geophones.
  std::vector<std::vector<Point2D>> measuredLines;
  std::vector<std::vector<Point2D>> computedLines;
  bool hasShot = false;
  Point2D shot;  ///< at time 0
};

/// The layers of T-x curves on a plot with distance below and time at the left. The curves must
/// outlive the plot.
namespace travel_time_items {

/// \param joined draws lines through the picks
QwtPlotItem* measured(const std::vector<TravelTimeCurve>& curves, bool joined);
QwtPlotItem* computed(const std::vector<TravelTimeCurve>& curves);
QwtPlotItem* shots(const std::vector<TravelTimeCurve>& curves);

}  // namespace travel_time_items
}  // namespace talvesk

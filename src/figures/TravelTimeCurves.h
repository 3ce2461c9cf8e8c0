#pragma once

#include "base/Point2D.h"

#include <cstddef>
#include <vector>

namespace talvesk {

class TomoDocument;

/// The T-x curve of one shot; of its points, x is distance in metres and z is time in milliseconds.
struct TravelTimeCurve {
  struct Pick {
    std::size_t geophone = 0;  ///< of the record's string, from 0
    Point2D point;
    double errorMs = 0.0;  ///< one standard deviation; 0: not known
  };

  std::size_t record = 0;   ///< from 0; chooses the colour
  std::vector<Pick> picks;  ///< by ascending x
  /// Lines through picks, or computed times, of neighbouring geophones.
  std::vector<std::vector<Point2D>> measuredLines;
  std::vector<std::vector<Point2D>> computedLines;
  std::vector<std::vector<Point2D>> layeredLines;  ///< likewise, through layers
  double firstReceiver = 0.0;                      ///< metres; ends of the spread, picked or not
  double lastReceiver = 0.0;
  bool hasShot = false;
  Point2D shot;  ///< at time 0
};

/// The T-x curves of a survey and the room that they need, which begins at time 0.
struct TravelTimeCurves {
  std::vector<TravelTimeCurve> curves;  ///< of the records with a time to draw, in order
  std::size_t picks = 0;
  std::size_t errors = 0;  ///< picks whose error is known
  std::size_t computedTimes = 0;
  std::size_t layeredTimes = 0;
  double low = 0.0;  ///< metres, all receivers of the curves and shots; 0 without a time
  double high = 0.0;
  double latestMs = 0.0;  ///< milliseconds, with some room for error bars
};

/// Removed and missing times leave a gap. Receiver positions are those of the record's geophone
/// string, else of the headers of its traces. A shot that lies off the receivers by more than their
/// line is long counts as unknown.
/// \param computed whether to take the computed times
/// \param layered times computed through layers, per record and geophone, seconds; not a number
/// where there is none; empty for none at all
TravelTimeCurves travelTimeCurves(const TomoDocument& document, bool computed,
                                  const std::vector<std::vector<double>>& layered = {});

}  // namespace talvesk

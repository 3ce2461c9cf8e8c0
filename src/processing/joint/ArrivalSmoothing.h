#pragma once

#include <vector>

namespace talvesk {

/// An arrival on one side of a shot. Times are in milliseconds as for arrivals of 35 to 60 Hz, see
/// OnsetView.
struct SmoothArrival {
  double offset = 0.0;  ///< metres, at least 0
  double time = 0.0;
  double error = 0.0;  ///< one standard deviation, above 0; of this arrival alone
  double later = 0.0;  ///< set: how much later it is than the arrivals before it make expect
};

/// Has arrivals of one side, in the order of their offsets, agree with their neighbours so far as
/// their errors let them: the most likely curve where an arrival is off a straight line between its
/// neighbours by a bend of 0.5 ms, and off its own time by its error. Both have long tails, so that
/// a layer makes its corner and an outlier bends nothing. Errors become those of the curve.
///
/// After Rauch, Tung and Striebel, "Maximum likelihood estimates of linear dynamic systems", AIAA
/// Journal 3 (1965), as least squares.
void smoothArrivals(std::vector<SmoothArrival>& arrivals);

}  // namespace talvesk

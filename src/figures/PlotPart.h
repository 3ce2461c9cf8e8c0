#pragma once

namespace talvesk {

/// A part of a plot at a scale, for a plot that goes over several sheets. Millimetres of paper.
struct PlotPart {
  double leftMm = 0.0;   ///< from the left side of the whole plot
  double topMm = 0.0;    ///< from its upper side
  double widthMm = 0.0;  ///< of the part
  double heightMm = 0.0;

  double middleMm() const { return leftMm + 0.5 * widthMm; }
};

}  // namespace talvesk

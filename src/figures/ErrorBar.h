#pragma once

#include <QColor>

class QPainter;

namespace talvesk {

/// How far the pick of one trace may be off, on the screen or the sheet: along the time axis, one
/// standard deviation to either side.
struct ErrorBar {
  double x = 0.0;
  double top = 0.0;
  double bottom = 0.0;
  bool doubtful = false;

  /// \param from, to the ends in either order, which may lie far beyond what is seen: the bar is
  /// cut a little outside of it \param sigma seconds
  ErrorBar(double x, double from, double to, double sigma, double seenFrom, double seenTo);
};

/// What error bars are painted with.
struct ErrorBarLook {
  QColor color;
  double width = 1.0;
  double half = 2.5;  ///< of the width of the ends
  QColor halo;        ///< around it; not valid: none
};

/// A bar of a good pick is drawn through and has straight ends. One of a doubtful pick is dashed
/// between arrows.
void paintErrorBar(QPainter& painter, const ErrorBar& bar, const ErrorBarLook& look);

}  // namespace talvesk

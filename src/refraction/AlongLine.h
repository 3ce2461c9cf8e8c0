#pragma once

#include <cstddef>
#include <vector>

namespace talvesk {

/// Quantities that change slowly along the line: straight between knots that are spread evenly over
/// it, the same beyond its ends as at them. One knot is a quantity that does not change.
class AlongLine {
 public:
  /// \param knots one at least; one is enough where first is last
  AlongLine(double first, double last, std::size_t knots);

  std::size_t knots() const { return mKnots; }
  double knotAt(std::size_t knot) const;  ///< x, metres
  double spacing() const { return mSpacing; }

  /// Share of each knot in the value at x.
  std::vector<double> sharesAt(double x) const;
  /// Share of each knot in the integral from a to b, metres; positive whichever is larger.
  std::vector<double> sharesOver(double a, double b) const;

 private:
  double mFirst;
  double mLast;
  double mSpacing;  ///< metres; 0 of a single knot
  std::size_t mKnots;
};

}  // namespace talvesk

#pragma once

#include <vector>

namespace talvesk {

/// A line y = slope x + intercept.
struct LinearFit {
  double slope = 0.0;
  double intercept = 0.0;

  double at(double x) const { return slope * x + intercept; }
};

/// Least squares over the shorter of both sequences. Points that do not
/// determine a line (none, one, or all at one x) give what the division by zero gives.
LinearFit leastSquares(const std::vector<double>& x, const std::vector<double>& y);

/// The same, told on the console.
LinearFit linearFit(const std::vector<double>& x, const std::vector<double>& y);

}  // namespace talvesk

#include "refraction/LinearFit.h"

#include "base/Console.h"
#include "base/TextNumber.h"

#include <algorithm>
#include <cstddef>
#include <ostream>

namespace talvesk {

LinearFit leastSquares(const std::vector<double>& x, const std::vector<double>& y) {
  const std::size_t n = std::min(x.size(), y.size());
  double sx = 0.0;
  double sy = 0.0;
  double sxx = 0.0;
  double sxy = 0.0;
  // Four at a time: the order of the additions decides the last digits, and those are kept.
  std::size_t i = 0;
  for (; i + 4 <= n; i += 4) {
    sx += x[i] + x[i + 1] + x[i + 2] + x[i + 3];
    sy += y[i] + y[i + 1] + y[i + 2] + y[i + 3];
    sxx += x[i] * x[i] + x[i + 1] * x[i + 1] + x[i + 2] * x[i + 2] + x[i + 3] * x[i + 3];
    sxy += x[i] * y[i] + x[i + 1] * y[i + 1] + x[i + 2] * y[i + 2] + x[i + 3] * y[i + 3];
  }
  for (; i < n; ++i) {
    sx += x[i];
    sy += y[i];
    sxx += x[i] * x[i];
    sxy += x[i] * y[i];
  }
  const double count = static_cast<double>(n);
  const double d = count * sxx - sx * sx;
  return {(count * sxy - sx * sy) / d, (sy * sxx - sx * sxy) / d};
}

LinearFit linearFit(const std::vector<double>& x, const std::vector<double>& y) {
  const LinearFit fit = leastSquares(x, y);
  console::out() << "\nThe linear fit line is of the form:\n"
                 << formatDouble(fit.slope) << "x + " << formatDouble(fit.intercept) << std::endl;
  return fit;
}

}  // namespace talvesk

#include "numerics/LinePicks.h"

#include <algorithm>

namespace talvesk {

double interpolated(const std::vector<double>& abscissas, const std::vector<double>& values,
                    double x) {
  const auto after = std::upper_bound(abscissas.begin(), abscissas.end(), x);
  if (after == abscissas.begin()) return values.front();
  if (after == abscissas.end()) return values.back();
  const auto i = static_cast<std::size_t>(after - abscissas.begin());
  const double part = (x - abscissas[i - 1]) / (abscissas[i] - abscissas[i - 1]);
  return values[i - 1] + part * (values[i] - values[i - 1]);
}

}  // namespace talvesk

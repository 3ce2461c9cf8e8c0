#include "view/SectionTexts.h"

#include "base/TextNumber.h"

#include <algorithm>
#include <cmath>

namespace talvesk {

std::string valueText(double value, double step) {
  if (!std::isfinite(value)) return formatDouble(value);
  const double places =
      step > 0.0 ? std::clamp(1.0 + std::ceil(-std::log10(step)), 0.0, 12.0) : 6.0;
  const double power = std::pow(10.0, places);
  const double rounded = std::round(value * power) / power + 0.0;  // no minus before a zero
  return formatDouble(std::isfinite(rounded) ? rounded : value, 10);
}

double levelSpacing(const std::vector<double>& levels) {
  if (levels.size() < 2) return 0.0;
  const double step = levels[1] - levels[0];
  for (std::size_t i = 2; i < levels.size(); ++i) {
    if (std::abs(levels[i] - levels[i - 1] - step) > 1e-6 * step) return 0.0;
  }
  return step;
}

}  // namespace talvesk

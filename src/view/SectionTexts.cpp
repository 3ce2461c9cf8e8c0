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

std::string sectionCaption(const SectionScene& scene, double verticalExaggeration) {
  std::string unit = quantityUnit(scene.quantity);
  if (!unit.empty()) unit.insert(0, 1, ' ');
  const double step = scene.range.span() / 100.0;
  std::string text;
  const auto add = [&text](const std::string& part) {
    if (!text.empty()) text += "   \xC2\xB7   ";
    text += part;
  };
  if (scene.fill != SectionFill::kNone) {
    add(quantityName(scene.quantity) + ' ' + valueText(scene.dataRange.min, step) + " to " +
        valueText(scene.dataRange.max, step) + unit);
  }
  if (const double spacing = levelSpacing(scene.contourLevels); spacing > 0.0) {
    add("Contours every " + valueText(spacing, spacing / 10.0) + unit);
  }
  if (!scene.rays.empty()) add(std::to_string(scene.rays.size()) + " rays");
  if (scene.rmsPercent >= 0.0) add("RMS misfit " + formatDouble(scene.rmsPercent, 3) + " %");
  if (std::abs(verticalExaggeration - 1.0) > 1e-9) {
    std::string factor = formatDouble(verticalExaggeration, 4);
    if (factor.find_first_of(".e") == std::string::npos) factor += ".0";
    add("Vertical exaggeration " + factor);
  }
  return text;
}

}  // namespace talvesk

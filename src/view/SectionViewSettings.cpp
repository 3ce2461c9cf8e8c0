#include "view/SectionViewSettings.h"

#include "view/ContourLines.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

constexpr int kMost = static_cast<int>(SectionSceneOptions::kMaxContours);

std::vector<double> customValues(std::vector<double> values, const ValueRange& range) {
  values.erase(std::remove_if(values.begin(), values.end(),
                              [&range](double value) { return !range.contains(value); }),
               values.end());
  std::sort(values.begin(), values.end());
  values.erase(std::unique(values.begin(), values.end()), values.end());
  values.resize(std::min(values.size(), SectionSceneOptions::kMaxContours));
  return values;
}

}  // namespace

std::vector<double> contourValues(const ContourSettings& settings, const ValueRange& range) {
  if (!std::isfinite(range.span()) || !(range.span() > 0.0)) return {};
  if (settings.customized) return customValues(settings.customValues, range);
  return equallySpacedValues(range, std::min(settings.numberOfValues, kMost));
}

bool showsContours(const ContourSettings& settings, SectionQuantity quantity) {
  switch (quantity) {
    case SectionQuantity::kVelocity:
      return settings.onProfile || settings.filled;
    case SectionQuantity::kVerticalGradient:
      return settings.onVerticalGradient;
    case SectionQuantity::kLaplacian:
      return settings.onLaplacian;
    case SectionQuantity::kInformationDensity:
      return false;
  }
  return false;
}

bool showsAnyContours(const ContourSettings& settings) {
  return settings.onProfile || settings.filled || settings.onLaplacian ||
         settings.onVerticalGradient;
}

ContourSettings proposedContours(ContourSettings settings, SectionQuantity quantity,
                                 const ValueRange& range) {
  if (showsContours(settings, quantity)) return settings;
  const bool first = !showsAnyContours(settings);
  if (quantity == SectionQuantity::kVelocity) settings.onProfile = true;
  if (quantity == SectionQuantity::kVerticalGradient) settings.onVerticalGradient = true;
  if (quantity == SectionQuantity::kLaplacian) settings.onLaplacian = true;
  if (first && settings.customValues.empty()) {
    settings.customValues = roundValues(range, kMostRoundContours);
    settings.customized = !settings.customValues.empty();
  }
  return settings;
}

}  // namespace talvesk

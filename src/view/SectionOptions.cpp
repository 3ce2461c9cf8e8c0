#include "model/TomoDocument.h"
#include "view/SectionViewSettings.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

SectionFill fillOf(const SectionViewSettings& settings) {
  if (!settings.profile) return SectionFill::kNone;
  // Only the velocity section has filled contours.
  if (settings.contours.filled && settings.quantity == SectionQuantity::kVelocity) {
    return SectionFill::kBands;
  }
  return settings.smooth ? SectionFill::kSmooth : SectionFill::kCells;
}

}  // namespace

SectionSceneOptions sceneOptions(const SectionViewSettings& settings, const ColorPalette& palette) {
  SectionSceneOptions options;
  options.quantity = settings.quantity;
  options.fill = fillOf(settings);
  const ValueRange scale{palette.min_db, palette.max_db};
  if (settings.quantity == SectionQuantity::kVelocity && scale.span() > 0.0 &&
      std::isfinite(scale.span())) {
    options.range = scale;
  }
  const ContourSettings& contours = settings.contours;
  if (showsContours(contours, settings.quantity)) {
    constexpr std::size_t kMost = SectionSceneOptions::kMaxContours;
    if (contours.customized && options.range) {
      options.contourValues = contourValues(contours, *options.range);
    } else if (contours.customized) {
      options.contourValues = contours.customValues;
      options.contourValues.resize(std::min(options.contourValues.size(), kMost));
    } else {
      options.equallySpacedContours =
          std::clamp(contours.numberOfValues, 0, static_cast<int>(kMost));
    }
  }
  options.contourLines = settings.quantity != SectionQuantity::kVelocity || contours.onProfile;
  options.rays = settings.rays;
  return options;
}

Status buildSectionScene(const TomoDocument& document, const SectionViewSettings& settings,
                         const ColorPalette& palette, const std::vector<SectionLine>& refractors,
                         SectionScene& out) {
  const bool cells = document.grid && document.grid->cellCount() > 0;
  if (!cells && settings.refraction && !refractors.empty()) {
    out = sceneWithoutGrid(document, refractors);
    return {};
  }
  SectionSceneOptions options = sceneOptions(settings, palette);
  if (settings.refraction) options.refractors = refractors;
  return buildSectionScene(document, options, out);
}

}  // namespace talvesk

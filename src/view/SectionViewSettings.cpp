#include "view/SectionViewSettings.h"

#include "model/GroundModel.h"
#include "model/TomoDocument.h"
#include "view/ContourLines.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

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

SectionFill fillOf(const SectionViewSettings& settings) {
  if (!settings.profile) return SectionFill::kNone;
  // Only the velocity section has filled contours.
  if (settings.contours.filled && settings.quantity == SectionQuantity::kVelocity) {
    return SectionFill::kBands;
  }
  return settings.smooth ? SectionFill::kSmooth : SectionFill::kCells;
}

}  // namespace

bool ContourSettings::operator==(const ContourSettings& other) const {
  const auto parts = [](const ContourSettings& s) {
    return std::tie(s.customized, s.numberOfValues, s.customValues, s.gradientValues,
                    s.laplacianValues, s.labelEvery, s.labelSize, s.color, s.onProfile, s.filled,
                    s.onLaplacian, s.onVerticalGradient);
  };
  return parts(*this) == parts(other);
}

bool SectionViewSettings::operator==(const SectionViewSettings& other) const {
  const auto parts = [](const SectionViewSettings& s) {
    return std::tie(s.profile, s.smooth, s.quantity, s.rays, s.refraction, s.known, s.annotations,
                    s.scalarBar, s.title, s.gridLines, s.geophones, s.verticalExaggeration,
                    s.fadeUncertain, s.bandVelocities, s.lockRange, s.contours);
  };
  return parts(*this) == parts(other);
}

SectionQuantity contouredQuantity(SectionQuantity shown) {
  const bool bare =
      shown == SectionQuantity::kInformationDensity || shown == SectionQuantity::kCertainty;
  return bare ? SectionQuantity::kVelocity : shown;
}

std::vector<double> ContourSettings::*contourList(SectionQuantity quantity) {
  switch (contouredQuantity(quantity)) {
    case SectionQuantity::kVerticalGradient:
      return &ContourSettings::gradientValues;
    case SectionQuantity::kLaplacian:
      return &ContourSettings::laplacianValues;
    default:
      return &ContourSettings::customValues;
  }
}

std::vector<double> contourValues(const ContourSettings& settings, SectionQuantity quantity,
                                  const ValueRange& range) {
  if (!std::isfinite(range.span()) || !(range.span() > 0.0)) return {};
  if (settings.customized) return customValues(settings.*contourList(quantity), range);
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
    case SectionQuantity::kCertainty:
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
  quantity = contouredQuantity(quantity);
  std::vector<double>& list = settings.*contourList(quantity);
  const bool first = !showsAnyContours(settings) && list.empty();
  if (!showsContours(settings, quantity)) {
    settings.onProfile |= quantity == SectionQuantity::kVelocity;
    settings.onVerticalGradient |= quantity == SectionQuantity::kVerticalGradient;
    settings.onLaplacian |= quantity == SectionQuantity::kLaplacian;
  }
  const bool useless = std::none_of(list.begin(), list.end(),
                                    [&range](double value) { return range.contains(value); });
  std::vector<double> round = shownRoundValues(range, kMostRoundContours, quantityUnit(quantity));
  if ((first || (settings.customized && useless)) && !round.empty()) {
    list = std::move(round);
    settings.customized = true;
  }
  return settings;
}

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
    if (contours.customized && options.range) {
      options.contourValues = contourValues(contours, settings.quantity, *options.range);
    } else if (contours.customized) {
      options.contourValues = contours.*contourList(settings.quantity);
      options.contourValues.resize(
          std::min(options.contourValues.size(), SectionSceneOptions::kMaxContours));
    } else {
      options.equallySpacedContours = std::clamp(contours.numberOfValues, 0, kMost);
    }
  }
  options.contourLines = settings.quantity != SectionQuantity::kVelocity || contours.onProfile;
  options.rays = settings.rays;
  options.fadeUncertain = settings.fadeUncertain;
  options.bandVelocities = settings.bandVelocities;
  options.known = settings.known;
  options.annotations = settings.annotations;
  return options;
}

Status buildSectionScene(const TomoDocument& document, const SectionViewSettings& settings,
                         const ColorPalette& palette, const std::vector<SectionLine>& refractors,
                         SectionScene& out) {
  const bool cells = document.model->grid && document.model->grid->cellCount() > 0;
  if (!cells && settings.refraction && !refractors.empty()) {
    out = sceneWithoutGrid(document, refractors);
    if (!settings.annotations) out.annotations = {};
    return {};
  }
  SectionSceneOptions options = sceneOptions(settings, palette);
  if (settings.refraction) options.refractors = refractors;
  return buildSectionScene(document, options, out);
}

}  // namespace talvesk

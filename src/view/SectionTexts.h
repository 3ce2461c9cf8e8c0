#pragma once

#include "view/SectionScene.h"

#include <string>
#include <vector>

namespace talvesk {

/// A value in words, rounded to no more places than a reader needs to tell neighbours apart that
/// lie `step` from each other: a hundredth to a tenth of the step, and never less than whole
/// numbers.
std::string valueText(double value, double step);

/// The distance of evenly spaced levels; 0 for fewer than two and for any others. Ascending levels.
double levelSpacing(const std::vector<double>& levels);

/// What a reader must know of a section beside its axes: values shown, contour distance, number of
/// rays, misfit, and a vertical exaggeration (height of a metre over its width) other than 1.
/// One line, UTF-8.
std::string sectionCaption(const SectionScene& scene, double verticalExaggeration);

}  // namespace talvesk

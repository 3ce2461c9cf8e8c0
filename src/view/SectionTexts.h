#pragma once

#include <string>
#include <vector>

namespace talvesk {

/// A value in words, rounded to no more places than a reader needs to tell neighbours apart that
/// lie `step` from each other: a hundredth to a tenth of the step, and never less than whole
/// numbers.
std::string valueText(double value, double step);

/// The distance of evenly spaced levels; 0 for fewer than two and for any others. Ascending levels.
double levelSpacing(const std::vector<double>& levels);

}  // namespace talvesk

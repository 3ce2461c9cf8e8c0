#pragma once

#include "base/LengthUnit.h"

#include <cmath>

namespace talvesk {

// A round number of metres has digits without end in feet. What stands in headings, legends and at
// lines, and is not a field that is edited, is told alike wherever it stands: in metres as it is,
// in feet rounded by these.

/// \return in the unit shown; feet to a tenth
inline double toldLength(double metres) {
  return lengthUnit() == LengthUnit::kMetre ? metres
                                            : std::round(10.0 * shownLength(metres)) / 10.0;
}

/// \return in the unit shown; whole feet per second
inline double toldVelocity(double metresPerSecond) {
  return lengthUnit() == LengthUnit::kMetre ? metresPerSecond
                                            : std::round(shownLength(metresPerSecond));
}

}  // namespace talvesk

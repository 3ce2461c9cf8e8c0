#pragma once

#include "base/LengthUnit.h"

#include <QLatin1String>
#include <QString>

namespace talvesk {

// Lengths and velocities in words, in the unit that they are shown in.

inline QString lengthUnitText() {
  return QLatin1String(lengthUnitName());
}

inline QString velocityUnitText() {
  return QLatin1String(velocityUnitName());
}

/// "12.5 m". \param number already in the unit that is shown
inline QString withLengthUnit(const QString& number) {
  return number + QLatin1Char(' ') + lengthUnitText();
}

/// "1500 m/s". \param number already in the unit that is shown
inline QString withVelocityUnit(const QString& number) {
  return number + QLatin1Char(' ') + velocityUnitText();
}

}  // namespace talvesk

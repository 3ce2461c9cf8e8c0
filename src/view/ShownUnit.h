#pragma once

#include <string>

namespace talvesk {

/// What a quantity is multiplied by to be shown in the unit of LengthUnit.h, and what that unit is
/// called.
struct ShownUnit {
  double factor = 1.0;
  std::string name;

  /// 1 leaves a value as it is, to the bit.
  double shown(double value) const { return value * factor; }
};

/// \param unit that a quantity has inside: "m/s" becomes "ft/s" where feet are shown. Units without
/// a length stay what they are.
ShownUnit shownUnit(const std::string& unit);

}  // namespace talvesk

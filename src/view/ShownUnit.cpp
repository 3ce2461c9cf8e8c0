#include "view/ShownUnit.h"

#include "base/LengthUnit.h"

namespace talvesk {

ShownUnit shownUnit(const std::string& unit) {
  if (lengthUnit() == LengthUnit::kMetre) return {1.0, unit};
  if (unit == "m" || unit == "m/s") return {1.0 / kMetresPerFoot, "ft" + unit.substr(1)};
  if (unit == "1/m") return {kMetresPerFoot, "1/ft"};
  if (unit == "1/(m\xC2\xB7s)") return {kMetresPerFoot, "1/(ft\xC2\xB7s)"};
  return {1.0, unit};
}

}  // namespace talvesk

#include "view/AxisTicks.h"

#include "base/RoundStep.h"
#include "view/ShownUnit.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

/// Parts of a step that minor marks divide it into.
int partsOf(double step) {
  const double lead = step / std::pow(10.0, std::floor(std::log10(step) + 1e-9));
  return lead > 1.5 && lead < 3.0 ? 4 : 5;
}

}  // namespace

AxisTicks axisTicks(double from, double to, int most, bool wholeSteps) {
  AxisTicks ticks;
  const double range = to - from;
  if (!(range > 0.0) || !std::isfinite(range) || most < 1) return ticks;
  // Far from zero a narrow range has no numbers to tell its ends apart.
  if (range < 1e-9 * std::max(std::fabs(from), std::fabs(to))) return ticks;
  double step = roundStep(range / most);
  if (wholeSteps) step = std::max(step, 1.0);
  int parts = partsOf(step);
  if (wholeSteps && step / parts < 1.0) parts = 1;
  ticks.decimals = std::clamp(static_cast<int>(std::ceil(-std::log10(step) - 1e-9)), 0, 12);
  const double minor = step / parts;
  const double first = std::ceil(from / minor - 1e-9);
  const double last = std::floor(to / minor + 1e-9);
  for (double i = first; i <= last; i += 1.0) {
    const bool isMajor = std::fmod(i, parts) == 0.0;
    (isMajor ? ticks.major : ticks.minor).push_back(i * minor);
  }
  return ticks;
}

AxisTicks shownTicks(double from, double to, int most, const std::string& unit) {
  const double factor = shownUnit(unit).factor;
  if (factor == 1.0) return axisTicks(from, to, most);
  AxisTicks ticks = axisTicks(from * factor, to * factor, most);
  for (auto* marks : {&ticks.major, &ticks.minor}) {
    for (double& value : *marks) value /= factor;
  }
  ticks.factor = factor;
  return ticks;
}

}  // namespace talvesk

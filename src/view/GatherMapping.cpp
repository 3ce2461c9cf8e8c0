#include "view/GatherMapping.h"

#include "model/GatherParameters.h"

#include <algorithm>
#include <utility>

namespace talvesk {
namespace {

/// 0 and what is no number are 0.
double within(double value, const Parameter<double>& parameter) {
  if (!std::isfinite(value) || !(value > 0.0)) return 0.0;
  return std::clamp(value, parameter.limits.least, parameter.limits.most);
}

bool allKnown(const std::vector<double>& offsets) {
  return !offsets.empty() &&
         std::all_of(offsets.begin(), offsets.end(), [](double x) { return std::isfinite(x); });
}

}  // namespace

GatherManner confined(GatherManner manner) {
  manner.reduction = within(manner.reduction, parameters::kReduction);
  manner.timeGain = within(manner.timeGain, parameters::kTimeGain);
  return manner;
}

GatherMapping::GatherMapping(const GatherManner& manner, std::vector<double> offsets)
    : mManner(confined(manner)) {
  if (!isReduced() && !isByOffset()) return;
  if (!allKnown(offsets)) {
    mLacksOffsets = true;
    mManner.reduction = 0.0;
    mManner.byOffset = OffsetOrder::kNone;
    return;
  }
  mOffsets = std::move(offsets);
  if (!isByOffset()) return;
  const auto nearer = [this](double a, double b) { return placeOf(a) < placeOf(b); };
  const auto [least, most] = std::minmax_element(mOffsets.begin(), mOffsets.end(), nearer);
  const double length = placeOf(*most) - placeOf(*least);
  if (length > 0.0 && std::isfinite(length)) return;
  mLacksOffsets = true;
  mManner.byOffset = OffsetOrder::kNone;
}

double GatherMapping::longestShift() const {
  double longest = 0.0;
  for (std::size_t i = 0; i < mOffsets.size(); ++i) longest = std::max(longest, shift(i));
  return longest;
}

}  // namespace talvesk

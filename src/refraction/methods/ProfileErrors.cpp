#include "refraction/methods/ProfileErrors.h"

#include "refraction/ProfileOrigin.h"

#include <algorithm>
#include <utility>

namespace talvesk {

using namespace refractionDataStructure;

namespace {

constexpr double kRounding = 1e-6;  // metres

/// That of a line at the receivers of a refractor, which are among those of the line.
Band bandAt(const std::vector<double>& x, const std::vector<Point2D>& line, const Band& band) {
  Band own;
  for (std::size_t j = 0, k = 0; j < x.size(); ++j) {
    while (k + 1 < line.size() && line[k].x < x[j] - kRounding) ++k;
    own.low.push_back(band.low[k]);
    own.high.push_back(band.high[k]);
  }
  return own;
}

}  // namespace

std::optional<ProfileErrors> profileErrors(const MethodComparison& comparison,
                                           const processingData& profile) {
  if (profile.isFitted()) return std::nullopt;
  const auto reciprocal = std::find_if(
      comparison.results.begin(), comparison.results.end(),
      [](const MethodResult& result) { return result.method == LayerMethod::kReciprocal; });
  if (reciprocal == comparison.results.end()) return std::nullopt;
  ProfileErrors errors;
  errors.members = comparison.bounds.members;
  errors.v1Error = reciprocal->v1Error;
  for (std::size_t i = 0; i < profile.cData.size(); ++i) {
    const MethodLayer* layer = reciprocal->layer(static_cast<std::uint32_t>(i) + 2);
    if (layer == nullptr || layer->depthBand.empty()) return std::nullopt;
    const std::vector<double>& x = profile.cData[i].x;
    errors.refractors.push_back({bandAt(x, reciprocal->receivers, layer->depthBand),
                                 bandAt(x, reciprocal->receivers, layer->velocityBand),
                                 layer->medianError});
  }
  return errors.refractors.empty() ? std::nullopt : std::optional(std::move(errors));
}

std::optional<ProfileErrors> findProfileErrors(const LayerPicks& picks, const BoundsOptions& bounds,
                                               const std::function<bool(std::size_t)>& goOn) {
  if (!isProfileOf(picks.shots, picks.interpretation)) return std::nullopt;
  const MethodComparison comparison =
      compareMethods(picks, {LayerMethod::kReciprocal}, bounds, goOn);
  return profileErrors(comparison, picks.interpretation.refractData);
}

}  // namespace talvesk

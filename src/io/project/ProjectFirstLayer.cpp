#include "io/project/ProjectFirstLayer.h"

#include "refraction/PlausibleResults.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace talvesk {

using namespace refractionDataStructure;

namespace {

bool canBe(const FirstLayer& first) {
  const auto isFiniteSize = [](double value) { return value >= 0.0 && std::isfinite(value); };
  return !first.x.empty() && first.x.size() == first.velocity.size() &&
         std::all_of(first.x.begin(), first.x.end(), [](double x) { return std::isfinite(x); }) &&
         std::is_sorted(first.x.begin(), first.x.end()) &&
         std::all_of(first.velocity.begin(), first.velocity.end(), isPlausibleVelocity) &&
         isFiniteSize(first.growth) && isFiniteSize(first.growsTo);
}

}  // namespace

std::optional<FirstLayerMember> firstLayerOf(const Interpretation& interpretation) {
  const processingData& results = interpretation.refractData;
  if (!results.isFitted()) return std::nullopt;
  return FirstLayerMember{results.first, results.v1, results.picks};
}

Status installFirstLayer(FirstLayerMember member, Interpretation& interpretation) {
  processingData& results = interpretation.refractData;
  if (!canBe(member.first)) return Status::failure(Message::tr("such a first layer cannot be"));
  if (results.cData.empty() || member.v1 != results.v1 || member.picks != results.picks) {
    return Status::failure(Message::tr("it belongs to another layered profile"));
  }
  results.first = std::move(member.first);
  return {};
}

}  // namespace talvesk

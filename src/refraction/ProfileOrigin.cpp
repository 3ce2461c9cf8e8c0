#include "refraction/ProfileOrigin.h"

#include "base/Console.h"
#include "refraction/BuildProfiles.h"
#include "refraction/FittedProfile.h"

#include <algorithm>
#include <cmath>

namespace talvesk {

using namespace refractionDataStructure;

namespace {

// A profile that comes from the text of a project may differ in the last digits.
constexpr double kSame = 1e-6;

bool sameValues(const std::vector<double>& a, const std::vector<double>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](double x, double y) {
    return std::isfinite(x) ? std::fabs(x - y) <= kSame * std::max(1.0, std::fabs(x))
                            : !std::isfinite(y);
  });
}

bool sameProfile(const processingData& profile, const processingData& again) {
  return std::equal(profile.cData.begin(), profile.cData.end(), again.cData.begin(),
                    again.cData.end(), [](const computedData& a, const computedData& b) {
                      return sameValues(a.x, b.x) && sameValues(a.velocity, b.velocity) &&
                             sameValues(a.depth, b.depth);
                    });
}

/// The fit of a fitted profile, found again from picks and marks.
LayeredFit fitOfOwnFitted(const std::vector<ShotArrivals>& shots,
                          const std::vector<std::vector<double>>& errors,
                          const Interpretation& interpretation) {
  Interpretation again;
  LayeredFit fit =
      fitProfile(shots, errors, proposalOfMarks(shots, errors, interpretation.ttLayer), again);
  return sameProfile(interpretation.refractData, again.refractData) ? fit : LayeredFit();
}

}  // namespace

bool isProfileOf(const std::vector<ShotArrivals>& shots, const Interpretation& interpretation) {
  const processingData& profile = interpretation.refractData;
  if (profile.cData.empty()) return false;
  if (profile.isFitted()) return false;
  const console::Silence silence;
  Interpretation again = interpretation;
  if (!buildProfiles(shots, again).built) return false;
  return sameProfile(profile, again.refractData);
}

LayeredFit fitOfOwnProfile(const std::vector<ShotArrivals>& shots,
                           const std::vector<std::vector<double>>& errors,
                           const Interpretation& interpretation) {
  if (interpretation.refractData.isFitted()) return fitOfOwnFitted(shots, errors, interpretation);
  return isProfileOf(shots, interpretation) ? fitOfProfile(shots, errors, interpretation)
                                            : LayeredFit();
}

}  // namespace talvesk

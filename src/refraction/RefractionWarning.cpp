#include "refraction/RefractionWarning.h"

namespace talvesk {
namespace {

/// As kLeastVelocity and kGreatestVelocity.
constexpr const char* kOutside = "outside 50 to 12 000 m/s";

}  // namespace

std::string RefractionWarning::text() const {
  const std::string which = "Layer " + std::to_string(layer) + ": ";
  const std::string some = std::to_string(count) + " of " + std::to_string(total) + " receivers";
  switch (kind) {
    case Kind::kNoShotPair:
      return "Unable to find nearest shot for first refractor";
    case Kind::kVelocityNegative:
      return "Velocity is less then zero at least one receiver. The profile may not be accurate. "
             "Please check input data ";
    case Kind::kStrongVariation:
      return "Strong lateral velocity variations. The profile may not be accurate.";
    case Kind::kTgNegative:
      return "The Tg function is less then zero at least one receiver. The profile may not be "
             "accurate. Please check input data ";
    case Kind::kNoShotPairBelow:
      return which + "no shot at each end of the line has picks of it, so it has no profile.";
    case Kind::kFewForward:
      return which +
             "the shot at the start of the line has fewer than two usable picks of it, so "
             "there is no forward curve.";
    case Kind::kFewReverse:
      return which +
             "the shot at the end of the line has fewer than two usable picks of it, so "
             "there is no reverse curve.";
    case Kind::kFewCommon:
      return which + "forward and reverse curve have fewer than two receivers in common.";
    case Kind::kNoFirstLayer:
      return which +
             "no shot that takes part has two picks of it on one side, so it has no velocity and "
             "the layers below have no depth.";
    case Kind::kBadFirstLayer:
      return which + "its velocity comes out " + kOutside +
             ", so it has none and the layers below have no depth.";
    case Kind::kBadVelocity:
      return which + "no velocity and no depth at " + some + ", where the velocity comes out " +
             kOutside + '.';
    case Kind::kSlowRefractor:
      return which + "no depth at " + some + ", where it is not faster than the layer above.";
    case Kind::kOutsideUpper:
      return which + "no depth at " + some + ", which lie beyond the profile of the layer above.";
    case Kind::kTooDeep:
      return which + "no depth at " + some + ", where it comes out deeper than the line is long.";
  }
  return which;
}

}  // namespace talvesk

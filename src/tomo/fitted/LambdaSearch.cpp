#include "tomo/fitted/LambdaSearch.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

const double kHalf = std::log(2.0);
/// Of ln chi-square against ln lambda near 1, as sections of all kinds have it.
constexpr double kUsualSlope = 0.6;
constexpr int kMostGrowth = 3;

}  // namespace

void LambdaSearch::tell(double chi2) {
  const bool above = chi2 > 1.0;
  const Point here{std::log(mLambda), std::log(chi2)};
  std::optional<Point>& side = above ? mAbove : mBelow;
  std::optional<Point>& other = above ? mBelow : mAbove;
  const bool again = side && mLastAbove == above;
  mRepeats = again ? mRepeats + 1 : 0;
  mBracketed = mBracketed || other;
  // An end that the next iteration does not bear out was of a section that had not yet come to
  // what its weight allows.
  if (other && (again || (other->logLambda > here.logLambda) == above)) other.reset();
  double change = above ? -kHalf : kHalf;
  if (other) {
    change = (other->logLambda - here.logLambda) * here.logChi2 / (here.logChi2 - other->logChi2);
  } else if (mBracketed) {
    change = std::clamp(-here.logChi2 / kUsualSlope, -kHalf, kHalf);
  }
  if (!other && !above) change *= 1 + std::min(mRepeats, kMostGrowth);
  side = here;
  mLastAbove = above;
  mLambda = std::exp(here.logLambda + change);
}

}  // namespace talvesk

#include "tomo/fitted/LambdaSearch.h"

#include <cmath>

namespace talvesk {

void LambdaSearch::tell(double chi2) {
  const bool above = chi2 > 1.0;
  const Point here{std::log(mLambda), std::log(chi2)};
  std::optional<Point>& side = above ? mAbove : mBelow;
  std::optional<Point>& other = above ? mBelow : mAbove;
  double change = above ? -std::log(2.0) : std::log(2.0);
  const bool again = mLastAbove == above;
  if (other && (again || (other->logLambda > here.logLambda) == above)) {
    // The other end was of a section that had not yet come to what its weight allows.
    other.reset();
  }
  if (other) {
    change = (other->logLambda - here.logLambda) * here.logChi2 / (here.logChi2 - other->logChi2);
  }
  side = here;
  mLastAbove = above;
  mLambda = std::exp(here.logLambda + change);
}

}  // namespace talvesk

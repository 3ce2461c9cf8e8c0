#include "tomo/fitted/LambdaSearch.h"

#include <algorithm>
#include <cmath>

namespace talvesk {
namespace {

// Sections of earlier iterations were not yet the best of their weight, so a secant may be flat,
// steep or fall. Between these it is believed.
constexpr double kFlattest = 0.15;
constexpr double kSteepest = 2.0;
const double kFarthest = std::log(4.0);  // that one secant may go

}  // namespace

void LambdaSearch::tell(double chi2) {
  const double logLambda = std::log(mLambda);
  const double logChi2 = std::log(chi2);
  (chi2 > 1.0 ? mAbove : mBelow) = true;
  double change = chi2 > 1.0 ? -std::log(2.0) : std::log(2.0);
  if (mAbove && mBelow && mAny) {
    const double run = logLambda - mLastLogLambda;
    const double slope = run != 0.0 ? (logChi2 - mLastLogChi2) / run : kSteepest;
    change = -logChi2 / std::clamp(slope, kFlattest, kSteepest);
    change = std::clamp(change, -kFarthest, kFarthest);
  }
  mAny = true;
  mLastLogLambda = logLambda;
  mLastLogChi2 = logChi2;
  mLambda = std::exp(logLambda + change);
}

}  // namespace talvesk

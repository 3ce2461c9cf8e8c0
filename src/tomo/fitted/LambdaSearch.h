#pragma once

namespace talvesk {

/// Finds the weight of the roughness with which chi-square is 1, one iteration of a fit after the
/// other. The weight is halved until chi-square falls below 1; from then on it follows the secant
/// through the last two iterations, both on logarithmic scales.
class LambdaSearch {
 public:
  explicit LambdaSearch(double first) : mLambda(first) {}

  double lambda() const { return mLambda; }
  /// \param chi2 what the iteration with lambda() has come to, positive
  void tell(double chi2);

 private:
  double mLambda;
  double mLastLogLambda = 0.0;
  double mLastLogChi2 = 0.0;
  bool mAny = false;
  bool mAbove = false;  ///< chi-square was above 1 before
  bool mBelow = false;
};

}  // namespace talvesk

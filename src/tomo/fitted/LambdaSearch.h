#pragma once

#include <optional>

namespace talvesk {

/// Finds the weight of the roughness with which chi-square is 1, one iteration of a fit after the
/// other. The weight is halved until chi-square falls below 1; from then on it follows the secant
/// between the last iterations on either side of 1, both on logarithmic scales.
class LambdaSearch {
 public:
  explicit LambdaSearch(double first) : mLambda(first) {}

  double lambda() const { return mLambda; }
  /// \param chi2 what the iteration with lambda() has come to, positive
  void tell(double chi2);
  /// Takes another weight for that of the last iteration. To be followed by tell().
  void restart(double lambda) { mLambda = lambda; }

 private:
  struct Point {
    double logLambda;
    double logChi2;
  };

  double mLambda;
  std::optional<Point> mAbove;  ///< the last iteration with a chi-square above 1
  std::optional<Point> mBelow;
  bool mLastAbove = true;
  int mRepeats = 0;         ///< iterations on one side of 1, but the first
  bool mBracketed = false;  ///< chi-square was on either side of 1
};

}  // namespace talvesk

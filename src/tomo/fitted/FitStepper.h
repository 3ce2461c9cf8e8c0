#pragma once

#include "tomo/fitted/FitProblem.h"

#include <functional>

namespace talvesk {

/// Takes a fit from one section to the next: a step and how far to go along it by fresh rays.
class FitStepper {
 public:
  explicit FitStepper(FitProblem& problem) : mProblem(problem) {}

  /// A step with the section's weight of the roughness. Throws when no ray constrains the section.
  /// \return false when it was stopped
  bool improve(const FitSection& from, FitSection& next, const std::function<bool()>& goOn);
  /// The same, where a step past a chi-square of 1 ends there. \return false when it was stopped
  bool advance(FitSection& section, const std::function<bool()>& goOn);

  /// Whether the last step was shortened or damped.
  bool cut() const;
  /// Of the next step, as a share of the weight of the roughness.
  double damping() const { return mDamping; }
  void adaptDamping();

 private:
  bool search(const FitSection& from, const Eigen::VectorXd& step, double slope, FitSection& best,
              const std::function<bool()>& goOn);
  bool cross(const FitSection& from, FitSection& to, const std::function<bool()>& goOn);

  FitProblem& mProblem;
  StepSolver mSolver;
  double mLength = 1.0;  ///< of the last step, as a share of the whole one
  double mDamping = 0.0;
};

/// Whether a chi-square is as near to 1 as a fit aims for.
bool nearTarget(double chi2);

}  // namespace talvesk
